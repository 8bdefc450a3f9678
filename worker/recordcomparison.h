#pragma once

#include "worker/mirovaronrecord.h"

#include <tuple>

/// How a record of the export is compared with the database's view of the same person.
namespace RecordComparison {

/// The fields that a row of `people` holds. The description of the cost centre, the start of the
/// calendar, the codes and the balance are not among them.
inline auto rowFields(const MirovaRonRecord &r)
{
    return std::tie(r.osobniCislo, r.poradoveCisloPP, r.titul, r.jmeno, r.prijmeni, r.titulZa,
                    r.telefon, r.datumNastupu, r.datumVystupu, r.kalendar, r.stredisko, r.rsFrom,
                    r.rsTo, r.rsText);
}

} // namespace RecordComparison
