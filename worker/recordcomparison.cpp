#include "worker/recordcomparison.h"

namespace RecordComparison {

bool isComplete(const MirovaRonRecord &known)
{
    return known.osobniCislo != 0 && known.poradoveCisloPP != 0
        && !(known.jmeno.isEmpty() && known.prijmeni.isEmpty());
}

bool movesElsewhere(const MirovaRonRecord &rec, const MirovaRonRecord &known)
{
    return rec.kalendar != known.kalendar || rec.kalendarPlatnostOd != known.kalendarPlatnostOd
        || rec.stredisko != known.stredisko;
}

} // namespace RecordComparison
