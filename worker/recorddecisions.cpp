#include "worker/recorddecisions.h"

#include "worker/recordcodes.h"
#include "worker/recordcomparison.h"

namespace {

using namespace RecordDecisions;

/// The one employment type (`people.type`) whose people have a supervisor.
constexpr ushort kTypeWithSupervisor = 1;

BalanceStep balanceStep(const MirovaRonRecord &record, const MirovaRonRecord *last,
                        const FundState &fund, bool forced)
{
    if (!fund.exists)
        return BalanceStep::NoFund;
    if (!fund.moveAllowed)
        return BalanceStep::CorrectedToday;
    if (!fund.attendanceAllows)
        return BalanceStep::AttendanceOpen;
    if (last != nullptr && !forced && !fund.retry
        && record.dovolenaZustatek == last->dovolenaZustatek)
        return BalanceStep::SameAsLast;
    return BalanceStep::Compare;
}

/// True when the database's view of a person can be compared: both numbers and any name are there.
bool isComplete(const MirovaRonRecord &known)
{
    return known.osobniCislo != 0 && known.poradoveCisloPP != 0
        && !(known.jmeno.isEmpty() && known.prijmeni.isEmpty());
}

} // namespace

namespace RecordDecisions {

Differences differences(const MirovaRonRecord &record, const MirovaRonRecord *last,
                        const FundState &fund, bool forced)
{
    Differences found;
    found.balance = balanceStep(record, last, fund, forced);
    if (last == nullptr) {
        found.changed = true;
        found.registerState = true;
        found.employmentType = true;
        found.supervisor = true;
        return found;
    }
    found.changed = found.balance == BalanceStep::Compare || record != *last;
    found.registerState = record.evidencniStav != last->evidencniStav;
    found.employmentType = record.typPracovnihoPomeru != last->typPracovnihoPomeru;
    found.supervisor = record.nadrizenyOsobniCislo != last->nadrizenyOsobniCislo;
    return found;
}

RowStep rowStep(const MirovaRonRecord &updated, const MirovaRonRecord &known,
                const Differences &differences)
{
    if (RecordComparison::rowFields(updated) != RecordComparison::rowFields(known))
        return RowStep::WriteFields;
    return differences.registerState || differences.employmentType ? RowStep::WriteCodes
                                                                   : RowStep::Keep;
}

bool movesElsewhere(const MirovaRonRecord &record, const MirovaRonRecord &known)
{
    return isComplete(known)
        && (record.kalendar != known.kalendar
            || record.kalendarPlatnostOd != known.kalendarPlatnostOd
            || record.stredisko != known.stredisko);
}

void adopt(const MirovaRonRecord &record, MirovaRonRecord &known)
{
    known.kalendar = record.kalendar;
    known.kalendarPlatnostOd = record.kalendarPlatnostOd;
    known.stredisko = record.stredisko;
    known.strediskoPopis = record.strediskoPopis;
    known.dovolenaZustatek = record.dovolenaZustatek;
}

SupervisorStep supervisorStep(const MirovaRonRecord &record, bool isNew,
                              const Differences &differences)
{
    if (record.nadrizenyOsobniCislo == 0)
        return SupervisorStep::NotNamed;
    if (RecordCodes::employmentTypeFromTPP(record.typPracovnihoPomeru) != kTypeWithSupervisor)
        return SupervisorStep::OtherEmploymentType;
    return isNew || differences.supervisor ? SupervisorStep::Assign : SupervisorStep::SameAsLast;
}

bool isPlaced(const MirovaRonRecord &record, bool isHandled, bool isWaiting)
{
    return record.stredisko != 0 && (isHandled || isWaiting);
}

} // namespace RecordDecisions
