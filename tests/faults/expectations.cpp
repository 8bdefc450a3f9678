#include "tests/faults/expectations.h"

namespace {

Reaction reaction(const char *command, const char *own, const QStringList &further = {})
{
    return {QRegularExpression(QString("^") + command), own, further};
}

QVector<Reaction> makeReactions()
{
    const QString noPam = "W MHRWorker::dbAddPerson(<number>.1) - addPersonIntoPam() FAILED!";
    const QString noBinding = "W MHRWorker::doSyncRecord(<number>.1 ";
    const QString noPlan = "W MHRWorker: can't add record '";
    const QString noRequest =
        "W MHRWorker::processNadOsCis() - (Re)Set Admin People Request FAilED!";
    const QString noFile = "W MHRWorker::loadAndParseData() - file '";
    return {
        // The tick.
        reaction("CONNECT$", "C MHRWorker::dbCheckOpen() - SQL ERROR: ",
                 {"W MHRWorker::checkSync() - database not open!"}),
        reaction("SET NAMES ", ""),
        reaction("PREPARE SELECT \\? \\+ \\?$", ""),
        reaction("USE$", ""),
        reaction("RESET$", ""),
        reaction("CLOSE$", ""),
        reaction("QUIT$", ""),
        reaction("SELECT value FROM vars WHERE name='", "C TepDbSettings::variableGet - SQL ERROR: "),
        // A flag that could not be taken back forces the next tick, too, which finds no file.
        reaction("(PREPARE|EXECUTE) INSERT INTO vars ", "C variableSet ERROR: \"", {noPam, noFile}),

        // The cycle.
        reaction("SELECT p.pid, ", "C MHRWorker::dbLoadPeople() - SQL ERROR [",
                 {"C MHRWorker: load people from TEPDB failed - synchronization terminated!"}),
        reaction("SELECT bid, number FROM branches ",
                 "C MHRWorker::dbLoadBranches() - SQL ERROR [", {"W MHRWorker: Branch '"}),
        reaction("SELECT fid FROM funds ", "C MHRWorker::checkDovolenkaFond() - SQL ERROR ["),

        // Vacation balance.
        reaction("SELECT COUNT\\(\\*\\) FROM funds_move ",
                 "C MHRWorker::dbCheckFundMove() - SQL ERROR ["),
        reaction("SELECT p.uid, calc, ", "C MHRWorker::dbCheckAttendance() - SQL ERROR ["),
        reaction("SELECT COUNT\\(\\*\\) FROM atten ",
                 "C MHRWorker::dbCheckAttendance() - SQL ERROR ["),
        reaction("SELECT SUM\\(fm.value\\) .* WHERE fm.day < ",
                 "C MHRWorker::loadFundStatusAndMove3() - SQL 1 ERROR [",
                 {"W MHRWorker::doSyncRecord() - loadFundStatusAndMove3(): not loaded correctly!"}),
        reaction("SELECT SUM\\(fm.value\\) .* WHERE fm.type=3 ",
                 "C MHRWorker::loadFundStatusAndMove3() - SQL 2 ERROR [",
                 {"W MHRWorker::doSyncRecord() - loadFundStatusAndMove3(): not loaded correctly!"}),
        reaction("INSERT INTO funds_move ", "C MHRWorker::writeFundMove3() - SQL ERROR [",
                 {"W MHRWorker::doSyncRecord() - funds_move type (type=3, valeu="}),

        // People, payroll export and terminals.
        reaction("INSERT INTO people \\(", "C MHRWorker::dbAddPerson(<number>.1) - SQL ERROR: ",
                 {noPlan}),
        reaction("SELECT name, value FROM vars ",
                 "C TepDbSettings::variableGetMultiple - SQL ERROR: ", {noPam}),
        reaction("SELECT uid FROM people WHERE pid=<pid>$",
                 "W MHRWorker::dbAddPersonIntoPam(pid: <pid>, pamSettingsID: 1) - Unique person ID",
                 {noBinding}),
        reaction("INSERT INTO people_pam ",
                 "C MHRWorker::dbAddPersonIntoPam(pid: <pid>, pamSettingsID: 1) - SQL ERROR: ",
                 {noBinding}),
        reaction("UPDATE people SET pamId=", "C MHRWorker::dbUpdatePerson("),
        reaction("SELECT uid FROM people WHERE pid=\\d+ LIMIT 1$",
                 "W MHRWorker::addTermSyncPerson("),
        reaction("INSERT INTO `term_sync` .* 'people' ref,",
                 "C MHRWorker::addTermSyncPerson() ERROR: "),
        reaction("CALL updateTermsSync",
                 "C MHRWorker::addTermSyncPerson() - updateTermsSync() ERROR: "),

        // Supervisor.
        reaction("SELECT aid FROM admins ", "C MHRWorker::dbGetAidByOsCis() - SQL ERROR [",
                 {"W MHRWorker - admin s osobnym cislom "}),
        reaction("SELECT uid FROM people WHERE pid = ", "C MHRWorker::dbGetUidByPid() - SQL ERROR [",
                 {"W MHRWorker - zamestnanec s osobnym cislom ", noPlan,
                  "W MHRWorker: User (employee) ID NOT found for pid "}),
        reaction("BEGIN WORK$", ""),
        reaction("UPDATE admins_people ",
                 "C MHRWorker::dbResetAdminPeopleRequest() - SQL ERROR [", {noRequest}),
        reaction("INSERT INTO admins_people \\(aid, uid, request\\) ",
                 "C MHRWorker::dbSetAdminPeopleRequest() - SQL ERROR [", {noRequest}),
        reaction("COMMIT$", ""),

        // Branch, calendar and recalculation.
        reaction("SELECT COUNT\\(\\*\\) FROM brape ",
                 "C MHRWorker::dbCheckPersonInBranch() - SQL ERROR ["),
        reaction("SELECT gid FROM branches ", "C MHRWorker::getGroupIdByCalendar() - SQL ERROR [",
                 {"W MHRWorker: Group ID NOT found for Branch "}),
        reaction("SELECT COUNT\\(\\*\\) FROM groups_plan ",
                 "C MHRWorker::dbCheckGroupsPlan() - SQL ERROR [", {noPlan}),
        reaction("INSERT INTO groups_plan ", "C GroupsPlanRepo::add - ERROR[", {noPlan}),
        reaction("INSERT INTO groups_month ", "C GroupsPlanRepo::updateGroupsMonth - ERROR["),
        reaction("UPDATE atten ", "C MHRWorker::dbChangeLastCalc() [UPDATE atten] - SQL ERROR ["),
        reaction("UPDATE people set ",
                 "C MHRWorker::dbChangeLastCalc() [UPDATE people] - SQL ERROR ["),

        // New members of a branch.
        reaction("INSERT INTO brape ", "C BranchesRepository::addPeopleToBranch - ERROR: "),
        reaction("SELECT tid FROM term ", "C BranchesRepository::getTids4Branch - ERROR: "),
        reaction("INSERT INTO people_term ", "C BranchesRepository::AddPeopleToTerm - ERROR: ",
                 {"W BranchesRepository::slotAddedPeopleToBranch() - AddPeopleToTerms() FAILED!"}),
        reaction("INSERT INTO `term_sync` .* 'people_term' ref,",
                 "C TermSyncRepository::addTermSyncPeople() ERROR: "),
        reaction("Update `term` SET ", "C TermSyncRepository::setTermSyn() ERROR: "),
        reaction("SELECT aid FROM bradm ", "C BranchesRepository::getAids4Branch - ERROR: "),
        reaction("INSERT INTO admins_people \\(aid, uid\\) ",
                 "C BranchesRepository::AddPeopleToAdmins - ERROR: ",
                 {"W BranchesRepository::slotAddedPeopleToBranch() - AddPeopleToAdmins() FAILED!"}),
    };
}

QVector<Difference> makeDifferences()
{
    return {};
}

} // namespace

const QVector<Reaction> &reactions()
{
    static const QVector<Reaction> all = makeReactions();
    return all;
}

Reaction reactionTo(const QString &command)
{
    for (const Reaction &reaction : reactions()) {
        if (reaction.command.match(command).hasMatch())
            return reaction;
    }
    qFatal("Nothing is said of the failure of: %s", qUtf8Printable(command));
}

const QVector<Difference> &differences()
{
    static const QVector<Difference> all = makeDifferences();
    return all;
}
