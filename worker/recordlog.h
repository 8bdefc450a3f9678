#pragma once

/// The warnings about one record that `mirovahrctl explain` quotes, as formats of printf(). The
/// texts are fixed: sites filter their logs by them.
namespace RecordLog {

inline constexpr char kPayrollSettingsFailed[] =
    "MHRWorker::doSyncRecord(%s) - dbAddPersonIntoPam(%u, %u) FAILED!";

inline constexpr char kPayrollExportFailed[] =
    "MHRWorker::dbAddPerson(%s) - addPersonIntoPam() FAILED!";

inline constexpr char kMoveNotWritten[] = "MHRWorker::doSyncRecord() - funds_move type (type=3, "
                                          "valeu=%i) not writed for uid %u (pid: %u)";

inline constexpr char kAdministratorNotFound[] =
    "MHRWorker - admin s osobnym cislom %u nebol najdeny!";

inline constexpr char kPersonNotFound[] =
    "MHRWorker - zamestnanec s osobnym cislom %u nebol najdeny!";

inline constexpr char kBranchNotFound[] = "MHRWorker: Branch '%u' NOT FOUND for employee: '%s'";

inline constexpr char kGroupNotFound[] =
    "MHRWorker: Group ID NOT found for Branch %u and calendar %u [employee: '%s']!";

inline constexpr char kPlanNotAdded[] = "MHRWorker: can't add record '%s' into [groups_plan]!";

inline constexpr char kRecalculationLost[] =
    "MHRWorker: User (employee) ID NOT found for pid (Personal ID) %u [employee: '%s'] - lastCalc "
    "not changed (manual recalculation is needed)!";

} // namespace RecordLog
