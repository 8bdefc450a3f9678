#pragma once

#include "worker/mirovaronrecord.h"

/// What the driver decides about one record, and why. Pure functions over values: the worker loads
/// the values and carries the decisions out, and `mirovahrctl explain` reports the same decisions.
namespace RecordDecisions {

/// Whether the vacation balance of a record is compared with that of the fund.
enum class BalanceStep {
    NoFund, ///< there is no vacation fund
    CorrectedToday, ///< today's correction exists
    AttendanceOpen, ///< attendance is being calculated, or has days that are to be calculated
    SameAsLast, ///< the balance is that of the last record
    Compare,
};

/// What is known of a person's vacation fund before a record is handled.
struct FundState {
    bool exists = false; ///< there is a vacation fund
    bool moveAllowed = false; ///< today's correction does not exist
    bool attendanceAllows = false; ///< attendance is calculated
    bool retry = false; ///< the checks of the cycle before did not both succeed

    /// True when today's correction may be written.
    bool isWritable() const { return exists && moveAllowed && attendanceAllows; }
};

/// How a record differs from the last record of the same pid.
struct Differences {
    BalanceStep balance = BalanceStep::NoFund;
    bool changed = false; ///< any field differs, or the balance is compared
    bool registerState = false;
    bool employmentType = false;
    bool supervisor = false;
};

/// Compares a record with the last one of the same pid, null for a pid not seen since the worker
/// was made: then everything counts as changed. \a fund.retry and \a forced have the balance
/// compared although it is the same.
Differences differences(const MirovaRonRecord &record, const MirovaRonRecord *last,
                        const FundState &fund, bool forced);

/// What becomes of the person of a record that is changed or forced.
enum class PersonStep {
    Update, ///< the person is in the people cache
    Create,
    LeaveOut, ///< a person who has already left is never created
};
inline PersonStep personStep(bool isKnown, bool isActive)
{
    if (isKnown)
        return PersonStep::Update;
    return isActive ? PersonStep::Create : PersonStep::LeaveOut;
}

/// Whether the row of a known person is written.
enum class RowStep {
    Keep,
    WriteFields, ///< a field of the row differs
    WriteCodes, ///< no field differs, but the register state or employment type code has changed
};

/// \a updated is the record with its relationship state, \a known the database's view of the
/// person.
RowStep rowStep(const MirovaRonRecord &updated, const MirovaRonRecord &known,
                const Differences &differences);

/// True when calendar, start of the calendar or cost centre are not those of the database's view,
/// so that attendance is recalculated. False for a view without numbers or names.
bool movesElsewhere(const MirovaRonRecord &record, const MirovaRonRecord &known);

/// Takes into the database's view what a recalculation has brought in step.
void adopt(const MirovaRonRecord &record, MirovaRonRecord &known);

/// Whether the supervisor of a record is assigned.
enum class SupervisorStep {
    NotNamed,
    OtherEmploymentType, ///< people of this employment type have no supervisor
    SameAsLast, ///< the last record named the same
    Assign,
};
/// A person who has just been created gets the supervisor whatever the last record named.
SupervisorStep supervisorStep(const MirovaRonRecord &record, bool isNew,
                              const Differences &differences);

/// True when an active person is put into branch and calendar group. \a isHandled: the record is
/// changed or forced.
bool isPlaced(const MirovaRonRecord &record, bool isHandled, bool isWaiting);

} // namespace RecordDecisions
