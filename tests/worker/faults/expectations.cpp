#include "tests/worker/faults/expectations.h"

#include <QMap>

#include <algorithm>

namespace {

QString pidOf(const QString &uid)
{
    static const QMap<QString, QString> pids = {
        {"<uid>", "<pid>"}, {"1", "10011"}, {"4", "12341"}, {"5", "12351"}};
    return pids.value(uid);
}

Reaction reaction(const char *command, const char *own, const QStringList &further = {})
{
    return {wildcard(command), own, further};
}

QVector<Reaction> makeReactions()
{
    const QString notOpen = "W MHRWorker::checkSync() - database not open!";
    const QString noPam = "W MHRWorker::dbAddPerson(<number>.1) - addPersonIntoPam() FAILED!";
    const QString noBinding = "W MHRWorker::doSyncRecord(<number>.1 ";
    const QString noPlan = "W MHRWorker: can't add record '";
    const QString noRequest =
        "W MHRWorker::processNadOsCis() - (Re)Set Admin People Request FAilED!";
    // Qt's own warning when a prepared statement is lost with its connection.
    const QString noHandle = "W QMYSQLResult::cleanup: unable to free statement handle";
    const QString noFile = "W MHRWorker::loadAndParseData() - file '";
    return {
        // The tick.
        reaction("CONNECT", "C MHRWorker::dbCheckOpen() - SQL ERROR: ", {notOpen}),
        reaction("USE", "C MHRWorker::dbCheckOpen() - SQL ERROR: ", {notOpen}),
        reaction("SET NAMES *", ""),
        reaction("PREPARE SELECT ? + ?", ""),
        reaction("CLOSE", ""),
        reaction("QUIT", ""),
        // A flag that could not be read or reset forces the next tick, which finds no file.
        reaction("SELECT value FROM vars WHERE name='*",
                 "C TepDbSettings::variableGet - SQL ERROR: ", {noFile}),
        reaction("PREPARE INSERT INTO vars *", "C variableSet ERROR: \"", {noPam, noFile}),
        reaction("RESET", "C variableSet ERROR: \"", {noPam, noFile, noHandle}),
        reaction("EXECUTE INSERT INTO vars *", "C variableSet ERROR: \"",
                 {noPam, noFile, noHandle}),

        // The cycle.
        reaction("SELECT p.pid, *", "C MHRWorker::dbLoadPeople() - SQL ERROR [",
                 {"C MHRWorker: load people from TEPDB failed - synchronization terminated!"}),
        reaction("SELECT bid, number FROM branches *",
                 "C MHRWorker::dbLoadBranches() - SQL ERROR [", {"W MHRWorker: Branch '"}),
        reaction("SELECT fid FROM funds *", "C MHRWorker::checkDovolenkaFond() - SQL ERROR ["),

        // Vacation balance.
        reaction("SELECT COUNT(*) FROM funds_move *",
                 "C MHRWorker::dbCheckFundMove() - SQL ERROR ["),
        reaction("SELECT p.uid, calc, *", "C MHRWorker::dbCheckAttendance() - SQL ERROR ["),
        reaction("SELECT COUNT(*) FROM atten *", "C MHRWorker::dbCheckAttendance() - SQL ERROR ["),
        reaction("SELECT SUM(fm.value) * WHERE fm.day < *",
                 "C MHRWorker::loadFundStatusAndMove3() - SQL 1 ERROR [",
                 {"W MHRWorker::doSyncRecord() - loadFundStatusAndMove3(): not loaded correctly!"}),
        reaction("SELECT SUM(fm.value) * WHERE fm.type=3 *",
                 "C MHRWorker::loadFundStatusAndMove3() - SQL 2 ERROR [",
                 {"W MHRWorker::doSyncRecord() - loadFundStatusAndMove3(): not loaded correctly!"}),
        reaction("INSERT INTO funds_move *", "C MHRWorker::writeFundMove3() - SQL ERROR [",
                 {"W MHRWorker::doSyncRecord() - funds_move type (type=3, valeu="}),

        // People, payroll export and terminals.
        reaction("INSERT INTO people (*",
                 "C MHRWorker::dbAddPerson(<number>.1) - SQL ERROR: ", {noPlan}),
        reaction("SELECT name, value FROM vars *",
                 "C TepDbSettings::variableGetMultiple - SQL ERROR: ", {noPam}),
        reaction("SELECT uid FROM people WHERE pid=<pid>",
                 "W MHRWorker::dbAddPersonIntoPam(pid: <pid>, pamSettingsID: 1) - Unique person ID",
                 {noBinding}),
        reaction("INSERT INTO people_pam *",
                 "C MHRWorker::dbAddPersonIntoPam(pid: <pid>, pamSettingsID: 1) - SQL ERROR: ",
                 {noBinding}),
        reaction("UPDATE people SET pamId=*", "C MHRWorker::dbUpdatePerson("),
        reaction("SELECT uid FROM people WHERE pid=* LIMIT 1", "W MHRWorker::addTermSyncPerson("),
        reaction("INSERT INTO `term_sync` * 'people' ref,*",
                 "C MHRWorker::addTermSyncPerson() ERROR: "),
        reaction("CALL updateTermsSync*",
                 "C MHRWorker::addTermSyncPerson() - updateTermsSync() ERROR: "),

        // Supervisor.
        reaction("SELECT aid FROM admins *", "C MHRWorker::dbGetAidByOsCis() - SQL ERROR [",
                 {"W MHRWorker - admin s osobnym cislom "}),
        reaction("SELECT uid FROM people WHERE pid = *",
                 "C MHRWorker::dbGetUidByPid() - SQL ERROR [",
                 {"W MHRWorker - zamestnanec s osobnym cislom ", noPlan,
                  "W MHRWorker: User (employee) ID NOT found for pid "}),
        reaction("BEGIN WORK", ""),
        reaction("UPDATE admins_people *", "C MHRWorker::dbResetAdminPeopleRequest() - SQL ERROR [",
                 {noRequest}),
        reaction("INSERT INTO admins_people (aid, uid, request) *",
                 "C MHRWorker::dbSetAdminPeopleRequest() - SQL ERROR [", {noRequest}),
        reaction("COMMIT", ""),

        // Branch, calendar and recalculation.
        reaction("SELECT COUNT(*) FROM brape *",
                 "C MHRWorker::dbCheckPersonInBranch() - SQL ERROR ["),
        reaction("SELECT gid FROM branches *", "C MHRWorker::getGroupIdByCalendar() - SQL ERROR [",
                 {"W MHRWorker: Group ID NOT found for Branch "}),
        reaction("SELECT COUNT(*) FROM groups_plan *",
                 "C MHRWorker::dbCheckGroupsPlan() - SQL ERROR [", {noPlan}),
        reaction("INSERT INTO groups_plan *", "C GroupsPlanRepo::add - ERROR[", {noPlan}),
        reaction("INSERT INTO groups_month *", "C GroupsPlanRepo::updateGroupsMonth - ERROR["),
        reaction("UPDATE atten *", "C MHRWorker::dbChangeLastCalc() [UPDATE atten] - SQL ERROR ["),
        reaction("UPDATE people set *",
                 "C MHRWorker::dbChangeLastCalc() [UPDATE people] - SQL ERROR ["),

        // New members of a branch.
        reaction("INSERT INTO brape *", "C BranchesRepository::addPeopleToBranch - ERROR: "),
        reaction("SELECT tid FROM term *", "C BranchesRepository::getTids4Branch - ERROR: "),
        reaction("INSERT INTO people_term *", "C BranchesRepository::AddPeopleToTerm - ERROR: ",
                 {"W BranchesRepository::slotAddedPeopleToBranch() - AddPeopleToTerms() FAILED!"}),
        reaction("INSERT INTO `term_sync` * 'people_term' ref,*",
                 "C TermSyncRepository::addTermSyncPeople() ERROR: "),
        reaction("Update `term` SET *", "C TermSyncRepository::setTermSyn() ERROR: "),
        reaction("SELECT aid FROM bradm *", "C BranchesRepository::getAids4Branch - ERROR: "),
        reaction("INSERT INTO admins_people (aid, uid) *",
                 "C BranchesRepository::AddPeopleToAdmins - ERROR: ",
                 {"W BranchesRepository::slotAddedPeopleToBranch() - AddPeopleToAdmins() FAILED!"}),
    };
}

QVector<Difference> makeDifferences()
{
    const QString created = "Only the creation of a person does it, and the person is there now.";
    const QString written =
        "Terminals are notified of a person when the row is written. A row that is "
        "as the line says is not written again.";
    const QString again = "A new process counts everybody as changed and writes them once more.";
    const QString named = "A supervisor is assigned when a line names another one than before. "
                          "The same line does not.";
    const QString planned = "It follows when the plan gets the calendar, which is there now.";
    const QString joined = "Terminals and administrators of a branch get who joins it. The person "
                           "is a member now.";
    const QString twice = "A membership that cannot be looked up counts as none: the member joins "
                          "once more.";
    const QString membership = "SELECT COUNT(*) FROM brape WHERE bid = * (SELECT uid FROM people "
                               "WHERE pid = @ LIMIT 1);";
    const QString ofNew = "INSERT INTO admins_people (aid, uid, request) VALUES(2, <uid>, 1) *";
    const QString ofJana = "INSERT INTO admins_people (aid, uid, request) VALUES(2, 4, 1) *";
    return {
        {"vars name=exportPam.1.selPeople: value *,<pid> -> *,12361",
         {"EXECUTE INSERT INTO vars *selPeople*"},
         created},
        {"people_pam - uid=<uid> id=1", {"INSERT INTO people_pam *"}, created},
        {"vars name=exportPam.1.selPeople: value *,<pid> -> <pid>",
         {"SELECT value FROM vars WHERE name='exportPam.1.selPeople' LIMIT 1"},
         "A selection that cannot be read counts as empty. It is stored with the new person."},

        {"term_sync - tid=* type=U ref=people ref_col=uid ref_id=# *",
         {"INSERT INTO `term_sync` * 'people' ref, 'uid' ref_col, # ref_id,*"},
         written},
        {"term_sync + tid=* type=U ref=people ref_col=uid ref_id=# *",
         {"UPDATE people SET pamId=* WHERE pid=@"},
         "Each time the row is written, the terminals that hold the person by then are notified."},
        {"people uid=<uid>: edited 0 -> now",
         {"INSERT INTO people (*"},
         "A person who was created without the branch is given it as an edit."},
        {"term_sync + tid=* type=U ref=people ref_col=uid ref_id=# *", {newProcess()}, again},
        {"people uid=<uid>: edited 0 -> now", {newProcess()}, again},

        {"admins_people - aid=2 uid=<uid> request=1", {ofNew, "COMMIT"}, named},
        {"admins_people - aid=2 uid=4 request=1", {ofJana, "COMMIT"}, named},
        {"admins_people aid=1 uid=4: request 0 -> 1", {ofJana, "COMMIT"}, named},

        {"funds_move - type=3 * uid=4",
         {"INSERT INTO funds_move *, 2, 4) *"},
         "The same cycle marked attendance for recalculation. A balance is corrected only when "
         "that is done."},
        {"groups_month uid=5 *: gid 23 -> 12", {"INSERT INTO groups_month *uid=5 *"}, planned},
        {"atten uid=5 date=2025-03-*: ok -1 -> 1", {"UPDATE atten * uid =5"}, planned},
        {"people uid=5: lastCalc 2025-02-28 -> *", {"UPDATE people set lastCalc * uid=5"}, planned},

        {"people_term - tid=& uid=#", {"INSERT INTO people_term * (&, #)*"}, joined},
        {"term_sync - tid=& type=I ref=people_term ref_col=uid ref_id=# *",
         {"INSERT INTO `term_sync` * SELECT & tid, 'I' type, * IN(#);"},
         joined},
        {"term tid=&: syn 2 -> 0", {"Update `term` SET syn * tid = &"}, joined},
        {"admins_people - aid=* uid=# request=0",
         {"INSERT INTO admins_people (aid, uid) VALUES *, #)*"},
         joined},

        {"brape bid=1 uid=#: since * -> now", {membership}, twice},
        {"people_term + tid=2 uid=#", {membership}, twice},
        {"term_sync + tid=* type=I ref=people_term ref_col=uid ref_id=# *", {membership}, twice},
        {"admins_people + aid=1 uid=# request=0", {membership}, twice},
    };
}

} // namespace

