// The texts about people, the payroll export and the terminals of a person.

#include "mirovahrctl/log/logtextgroups.h"

#include "worker/recordlog.h"

#include <iterator>

namespace {

constexpr LogText kPeople[] = {
    {"MHRWorker::dbLoadPeople()", "debug 2", Form::Whole,
     "The people are loaded from the database."},
    {"MHRWorker::dbLoadPeople() - SQL ERROR", "critical", Form::SqlError,
     QT_TRANSLATE_NOOP("Text", "The people could not be loaded from the database."),
     QT_TRANSLATE_NOOP("Text", "See the next text.")},
    {"MHRWorker: load people from TEPDB failed - synchronization terminated!",
     "critical",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text",
                       "The people could not be loaded from the database: everything that this "
                       "synchronisation has read is lost."),
     QT_TRANSLATE_NOOP("Text", "Provide the export again, and force."),
     {},
     Event::PeopleNotLoaded},
    {"MHRWorker::doSync() - stack count: %i",
     "debug 2",
     Form::Whole,
     "So many usable lines.",
     "",
     {},
     Event::RecordsCounted},
    {"MHRWorker::doSyncRecord(%s)",
     "debug 3",
     Form::Whole,
     "A record is handled.",
     "",
     {Role::Person},
     Event::RecordBegun},
    {"MHRWorker::dbGetUidByPid(%u)", "debug 2", Form::Whole, "The uid of a person is looked up."},
    {"MHRWorker::dbGetUidByPid() - SQL ERROR", "critical", Form::SqlError,
     QT_TRANSLATE_NOOP("Text",
                       "The uid of a person could not be looked up: the person's later steps in "
                       "this cycle fail."),
     QT_TRANSLATE_NOOP("Text", "Force, when the cause is mended.")},
    {"MHRWorker::dbCheckPerson(%s)", "debug 2", Form::Whole,
     "Is the person there? For other components of the server."},
    {"MHRWorker::dbCheckPerson() - SQL ERROR", "critical", Form::SqlError,
     QT_TRANSLATE_NOOP("Text",
                       "It could not be looked up whether a person is there (other components)."),
     QT_TRANSLATE_NOOP("Text", "Look at the error of the database.")},
    {"MHRWorker::dbAddPerson(%s)",
     "debug 1",
     Form::Whole,
     "A person is created.",
     "",
     {},
     Event::Create},
    {"MHRWorker::dbAddPerson(%s) - Testing mode is active, person not really add!",
     "warning 1",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text", "The person would be created without test mode."),
     "",
     {Role::PayrollId},
     Event::NotCreated},
    {"MHRWorker::dbAddPerson(%s) - SQL ERROR: %s",
     "critical",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text", "The person was not created, and is not tried again by itself."),
     QT_TRANSLATE_NOOP("Text", "Mend the line, or force when the cause is mended."),
     {Role::PayrollId},
     Event::NotCreated},
    {RecordLog::kPayrollExportFailed,
     "warning",
     Form::Whole,
     QT_TRANSLATE_NOOP(
         "Text",
         "The person was created, but is not in the payroll export's selection: there is none or "
         "more than one exportPam.N.active, or it could not be written."),
     QT_TRANSLATE_NOOP("Text",
                       "When there is one, mend it with mirovahrctl drift; sites without such an "
                       "export ignore it."),
     {Role::PayrollId}},
    {"MHRWorker::dbUpdatePerson(%s)",
     "debug 1",
     Form::Whole,
     "A person is updated.",
     "",
     {},
     Event::Update},
    {"MHRWorker::dbUpdatePerson(%s) - Testing mode is active, person not really update!",
     "warning 1",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text", "The person would be updated without test mode."),
     "",
     {Role::PayrollId},
     Event::NotUpdated},
    {"MHRWorker::dbUpdatePerson(%s) - SQL ERROR: %s",
     "critical",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text", "The person was not updated, and is not tried again by itself."),
     QT_TRANSLATE_NOOP("Text", "Mend the line, or force when the cause is mended."),
     {Role::PayrollId},
     Event::NotUpdated},
};

constexpr LogText kPayrollAndTerminals[] = {
    {"MHRWorker::addPersonIntoPam(%u)", "debug 2", Form::Whole,
     "A new person joins the payroll export's selection."},
    {"MHRWorker::dbAddPersonIntoPam(pid: %u, pamSettingsID: %u)", "debug 1", Form::Whole,
     "A new person gets a payroll setting."},
    {"MHRWorker::dbAddPersonIntoPam(pid: %u, pamSettingsID: %u) - Testing mode is active, person "
     "not really add into PaM!",
     "warning 1",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text", "The person would get a payroll setting without test mode."),
     "",
     {Role::Pid}},
    {"MHRWorker::dbAddPersonIntoPam(pid: %u, pamSettingsID: %u) - Unique person ID ([people].uid) "
     "not found!",
     "warning 1",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text", "The person just created is not found."),
     QT_TRANSLATE_NOOP("Text", "Do reads go to a replica? Enter the payroll setting by hand."),
     {Role::Pid}},
    {"MHRWorker::dbAddPersonIntoPam(pid: %u, pamSettingsID: %u) - SQL ERROR: %s",
     "critical",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text", "The payroll setting of a new person was not written."),
     QT_TRANSLATE_NOOP("Text", "Mend it with mirovahrctl drift."),
     {Role::Pid}},
    {RecordLog::kPayrollSettingsFailed,
     "warning",
     Form::Whole,
     QT_TRANSLATE_NOOP(
         "Text", "The new person has no payroll setting, or somebody else wrote the same first."),
     QT_TRANSLATE_NOOP("Text", "mirovahrctl drift says which, and mends it."),
     {Role::Person}},
    {"MHRWorker::addTermSyncPerson(%u, %s, %s)", "debug 2", Form::Whole,
     "A changed person is queued for the terminals."},
    {"MHRWorker::addTermSyncPerson(%u) - uid NOT selected from DB!",
     "warning",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text",
                       "An updated person is not found, so the terminals do not learn of the "
                       "change: reads go to a replica, or the row went meanwhile."),
     QT_TRANSLATE_NOOP("Text", "Send the person to the terminals."),
     {Role::Pid}},
    {"MHRWorker::addTermSyncPerson() ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP(
         "Text", "The queue of the terminals was not written: they do not learn of the change."),
     QT_TRANSLATE_NOOP("Text", "Send the people to the terminals.")},
    {"MHRWorker::addTermSyncPerson() - updateTermsSync() ERROR:", "critical", Form::MessageFollows,
     QT_TRANSLATE_NOOP("Text", "The change is queued, but the terminals are not notified."),
     QT_TRANSLATE_NOOP("Text", "Send the people to the terminals.")},
};

} // namespace

LogTextGroup LogTextGroups::people()
{
    return {"People", {std::begin(kPeople), std::end(kPeople)}};
}

LogTextGroup LogTextGroups::payrollAndTerminals()
{
    return {"Payroll and terminals",
            {std::begin(kPayrollAndTerminals), std::end(kPayrollAndTerminals)}};
}
