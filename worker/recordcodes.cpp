#include "worker/recordcodes.h"

namespace RecordCodes {

ushort employmentTypeFromTPP(ushort code)
{
    switch (code) {
    case 11:
    case 65:
        return 1;
    case 51:
    case 53:
    case 54:
        return 4;
    default:
        return 0;
    }
}

ushort pamSettingsIdFromTPP(ushort code)
{
    switch (code) {
    case 11:
    case 65:
        return 1;
    case 51:
    case 53:
    case 54:
        return 2;
    default:
        return 0;
    }
}

bool isActive(const MirovaRonRecord &record, const QDate &today)
{
    return record.stavPracovnihoPomeru < 4
        && (!record.datumVystupu.isValid() || record.datumVystupu >= today);
}

} // namespace RecordCodes