QRegularExpression wildcard(const QString &pattern)
{
    QString expression = QRegularExpression::escape(pattern);
    expression.replace("\\*", ".*");
    expression.replace("\\#", "(?<uid>\\S+)");
    expression.replace("\\&", "(?<tid>\\d)");
    return QRegularExpression(QRegularExpression::anchoredPattern(expression));
}

const QVector<Reaction> &reactions()
{
    static const QVector<Reaction> all = makeReactions();
    return all;
}

const Reaction &reactionTo(const QString &command)
{
    for (const Reaction &reaction : reactions()) {
        if (reaction.command.match(command).hasMatch())
            return reaction;
    }
    qFatal("Nothing is said of the failure of: %s", qUtf8Printable(command));
}

bool Reaction::expects(const QString &line) const
{
    return (!own.isEmpty() && line.startsWith(own))
        || std::any_of(further.begin(), further.end(),
                       [&line](const QString &begin) { return line.startsWith(begin); });
}

bool Difference::explains(const QString &found, const QStringList &notCarriedOut) const
{
    const QRegularExpressionMatch match = wildcard(line).match(found);
    if (!match.hasMatch())
        return false;
    const QString uid = match.captured("uid");
    return std::any_of(causes.begin(), causes.end(), [&](QString cause) {
        cause.replace('#', uid).replace('@', pidOf(uid)).replace('&', match.captured("tid"));
        return !notCarriedOut.filter(wildcard(cause)).isEmpty();
    });
}

const QVector<Difference> &differences()
{
    static const QVector<Difference> all = makeDifferences();
    return all;
}

const QString &newProcess()
{
    static const QString text = "(a new process)";
    return text;
}
