#include "db/branchesrepository.h"

#include "tests/db/repositorytest.h"
#include "tests/support/logcapture.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <functional>

using Branches = BranchesRepository;
using Call = std::function<bool(Branches &)>;
Q_DECLARE_METATYPE(Call)

/// How a membership change reaches terminals and administrators.
///
/// Branch 2 has the people 21 and 22, the administrators 31 and 32 and the terminals 11 (active),
/// 12 (in a state of its own) and 13 (switched off). Branch 3 has person 21, administrator 31 and
/// terminal 14. Branch 4 has nothing. All terminals take people, and no person is registered in
/// one.
class TestBranchesPropagation : public RepositoryTest {
    Q_OBJECT

private Q_SLOTS:
    void lookupsReturnTheIdsOfABranch_data();
    void lookupsReturnTheIdsOfABranch();
    void idsAreReadIn32Bits();
    void theAdministratorsOfAPersonAreThoseOfAllItsBranches();
    void failedLookupsAreReportedAndEmpty_data();
    void failedLookupsAreReportedAndEmpty();
    void lookupsAreLoggedFromLevel1On();

    void peopleAreRegisteredInATerminalAndQueued();
    void peopleRegisteredAlreadyAreQueuedAgain();
    void theQueueGetsTheListAsItCame();
    void blanksAndRepeatedIdsStayInTheListOfATerminal();
    void repeatedPeopleAreGivenAndTakenAsOftenAsTheyCome();
    void anIdOf0IsATerminalOrAdministratorLikeAnyOther();
    void peopleWithoutANumberAreNotRegistered_data();
    void peopleWithoutANumberAreNotRegistered();
    void peopleAreRemovedFromATerminalAndQueued();
    void peopleWhoWereNotInATerminalAreQueuedAllTheSame();
    void peopleAreGivenToAnAdministrator();
    void peopleAreTakenFromAnAdministrator();
    void aPersonIsTakenFromAnAdministrator();
    void failedSingleTargetOperationsAreReported_data();
    void failedSingleTargetOperationsAreReported();
    void anEmptyListCannotBeRemoved_data();
    void anEmptyListCannotBeRemoved();
    void singleTargetRemovalsAreLoggedFromLevel1On();

    void peopleAreRegisteredInEveryTerminalThatIsNotSwitchedOff();
    void peopleAreRemovedFromEveryTerminalThatIsNotSwitchedOff();
    void aBranchWithoutTerminalsSucceedsAndQueuesNothing();
    void everyTerminalIsVisitedAfterAFailure();
    void peopleAreGivenToEveryAdministratorInOneStatement();
    void administratorIdsKeepTheir32BitsInTheTuples();
    void aBranchWithoutAdministratorsSucceedsWithoutAStatement();
    void givingNoPeopleToAdministratorsSucceedsWithoutAStatement();
    void aFailureToGivePeopleToAdministratorsIsReported();
    void peopleKeepAnAdministratorTheyHaveThroughAnotherBranch();
    void administratorsAreComparedIn32BitsAndNarrowedForTheRemoval();
    void aPersonWithoutANumberIsTreatedAsPerson0();
    void everyRemovalIsTriedAfterAFailure();
    void branchWideOperationsAreLoggedFromLevel1On();

    void addedPeopleReachTerminalsAndAdministrators();
    void deletedPeopleLeaveTerminalsAndAdministrators();
    void peopleSlotsUseOnlyTheIdsThatAreThere();
    void peopleSlotsKeepBlanksAndRepeatedIds();
    void peopleSlotsTakeAListOfBlanksForAnId();
    void peopleSlotsWithoutABranchOrIdsRunNoStatement_data();
    void peopleSlotsWithoutABranchOrIdsRunNoStatement();
    void administratorsFollowWhenTheTerminalsFail_data();
    void administratorsFollowWhenTheTerminalsFail();
    void aFailureOfTheAdministratorsIsReported_data();
    void aFailureOfTheAdministratorsIsReported();
    void failedLookupsPropagateNothing();
    void newTerminalsGetThePeopleOfTheBranch();
    void leavingTerminalsLoseThePeopleOfTheBranch();
    void newAdministratorsGetThePeopleOfTheBranch();
    void leavingAdministratorsLoseThePeopleOfTheBranchForGood();
    void slotsOfTerminalsAndAdministratorsTakeBranch0_data();
    void slotsOfTerminalsAndAdministratorsTakeBranch0();
    void slotsTakeTerminalsAndAdministratorsWithoutANumberForId0_data();
    void slotsTakeTerminalsAndAdministratorsWithoutANumberForId0();
    void slotsVisitARepeatedIdAsOftenAsItComes_data();
    void slotsVisitARepeatedIdAsOftenAsItComes();
    void slotsGoOnAfterAFailure_data();
    void slotsGoOnAfterAFailure();
    void newTerminalsAndAdministratorsOfAnEmptyBranchGetNoPeople();
    void removingNoPersonFails_data();
    void removingNoPersonFails();
    void slotCallsAreLoggedFromLevel1On();

    void additionsPropagateInsideTheCall();
    void removalsDoNotPropagateUnlessAskedFor();
    void aPersonMovedOutKeepsASharedAdministrator();
    void aFailedPropagationDoesNotFailTheChange();

    void aClosedConnectionFailsWithoutAnError();

protected Q_SLOTS:
    void init() override;

private:
    TableRows registered();
    TableRows handled();
    TableRows queue();

    struct Repo : Branches {
        explicit Repo(const TestBranchesPropagation &test, quint8 level = 0,
                      bool connectAdded = false, bool connectDeleted = false)
            : Branches(nullptr, connectAdded, connectDeleted)
        {
            debugLevel = level;
            setDB(test.m_connection);
        }
    };
};

namespace {

const QString kDoesNotExist = "' doesn't exist QMYSQL: Unable to execute query";

/// What the repository sends to register the people of `tuples` in terminal `tid`.
QStringList registering(unsigned int tid, const QString &tuples, const QString &uids)
{
    return {
        "INSERT INTO people_term (tid, uid) VALUES " + tuples
            + " ON DUPLICATE KEY UPDATE tid=VALUES(tid)",
        QStringLiteral("INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created,"
                       " flags) SELECT %1 tid, 'I' type, 'people_term' ref, 'uid' ref_col,"
                       " `uid` ref_id, UNIX_TIMESTAMP() created, 2 flags FROM people WHERE"
                       " status = 1 AND uid IN(%2)")
            .arg(tid)
            .arg(uids),
        QStringLiteral("Update `term` SET syn = syn | 2 WHERE status = 1 AND tid = %1").arg(tid)};
}

/// What the repository sends to remove people from terminal `tid`; the ids are once without and
/// once with a blank after each comma.
QStringList removing(unsigned int tid, const QString &uids, const QString &spacedUids)
{
    return {
        QStringLiteral("DELETE FROM people_term WHERE tid=%1  AND uid IN(%2)").arg(tid).arg(uids),
        QStringLiteral("INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created,"
                       " flags) SELECT %1 tid, 'D' type, 'people_term' ref, 'uid' ref_col,"
                       " `uid` ref_id, UNIX_TIMESTAMP() created, 2 flags FROM people WHERE"
                       " status = 1 AND uid IN(%2)")
            .arg(tid)
            .arg(spacedUids),
        QStringLiteral("Update `term` SET syn = syn | 2 WHERE status = 1 AND tid = %1").arg(tid)};
}

QString giving(const QString &tuples)
{
    return "INSERT INTO admins_people (aid, uid) VALUES " + tuples
        + " ON DUPLICATE KEY UPDATE uid=VALUES(uid)";
}

const QString kTermsOf2 = "SELECT tid FROM term WHERE status > 0 AND bid = 2";
const QString kAdminsOf2 = "SELECT aid FROM bradm WHERE bid = 2";
const QString kPeopleOf2 = "SELECT uid FROM brape WHERE bid = 2";
const QString kAdminsOf21 = "SELECT DISTINCT aid FROM bradm JOIN brape USING(bid) WHERE uid = 21";
const QString kAdminsOf22 = "SELECT DISTINCT aid FROM bradm JOIN brape USING(bid) WHERE uid = 22";

const QString kTermsFailed =
    "W BranchesRepository::slotAddedPeopleToBranch() - AddPeopleToTerms() FAILED!";
const QString kAdminsFailed =
    "W BranchesRepository::slotAddedPeopleToBranch() - AddPeopleToAdmins() FAILED!";

} // namespace

void TestBranchesPropagation::init()
{
    RepositoryTest::init();
    m_database.run("INSERT INTO people (uid, pid) VALUES (21, 21), (22, 22), (23, 23)");
    m_database.run("INSERT INTO brape (bid, uid) VALUES (2, 21), (2, 22), (3, 21)");
    m_database.run("INSERT INTO bradm (bid, aid) VALUES (2, 31), (2, 32), (3, 31)");
    m_database.run("INSERT INTO term (tid, bid, status, flags) VALUES (11, 2, 1, 2), (12, 2, 2, 2),"
                   " (13, 2, 0, 2), (14, 3, 1, 2)");
}

TableRows TestBranchesPropagation::registered()
{
    return m_database.rows("SELECT tid, uid FROM people_term ORDER BY tid, uid");
}

TableRows TestBranchesPropagation::handled()
{
    return m_database.rows("SELECT aid, uid FROM admins_people ORDER BY aid, uid");
}

TableRows TestBranchesPropagation::queue()
{
    return m_database.rows("SELECT tid, type, ref, ref_col, ref_id, flags FROM term_sync"
                           " ORDER BY tid, ref_id");
}

void TestBranchesPropagation::lookupsReturnTheIdsOfABranch_data()
{
    QTest::addColumn<QString>("lookup");
    QTest::addColumn<int>("bid");
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QVector<unsigned int>>("ids");
    using Ids = QVector<unsigned int>;
    QTest::newRow("terminals") << "terms" << 2 << kTermsOf2 << Ids({11, 12});
    QTest::newRow("no terminals") << "terms" << 65535
                                  << "SELECT tid FROM term WHERE status > 0 AND bid = 65535"
                                  << Ids();
    QTest::newRow("administrators") << "admins" << 2 << kAdminsOf2 << Ids({31, 32});
    QTest::newRow("no administrators")
        << "admins" << 4 << "SELECT aid FROM bradm WHERE bid = 4" << Ids();
    QTest::newRow("people") << "people" << 2 << kPeopleOf2 << Ids({21, 22});
    QTest::newRow("no people") << "people" << 4 << "SELECT uid FROM brape WHERE bid = 4" << Ids();
}

void TestBranchesPropagation::lookupsReturnTheIdsOfABranch()
{
    QFETCH(QString, lookup);
    QFETCH(int, bid);
    const Repo repo(*this);
    LogCapture log;
    QVector<unsigned int> ids = lookup == "terms" ? repo.getTids4Branch(ushort(bid))
        : lookup == "admins"                      ? repo.getAids4Branch(ushort(bid))
                                                  : repo.getUids4Branch(ushort(bid));
    std::sort(ids.begin(), ids.end());
    QTEST(ids, "ids");
    QTEST(m_database.statements().join("|"), "statement");
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::idsAreReadIn32Bits()
{
    m_database.run("INSERT INTO brape (bid, uid) VALUES (4, 4294967295)");
    QCOMPARE(Repo(*this).getUids4Branch(4), QVector<unsigned int>({4294967295u}));
}

void TestBranchesPropagation::theAdministratorsOfAPersonAreThoseOfAllItsBranches()
{
    m_database.run("INSERT INTO bradm (bid, aid) VALUES (3, 33), (4, 34)");
    LogCapture log;
    QCOMPARE(Repo(*this).getAids4Uid(21), QSet<unsigned int>({31, 32, 33}));
    QCOMPARE(m_database.statements(), QStringList(kAdminsOf21));
    QCOMPARE(Repo(*this).getAids4Uid(23), QSet<unsigned int>());
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::failedLookupsAreReportedAndEmpty_data()
{
    QTest::addColumn<Call>("isEmpty");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("message");
    QTest::newRow("terminals") << Call([](Branches &repo) {
        return repo.getTids4Branch(2).isEmpty();
    }) << "term"
                               << "BranchesRepository::getTids4Branch - ERROR: ";
    QTest::newRow("administrators")
        << Call([](Branches &repo) { return repo.getAids4Branch(2).isEmpty(); }) << "bradm"
        << "BranchesRepository::getAids4Branch - ERROR: ";
    QTest::newRow("people") << Call([](Branches &repo) { return repo.getUids4Branch(2).isEmpty(); })
                            << "brape"
                            << "BranchesRepository::getUids4Branch - ERROR: ";
    QTest::newRow("administrators of a person")
        << Call([](Branches &repo) { return repo.getAids4Uid(21).isEmpty(); }) << "bradm"
        << "BranchesRepository::getAids4Branch - ERROR: ";
}

void TestBranchesPropagation::failedLookupsAreReportedAndEmpty()
{
    QFETCH(Call, isEmpty);
    QFETCH(QString, table);
    QFETCH(QString, message);
    m_database.hideTable(table);
    Repo repo(*this);
    LogCapture log;
    QVERIFY(isEmpty(repo));
    QCOMPARE(log.lines(), QStringList("C " + message + "Table 'tepdb." + table + kDoesNotExist));
}

void TestBranchesPropagation::lookupsAreLoggedFromLevel1On()
{
    const Repo repo(*this, 1);
    LogCapture log;
    repo.getTids4Branch(65535);
    repo.getAids4Branch(0);
    repo.getUids4Branch(2);
    repo.getAids4Uid(4294967295u);
    QCOMPARE(log.lines(),
             QStringList({"I BranchesRepository::getTids4Branch(65535)",
                          "I BranchesRepository::getAids4Branch(0)",
                          "I BranchesRepository::getUids4Branch(2)",
                          "I BranchesRepository::getAids4Uid(4294967295)"}));
}

void TestBranchesPropagation::peopleAreRegisteredInATerminalAndQueued()
{
    LogCapture log;
    QVERIFY(Repo(*this, 1).addPeopleToTerm(11, {"21", "23"}));
    QCOMPARE(m_database.statements(), registering(11, "(11, 21),(11, 23)", "21, 23"));
    QCOMPARE(registered(), TableRows({{"11", "21"}, {"11", "23"}}));
    QCOMPARE(queue(),
             TableRows({{"11", "I", "people_term", "uid", "21", "2"},
                        {"11", "I", "people_term", "uid", "23", "2"}}));
    QCOMPARE(m_database.value("SELECT syn FROM term WHERE tid = 11").toInt(), 2);
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::peopleRegisteredAlreadyAreQueuedAgain()
{
    Repo repo(*this);
    QVERIFY(repo.addPeopleToTerm(11, {"21"}));
    QVERIFY(repo.addPeopleToTerm(11, {"21"}));
    QCOMPARE(registered(), TableRows({{"11", "21"}}));
    QCOMPARE(queue().size(), 2);
}

void TestBranchesPropagation::theQueueGetsTheListAsItCame()
{
    LogCapture log;
    QVERIFY(Repo(*this).addPeopleToTerm(11, {"0", "21", "no number"}));
    QCOMPARE(m_database.statements(), registering(11, "(11, 21)", "0, 21, no number").mid(0, 2));
    QCOMPARE(registered(), TableRows({{"11", "21"}}));
    QCOMPARE(log.lines().size(), 1);
    const QString line = log.lines().first();
    QVERIFY2(line.startsWith("C TermSyncRepository::addTermSyncPeople() ERROR: You have an error in"
                             " your SQL syntax;"),
             qPrintable(line));
}

void TestBranchesPropagation::blanksAndRepeatedIdsStayInTheListOfATerminal()
{
    const QStringList uids = {"21", "21", " 22"};
    LogCapture log;
    QVERIFY(Repo(*this).addPeopleToTerm(11, uids));
    QCOMPARE(m_database.statements(), registering(11, "(11, 21),(11, 21),(11, 22)", "21, 21,  22"));
    m_database.clearStatements();
    QVERIFY(Repo(*this).deletePeopleFromTerm(11, uids));
    QCOMPARE(m_database.statements(), removing(11, "21,21, 22", "21, 21,  22"));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::repeatedPeopleAreGivenAndTakenAsOftenAsTheyCome()
{
    Repo repo(*this);
    QVERIFY(repo.addPeopleToAdmin(31, {"21", "21"}));
    QVERIFY(repo.deletePeopleFromAdmin(31, QStringList({"21", "21", " 22"})));
    QVERIFY(repo.AddPeopleToAdmins(3, {"23", "23"}));
    QVERIFY(repo.deletePeopleFromAdmins(3, {"23", "23"}));
    const QString adminsOf3 = "SELECT aid FROM bradm WHERE bid = 3";
    const QString adminsOf23 =
        "SELECT DISTINCT aid FROM bradm JOIN brape USING(bid) WHERE uid = 23";
    const QString taking23 = "DELETE FROM admins_people WHERE aid=31  AND uid=23";
    QCOMPARE(m_database.statements(),
             QStringList({giving("(31, 21),(31, 21)"),
                          "DELETE FROM admins_people WHERE aid=31  AND uid IN(21,21, 22)",
                          adminsOf3, giving("(31, 23),(31, 23)"), adminsOf3, adminsOf23, taking23,
                          adminsOf23, taking23}));
}

void TestBranchesPropagation::anIdOf0IsATerminalOrAdministratorLikeAnyOther()
{
    Repo repo(*this);
    QVERIFY(repo.addPeopleToTerm(0, {"21"}));
    QVERIFY(repo.deletePeopleFromTerm(0, {"21"}));
    QVERIFY(repo.addPeopleToAdmin(0, {"21"}));
    QVERIFY(repo.deletePeopleFromAdmin(0, QStringList("21")));
    QVERIFY(repo.deletePeopleFromAdmin(0, 21u));
    QCOMPARE(m_database.statements(),
             registering(0, "(0, 21)", "21") + removing(0, "21", "21")
                 + QStringList({giving("(0, 21)"),
                                "DELETE FROM admins_people WHERE aid=0  AND uid IN(21)",
                                "DELETE FROM admins_people WHERE aid=0  AND uid=21"}));
}

void TestBranchesPropagation::peopleWithoutANumberAreNotRegistered_data()
{
    QTest::addColumn<QStringList>("uids");
    QTest::newRow("nobody") << QStringList();
    QTest::newRow("0") << QStringList("0");
    QTest::newRow("no numbers") << QStringList({"x", "", "-3", "1.5", "4294967296"});
}

void TestBranchesPropagation::peopleWithoutANumberAreNotRegistered()
{
    QFETCH(QStringList, uids);
    LogCapture log;
    QVERIFY(Repo(*this).addPeopleToTerm(11, uids));
    QVERIFY(Repo(*this).addPeopleToAdmin(31, uids));
    QCOMPARE(m_database.statements(), QStringList());
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::peopleAreRemovedFromATerminalAndQueued()
{
    m_database.run(
        "INSERT INTO people_term (tid, uid) VALUES (11, 21), (11, 22), (11, 23), (12, 21)");
    LogCapture log;
    QVERIFY(Repo(*this).deletePeopleFromTerm(11, {"21", "22"}));
    QCOMPARE(m_database.statements(), removing(11, "21,22", "21, 22"));
    QCOMPARE(registered(), TableRows({{"11", "23"}, {"12", "21"}}));
    QCOMPARE(queue(),
             TableRows({{"11", "D", "people_term", "uid", "21", "2"},
                        {"11", "D", "people_term", "uid", "22", "2"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::peopleWhoWereNotInATerminalAreQueuedAllTheSame()
{
    QVERIFY(Repo(*this).deletePeopleFromTerm(11, {"21"}));
    QCOMPARE(queue().size(), 1);
}

void TestBranchesPropagation::peopleAreGivenToAnAdministrator()
{
    m_database.run("INSERT INTO admins_people (aid, uid, request) VALUES (65535, 21, 1)");
    LogCapture log;
    QVERIFY(Repo(*this, 1).addPeopleToAdmin(65535, {"21", "x", "0", "22"}));
    QCOMPARE(m_database.statements(), QStringList(giving("(65535, 21),(65535, 22)")));
    QCOMPARE(m_database.rows("SELECT aid, uid, request FROM admins_people ORDER BY uid"),
             TableRows({{"65535", "21", "1"}, {"65535", "22", "0"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::peopleAreTakenFromAnAdministrator()
{
    m_database.run("INSERT INTO admins_people (aid, uid) VALUES (31, 21), (31, 22), (31, 23),"
                   " (32, 21)");
    LogCapture log;
    QVERIFY(Repo(*this).deletePeopleFromAdmin(31, QStringList({"21", "22"})));
    QCOMPARE(m_database.statements(),
             QStringList("DELETE FROM admins_people WHERE aid=31  AND uid IN(21,22)"));
    QCOMPARE(handled(), TableRows({{"31", "23"}, {"32", "21"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::aPersonIsTakenFromAnAdministrator()
{
    m_database.run("INSERT INTO admins_people (aid, uid) VALUES (31, 21), (31, 22), (32, 21)");
    LogCapture log;
    QVERIFY(Repo(*this).deletePeopleFromAdmin(31, 21u));
    QCOMPARE(m_database.statements(),
             QStringList("DELETE FROM admins_people WHERE aid=31  AND uid=21"));
    QCOMPARE(handled(), TableRows({{"31", "22"}, {"32", "21"}}));
    QVERIFY(Repo(*this).deletePeopleFromAdmin(31, 21u));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::failedSingleTargetOperationsAreReported_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("message");
    QTest::newRow("register") << Call([](Branches &repo) {
        return repo.addPeopleToTerm(11, {"21"});
    }) << "people_term"
                              << "BranchesRepository::AddPeopleToTerm - ERROR: ";
    QTest::newRow("remove") << Call([](Branches &repo) {
        return repo.deletePeopleFromTerm(11, {"21"});
    }) << "people_term"
                            << "BranchesRepository::deletePeopleFromTerm - ERROR: ";
    QTest::newRow("give") << Call([](Branches &repo) { return repo.addPeopleToAdmin(31, {"21"}); })
                          << "admins_people"
                          << "BranchesRepository::AddPeopleToAdmins - ERROR: ";
    QTest::newRow("take") << Call([](Branches &repo) {
        return repo.deletePeopleFromAdmin(31, QStringList("21"));
    }) << "admins_people"
                          << "BranchesRepository::deletePeopleFromAdmin - ERROR: ";
    QTest::newRow("take one") << Call([](Branches &repo) {
        return repo.deletePeopleFromAdmin(31, 21u);
    }) << "admins_people"
                              << "BranchesRepository::deletePeopleFromAdmin - ERROR: ";
}

void TestBranchesPropagation::failedSingleTargetOperationsAreReported()
{
    QFETCH(Call, call);
    QFETCH(QString, table);
    QFETCH(QString, message);
    m_database.hideTable(table);
    Repo repo(*this);
    LogCapture log;
    QVERIFY(!call(repo));
    QCOMPARE(log.lines(), QStringList("C " + message + "Table 'tepdb." + table + kDoesNotExist));
    QCOMPARE(m_database.statements().size(), 1);
    QCOMPARE(queue(), TableRows());
}

void TestBranchesPropagation::anEmptyListCannotBeRemoved_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("message");
    QTest::newRow("from a terminal")
        << Call([](Branches &repo) { return repo.deletePeopleFromTerm(11, {}); })
        << "DELETE FROM people_term WHERE tid=11  AND uid IN()"
        << "C BranchesRepository::deletePeopleFromTerm - ERROR: You have an error in your SQL";
    QTest::newRow("from an administrator")
        << Call([](Branches &repo) { return repo.deletePeopleFromAdmin(31, QStringList()); })
        << "DELETE FROM admins_people WHERE aid=31  AND uid IN()"
        << "C BranchesRepository::deletePeopleFromAdmin - ERROR: You have an error in your SQL";
}

void TestBranchesPropagation::anEmptyListCannotBeRemoved()
{
    QFETCH(Call, call);
    QFETCH(QString, statement);
    QFETCH(QString, message);
    Repo repo(*this);
    LogCapture log;
    QVERIFY(!call(repo));
    QCOMPARE(m_database.statements(), QStringList(statement));
    QCOMPARE(log.lines().size(), 1);
    QVERIFY2(log.lines().first().startsWith(message), qPrintable(log.lines().first()));
}

void TestBranchesPropagation::singleTargetRemovalsAreLoggedFromLevel1On()
{
    Repo repo(*this, 1);
    LogCapture log;
    repo.deletePeopleFromTerm(4294967295u, {"21", "22"});
    repo.deletePeopleFromAdmin(65535, QStringList({"21", "22"}));
    repo.deletePeopleFromAdmin(65535, 4294967295u);
    QCOMPARE(log.lines(),
             QStringList({"I BranchesRepository::deletePeopleFromTerm(4294967295, '21,22')",
                          "I BranchesRepository::deletePeopleFromAdmin(65535, '21,22')",
                          "I BranchesRepository::deletePeopleFromAdmin(aid: 65535, uid:"
                          " 4294967295)"}));
}

void TestBranchesPropagation::peopleAreRegisteredInEveryTerminalThatIsNotSwitchedOff()
{
    LogCapture log;
    QVERIFY(Repo(*this).AddPeopleToTerms(2, {"21", "23"}));
    QCOMPARE(m_database.statements(),
             QStringList(kTermsOf2) + registering(11, "(11, 21),(11, 23)", "21, 23")
                 + registering(12, "(12, 21),(12, 23)", "21, 23"));
    QCOMPARE(registered(), TableRows({{"11", "21"}, {"11", "23"}, {"12", "21"}, {"12", "23"}}));
    // The terminal in a state of its own is queued for, but the queue marks active ones only.
    QCOMPARE(queue().size(), 4);
    QCOMPARE(m_database.value("SELECT GROUP_CONCAT(syn ORDER BY tid) FROM term").toString(),
             QString("2,0,0,0"));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::peopleAreRemovedFromEveryTerminalThatIsNotSwitchedOff()
{
    m_database.run("INSERT INTO people_term (tid, uid) SELECT tid, uid FROM term, people");
    LogCapture log;
    QVERIFY(Repo(*this).deletePeopleFromTerms(2, {"21", "22"}));
    QCOMPARE(m_database.statements(),
             QStringList(kTermsOf2) + removing(11, "21,22", "21, 22")
                 + removing(12, "21,22", "21, 22"));
    QCOMPARE(registered(),
             TableRows({{"11", "23"},
                        {"12", "23"},
                        {"13", "21"},
                        {"13", "22"},
                        {"13", "23"},
                        {"14", "21"},
                        {"14", "22"},
                        {"14", "23"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::aBranchWithoutTerminalsSucceedsAndQueuesNothing()
{
    m_database.run("UPDATE term SET status = 0 WHERE bid = 3");
    QVERIFY(Repo(*this).AddPeopleToTerms(3, {"21"}));
    QVERIFY(Repo(*this).deletePeopleFromTerms(3, {"21"}));
    QVERIFY(Repo(*this).AddPeopleToTerms(4, {"21"}));
    QVERIFY(Repo(*this).deletePeopleFromTerms(4, {}));
    QCOMPARE(m_database.statements().size(), 4);
    QCOMPARE(queue(), TableRows());
}

void TestBranchesPropagation::everyTerminalIsVisitedAfterAFailure()
{
    m_database.refuse("INSERT", "people_term", "refused", "NEW.tid = 11");
    LogCapture log;
    QVERIFY(!Repo(*this).AddPeopleToTerms(2, {"21"}));
    QCOMPARE(registered(), TableRows({{"12", "21"}}));
    m_database.refuse("DELETE", "people_term", "refused", "OLD.tid = 11");
    m_database.allow("INSERT", "people_term");
    m_database.run("INSERT INTO people_term (tid, uid) VALUES (11, 21)");
    QVERIFY(!Repo(*this).deletePeopleFromTerms(2, {"21"}));
    QCOMPARE(registered(), TableRows({{"11", "21"}}));
    QCOMPARE(log.lines(),
             QStringList({"C BranchesRepository::AddPeopleToTerm - ERROR: refused QMYSQL: Unable to"
                          " execute query",
                          "C BranchesRepository::deletePeopleFromTerm - ERROR: refused QMYSQL:"
                          " Unable to execute query"}));
}

void TestBranchesPropagation::peopleAreGivenToEveryAdministratorInOneStatement()
{
    LogCapture log;
    QVERIFY(Repo(*this).AddPeopleToAdmins(2, {"21", "0", "x", "23"}));
    QCOMPARE(m_database.statements(),
             QStringList({kAdminsOf2, giving("(31, 21),(31, 23),(32, 21),(32, 23)")}));
    QCOMPARE(handled(), TableRows({{"31", "21"}, {"31", "23"}, {"32", "21"}, {"32", "23"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::administratorIdsKeepTheir32BitsInTheTuples()
{
    m_database.widenIds();
    m_database.run("INSERT INTO bradm (bid, aid) VALUES (4, 65537)");
    QVERIFY(Repo(*this).AddPeopleToAdmins(4, {"4294967295"}));
    QCOMPARE(m_database.statements().last(), giving("(65537, 4294967295)"));
    QCOMPARE(handled(), TableRows({{"65537", "4294967295"}}));
}

void TestBranchesPropagation::aBranchWithoutAdministratorsSucceedsWithoutAStatement()
{
    QVERIFY(Repo(*this).AddPeopleToAdmins(4, {"21"}));
    QCOMPARE(m_database.statements(), QStringList("SELECT aid FROM bradm WHERE bid = 4"));
}

void TestBranchesPropagation::givingNoPeopleToAdministratorsSucceedsWithoutAStatement()
{
    QVERIFY(Repo(*this).AddPeopleToAdmins(2, {"0", "x", ""}));
    QCOMPARE(m_database.statements(), QStringList(kAdminsOf2));
}

void TestBranchesPropagation::aFailureToGivePeopleToAdministratorsIsReported()
{
    m_database.hideTable("admins_people");
    LogCapture log;
    QVERIFY(!Repo(*this).AddPeopleToAdmins(2, {"21"}));
    QCOMPARE(log.lines(),
             QStringList("C BranchesRepository::AddPeopleToAdmins - ERROR: Table"
                         " 'tepdb.admins_people"
                         + kDoesNotExist));
}

void TestBranchesPropagation::peopleKeepAnAdministratorTheyHaveThroughAnotherBranch()
{
    m_database.run("INSERT INTO admins_people (aid, uid) SELECT aid, uid FROM bradm JOIN people"
                   " WHERE bradm.bid = 2");
    m_database.run("DELETE FROM brape WHERE bid = 2");
    LogCapture log;
    QVERIFY(Repo(*this).deletePeopleFromAdmins(2, {"21", "22"}));
    QCOMPARE(
        m_database.statements(),
        QStringList({kAdminsOf2, kAdminsOf21, "DELETE FROM admins_people WHERE aid=32  AND uid=21",
                     kAdminsOf22, "DELETE FROM admins_people WHERE aid=31  AND uid=22",
                     "DELETE FROM admins_people WHERE aid=32  AND uid=22"}));
    QCOMPARE(handled(), TableRows({{"31", "21"}, {"31", "23"}, {"32", "23"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::administratorsAreComparedIn32BitsAndNarrowedForTheRemoval()
{
    m_database.widenIds();
    m_database.run("INSERT INTO bradm (bid, aid) VALUES (4, 65567)"); // 65536 + 31
    m_database.run("INSERT INTO admins_people (aid, uid) VALUES (31, 21), (65567, 21)");
    QVERIFY(Repo(*this).deletePeopleFromAdmins(4, {"21"}));
    QCOMPARE(m_database.statements().last(),
             QString("DELETE FROM admins_people WHERE aid=31  AND uid=21"));
    QCOMPARE(handled(), TableRows({{"65567", "21"}}));
}

void TestBranchesPropagation::aPersonWithoutANumberIsTreatedAsPerson0()
{
    QVERIFY(Repo(*this).deletePeopleFromAdmins(3, {"nobody"}));
    QCOMPARE(m_database.statements(),
             QStringList({"SELECT aid FROM bradm WHERE bid = 3",
                          "SELECT DISTINCT aid FROM bradm JOIN brape USING(bid) WHERE uid = 0",
                          "DELETE FROM admins_people WHERE aid=31  AND uid=0"}));
}

void TestBranchesPropagation::everyRemovalIsTriedAfterAFailure()
{
    m_database.run("DELETE FROM brape");
    m_database.run("INSERT INTO admins_people (aid, uid) SELECT aid, uid FROM bradm JOIN people"
                   " WHERE bradm.bid = 2");
    m_database.refuse("DELETE", "admins_people", "refused", "OLD.uid = 21 AND OLD.aid = 31");
    LogCapture log;
    QVERIFY(!Repo(*this).deletePeopleFromAdmins(2, {"21", "22"}));
    QCOMPARE(handled(), TableRows({{"31", "21"}, {"31", "23"}, {"32", "23"}}));
    QCOMPARE(log.lines(),
             QStringList("C BranchesRepository::deletePeopleFromAdmin - ERROR: refused QMYSQL:"
                         " Unable to execute query"));
}

void TestBranchesPropagation::branchWideOperationsAreLoggedFromLevel1On()
{
    Repo repo(*this, 1);
    LogCapture log;
    repo.AddPeopleToTerms(4, {"21", "22"});
    repo.AddPeopleToAdmins(4, {"21", "22"});
    repo.deletePeopleFromTerms(4, {"21", "22"});
    repo.deletePeopleFromAdmins(4, {"21", "22"});
    QCOMPARE(log.lines(),
             QStringList({"I BranchesRepository::getTids4Branch(4)",
                          "I BranchesRepository::getAids4Branch(4)",
                          "I BranchesRepository::deletePeopleFromTerms(4, '21,22')",
                          "I BranchesRepository::getTids4Branch(4)",
                          "I BranchesRepository::deletePeopleFromAdmins(4, '21,22')",
                          "I BranchesRepository::getAids4Branch(4)",
                          "I BranchesRepository::getAids4Uid(21)",
                          "I BranchesRepository::getAids4Uid(22)"}));
}

void TestBranchesPropagation::addedPeopleReachTerminalsAndAdministrators()
{
    LogCapture log;
    QVERIFY(Repo(*this).slotAddedPeopleToBranch(2, "21,23"));
    QCOMPARE(m_database.statements(),
             QStringList(kTermsOf2) + registering(11, "(11, 21),(11, 23)", "21, 23")
                 + registering(12, "(12, 21),(12, 23)", "21, 23") + QStringList(kAdminsOf2)
                 + QStringList(giving("(31, 21),(31, 23),(32, 21),(32, 23)")));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::deletedPeopleLeaveTerminalsAndAdministrators()
{
    m_database.run("DELETE FROM brape WHERE bid = 2");
    LogCapture log;
    QVERIFY(Repo(*this).slotDeletedPeopleFromBranch(2, "21"));
    QCOMPARE(m_database.statements(),
             QStringList(kTermsOf2) + removing(11, "21", "21") + removing(12, "21", "21")
                 + QStringList({kAdminsOf2, kAdminsOf21,
                                "DELETE FROM admins_people WHERE aid=32  AND uid=21"}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::peopleSlotsUseOnlyTheIdsThatAreThere()
{
    LogCapture log;
    QVERIFY(Repo(*this).slotAddedPeopleToBranch(3, ",21,,23,"));
    QCOMPARE(
        m_database.statements(),
        QStringList("SELECT tid FROM term WHERE status > 0 AND bid = 3")
            + registering(14, "(14, 21),(14, 23)", "21, 23")
            + QStringList({"SELECT aid FROM bradm WHERE bid = 3", giving("(31, 21),(31, 23)")}));
    m_database.clearStatements();
    QVERIFY(Repo(*this).slotDeletedPeopleFromBranch(3, ",,21,"));
    QCOMPARE(m_database.statements().mid(1, 3), removing(14, "21", "21"));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::peopleSlotsKeepBlanksAndRepeatedIds()
{
    LogCapture log;
    QVERIFY(Repo(*this).slotAddedPeopleToBranch(3, "21,21, 23"));
    QCOMPARE(m_database.statements(),
             QStringList("SELECT tid FROM term WHERE status > 0 AND bid = 3")
                 + registering(14, "(14, 21),(14, 21),(14, 23)", "21, 21,  23")
                 + QStringList({"SELECT aid FROM bradm WHERE bid = 3",
                                giving("(31, 21),(31, 21),(31, 23)")}));
    m_database.clearStatements();
    QVERIFY(Repo(*this).slotDeletedPeopleFromBranch(3, "21,21, 23"));
    QCOMPARE(m_database.statements().mid(1, 3), removing(14, "21,21, 23", "21, 21,  23"));
    QCOMPARE(m_database.statements().count(kAdminsOf21), 2);
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::peopleSlotsTakeAListOfBlanksForAnId()
{
    LogCapture log;
    QVERIFY(Repo(*this).slotAddedPeopleToBranch(3, " "));
    QCOMPARE(m_database.statements(),
             QStringList({"SELECT tid FROM term WHERE status > 0 AND bid = 3",
                          "SELECT aid FROM bradm WHERE bid = 3"}));
    QCOMPARE(log.lines(), QStringList());
    m_database.clearStatements();
    QVERIFY(!Repo(*this).slotDeletedPeopleFromBranch(3, " "));
    QCOMPARE(m_database.statements().at(1),
             QString("DELETE FROM people_term WHERE tid=14  AND uid IN( )"));
    QCOMPARE(m_database.statements().last(),
             QString("DELETE FROM admins_people WHERE aid=31  AND uid=0"));
    QCOMPARE(log.lines().last(), kTermsFailed);
}

void TestBranchesPropagation::peopleSlotsWithoutABranchOrIdsRunNoStatement_data()
{
    QTest::addColumn<int>("bid");
    QTest::addColumn<QString>("uids");
    QTest::newRow("no branch") << 0 << "21";
    QTest::newRow("no ids") << 2 << "";
    QTest::newRow("commas only") << 2 << ",,";
}

void TestBranchesPropagation::peopleSlotsWithoutABranchOrIdsRunNoStatement()
{
    QFETCH(int, bid);
    QFETCH(QString, uids);
    LogCapture log;
    QVERIFY(!Repo(*this).slotAddedPeopleToBranch(ushort(bid), uids));
    QVERIFY(!Repo(*this).slotDeletedPeopleFromBranch(ushort(bid), uids));
    QCOMPARE(m_database.statements(), QStringList());
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::administratorsFollowWhenTheTerminalsFail_data()
{
    QTest::addColumn<bool>("added");
    QTest::addColumn<QString>("error");
    QTest::addColumn<TableRows>("handled");
    QTest::newRow("added") << true << "C BranchesRepository::AddPeopleToTerm - ERROR: "
                           << TableRows({{"31", "22"}, {"31", "23"}});
    QTest::newRow("deleted") << false << "C BranchesRepository::deletePeopleFromTerm - ERROR: "
                             << TableRows();
}

void TestBranchesPropagation::administratorsFollowWhenTheTerminalsFail()
{
    QFETCH(bool, added);
    QFETCH(QString, error);
    m_database.run("DELETE FROM brape");
    m_database.run("INSERT INTO admins_people (aid, uid) VALUES (31, 22)");
    m_database.hideTable("people_term");
    LogCapture log;
    QVERIFY(!(added ? Repo(*this).slotAddedPeopleToBranch(3, "23")
                    : Repo(*this).slotDeletedPeopleFromBranch(3, "22")));
    QCOMPARE(log.lines(),
             QStringList({error + "Table 'tepdb.people_term" + kDoesNotExist, kTermsFailed}));
    QTEST(handled(), "handled");
}

void TestBranchesPropagation::aFailureOfTheAdministratorsIsReported_data()
{
    QTest::addColumn<bool>("added");
    QTest::addColumn<QString>("error");
    QTest::newRow("added") << true << "C BranchesRepository::AddPeopleToAdmins - ERROR: ";
    QTest::newRow("deleted") << false << "C BranchesRepository::deletePeopleFromAdmin - ERROR: ";
}

void TestBranchesPropagation::aFailureOfTheAdministratorsIsReported()
{
    QFETCH(bool, added);
    QFETCH(QString, error);
    m_database.hideTable("admins_people");
    LogCapture log;
    QVERIFY(!(added ? Repo(*this).slotAddedPeopleToBranch(3, "23")
                    : Repo(*this).slotDeletedPeopleFromBranch(3, "23")));
    QCOMPARE(log.lines(),
             QStringList({error + "Table 'tepdb.admins_people" + kDoesNotExist, kAdminsFailed}));
    QCOMPARE(queue().size(), 1);
}

void TestBranchesPropagation::failedLookupsPropagateNothing()
{
    m_database.hideTable("term");
    m_database.hideTable("bradm");
    LogCapture log;
    QVERIFY(Repo(*this).slotAddedPeopleToBranch(2, "21"));
    QCOMPARE(m_database.statements(), QStringList({kTermsOf2, kAdminsOf2}));
    QCOMPARE(
        log.lines(),
        QStringList(
            {"C BranchesRepository::getTids4Branch - ERROR: Table 'tepdb.term" + kDoesNotExist,
             "C BranchesRepository::getAids4Branch - ERROR: Table 'tepdb.bradm" + kDoesNotExist}));
}

void TestBranchesPropagation::newTerminalsGetThePeopleOfTheBranch()
{
    LogCapture log;
    QVERIFY(Repo(*this).slotAddedBranchToTerms(2, ",13,,14"));
    QCOMPARE(m_database.statements(),
             QStringList(kPeopleOf2) + registering(13, "(13, 21),(13, 22)", "21, 22")
                 + registering(14, "(14, 21),(14, 22)", "21, 22"));
    QCOMPARE(registered(), TableRows({{"13", "21"}, {"13", "22"}, {"14", "21"}, {"14", "22"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::leavingTerminalsLoseThePeopleOfTheBranch()
{
    m_database.run("INSERT INTO people_term (tid, uid) SELECT tid, uid FROM term, people");
    LogCapture log;
    QVERIFY(Repo(*this).slotDeletedBranchFromTerms(2, "11, 12"));
    QCOMPARE(m_database.statements(),
             QStringList(kPeopleOf2) + removing(11, "21,22", "21, 22")
                 + removing(12, "21,22", "21, 22"));
    QCOMPARE(registered().mid(0, 2), TableRows({{"11", "23"}, {"12", "23"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::newAdministratorsGetThePeopleOfTheBranch()
{
    LogCapture log;
    QVERIFY(Repo(*this).slotAddedAdminsToBranch(2, "33,65537,"));
    QCOMPARE(m_database.statements(),
             QStringList({kPeopleOf2, giving("(33, 21),(33, 22)"), giving("(1, 21),(1, 22)")}));
    QCOMPARE(handled(), TableRows({{"1", "21"}, {"1", "22"}, {"33", "21"}, {"33", "22"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::leavingAdministratorsLoseThePeopleOfTheBranchForGood()
{
    m_database.run("INSERT INTO admins_people (aid, uid) VALUES (31, 21), (31, 23), (1, 22)");
    LogCapture log;
    QVERIFY(Repo(*this).slotDeletedAdminsFromBranch(2, "31,65537"));
    QCOMPARE(m_database.statements(),
             QStringList({kPeopleOf2, "DELETE FROM admins_people WHERE aid=31  AND uid IN(21,22)",
                          "DELETE FROM admins_people WHERE aid=1  AND uid IN(21,22)"}));
    // Person 21 also belongs to branch 3, which administrator 31 serves.
    QCOMPARE(handled(), TableRows({{"31", "23"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::slotsOfTerminalsAndAdministratorsTakeBranch0_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QStringList>("statements");
    QTest::newRow("new terminals")
        << Call([](Branches &repo) { return repo.slotAddedBranchToTerms(0, "13"); })
        << registering(13, "(13, 23)", "23");
    QTest::newRow("leaving terminals")
        << Call([](Branches &repo) { return repo.slotDeletedBranchFromTerms(0, "13"); })
        << removing(13, "23", "23");
    QTest::newRow("new administrators")
        << Call([](Branches &repo) { return repo.slotAddedAdminsToBranch(0, "33"); })
        << QStringList(giving("(33, 23)"));
    QTest::newRow("leaving administrators")
        << Call([](Branches &repo) { return repo.slotDeletedAdminsFromBranch(0, "33"); })
        << QStringList("DELETE FROM admins_people WHERE aid=33  AND uid IN(23)");
}

void TestBranchesPropagation::slotsOfTerminalsAndAdministratorsTakeBranch0()
{
    QFETCH(Call, call);
    QFETCH(QStringList, statements);
    m_database.run("INSERT INTO brape (bid, uid) VALUES (0, 23)");
    Repo repo(*this);
    LogCapture log;
    QVERIFY(call(repo));
    QCOMPARE(m_database.statements(),
             QStringList("SELECT uid FROM brape WHERE bid = 0") + statements);
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::slotsTakeTerminalsAndAdministratorsWithoutANumberForId0_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QStringList>("statements");
    QTest::newRow("new terminals")
        << Call([](Branches &repo) { return repo.slotAddedBranchToTerms(3, "0, ,x"); })
        << registering(0, "(0, 21)", "21");
    QTest::newRow("leaving terminals")
        << Call([](Branches &repo) { return repo.slotDeletedBranchFromTerms(3, "0, ,x"); })
        << removing(0, "21", "21");
    QTest::newRow("new administrators")
        << Call([](Branches &repo) { return repo.slotAddedAdminsToBranch(3, "0, ,65536"); })
        << QStringList(giving("(0, 21)"));
    QTest::newRow("leaving administrators")
        << Call([](Branches &repo) { return repo.slotDeletedAdminsFromBranch(3, "0, ,65536"); })
        << QStringList("DELETE FROM admins_people WHERE aid=0  AND uid IN(21)");
}

void TestBranchesPropagation::slotsTakeTerminalsAndAdministratorsWithoutANumberForId0()
{
    QFETCH(Call, call);
    QFETCH(QStringList, statements);
    Repo repo(*this);
    LogCapture log;
    QVERIFY(call(repo));
    QCOMPARE(m_database.statements(),
             QStringList("SELECT uid FROM brape WHERE bid = 3") + statements + statements
                 + statements);
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::slotsVisitARepeatedIdAsOftenAsItComes_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QStringList>("statements");
    QTest::newRow("new terminals")
        << Call([](Branches &repo) { return repo.slotAddedBranchToTerms(3, "13,13, 13"); })
        << registering(13, "(13, 21)", "21");
    QTest::newRow("leaving terminals")
        << Call([](Branches &repo) { return repo.slotDeletedBranchFromTerms(3, "13,13, 13"); })
        << removing(13, "21", "21");
    QTest::newRow("new administrators")
        << Call([](Branches &repo) { return repo.slotAddedAdminsToBranch(3, "33,33, 33"); })
        << QStringList(giving("(33, 21)"));
    QTest::newRow("leaving administrators")
        << Call([](Branches &repo) { return repo.slotDeletedAdminsFromBranch(3, "33,33, 33"); })
        << QStringList("DELETE FROM admins_people WHERE aid=33  AND uid IN(21)");
}

void TestBranchesPropagation::slotsVisitARepeatedIdAsOftenAsItComes()
{
    slotsTakeTerminalsAndAdministratorsWithoutANumberForId0();
}

void TestBranchesPropagation::slotsGoOnAfterAFailure_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("condition");
    QTest::addColumn<TableRows>("left");
    QTest::newRow("new terminals")
        << Call([](Branches &repo) { return repo.slotAddedBranchToTerms(3, "13,14,15"); })
        << "INSERT"
        << "people_term"
        << "NEW.tid = 14" << TableRows({{"12", "21"}, {"13", "21"}, {"15", "21"}});
    QTest::newRow("leaving terminals")
        << Call([](Branches &repo) { return repo.slotDeletedBranchFromTerms(3, "12,13"); })
        << "DELETE"
        << "people_term"
        << "OLD.tid = 12" << TableRows({{"12", "21"}});
    QTest::newRow("new administrators")
        << Call([](Branches &repo) { return repo.slotAddedAdminsToBranch(3, "13,14,15"); })
        << "INSERT"
        << "admins_people"
        << "NEW.aid = 14" << TableRows({{"12", "21"}, {"13", "21"}, {"15", "21"}});
    QTest::newRow("leaving administrators")
        << Call([](Branches &repo) { return repo.slotDeletedAdminsFromBranch(3, "12,13"); })
        << "DELETE"
        << "admins_people"
        << "OLD.aid = 12" << TableRows({{"12", "21"}});
}

void TestBranchesPropagation::slotsGoOnAfterAFailure()
{
    QFETCH(Call, call);
    QFETCH(QString, event);
    QFETCH(QString, table);
    QFETCH(QString, condition);
    m_database.run("INSERT INTO people_term (tid, uid) VALUES (12, 21), (13, 21)");
    m_database.run("INSERT INTO admins_people (aid, uid) VALUES (12, 21), (13, 21)");
    m_database.refuse(event, table, "refused", condition);
    Repo repo(*this);
    LogCapture log;
    QVERIFY(!call(repo));
    QCOMPARE(log.lines().size(), 1);
    QTEST(table == "people_term" ? registered() : handled(), "left");
}

void TestBranchesPropagation::newTerminalsAndAdministratorsOfAnEmptyBranchGetNoPeople()
{
    LogCapture log;
    QVERIFY(Repo(*this).slotAddedBranchToTerms(4, "11,12"));
    QVERIFY(Repo(*this).slotAddedAdminsToBranch(4, "31"));
    QVERIFY(Repo(*this).slotDeletedBranchFromTerms(4, ""));
    QCOMPARE(
        m_database.statements(),
        QStringList({"SELECT uid FROM brape WHERE bid = 4", "SELECT uid FROM brape WHERE bid = 4",
                     "SELECT uid FROM brape WHERE bid = 4"}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesPropagation::removingNoPersonFails_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("statement");
    QTest::newRow("from terminals")
        << Call([](Branches &repo) { return repo.slotDeletedBranchFromTerms(4, "11"); })
        << "DELETE FROM people_term WHERE tid=11  AND uid IN()";
    QTest::newRow("from administrators")
        << Call([](Branches &repo) { return repo.slotDeletedAdminsFromBranch(4, "31"); })
        << "DELETE FROM admins_people WHERE aid=31  AND uid IN()";
}

void TestBranchesPropagation::removingNoPersonFails()
{
    QFETCH(Call, call);
    QFETCH(QString, statement);
    Repo repo(*this);
    LogCapture log;
    QVERIFY(!call(repo));
    QCOMPARE(m_database.statements(),
             QStringList({"SELECT uid FROM brape WHERE bid = 4", statement}));
    QCOMPARE(log.lines().size(), 1);
    QVERIFY(log.lines().first().startsWith("C "));
    QCOMPARE(queue(), TableRows());
}

void TestBranchesPropagation::slotCallsAreLoggedFromLevel1On()
{
    Repo repo(*this, 1);
    LogCapture log;
    repo.slotAddedPeopleToBranch(0, "21,");
    repo.slotDeletedPeopleFromBranch(65535, ",");
    repo.slotAddedBranchToTerms(4, "");
    repo.slotDeletedBranchFromTerms(4, "");
    repo.slotAddedAdminsToBranch(4, "31");
    repo.slotDeletedAdminsFromBranch(4, ",");
    QCOMPARE(log.lines(),
             QStringList({"I BranchesRepository::slotAddedPeopleToBranch(0, '21,')",
                          "I BranchesRepository::slotDeletedPeopleFromBranch(65535, ',')",
                          "I BranchesRepository::slotAddedBranchToTerms(4, '')",
                          "I BranchesRepository::getUids4Branch(4)",
                          "I BranchesRepository::slotDeletedBranchFromTerms(4, '')",
                          "I BranchesRepository::getUids4Branch(4)",
                          "I BranchesRepository::slotAddedAdminsToBranch(4, '31')",
                          "I BranchesRepository::getUids4Branch(4)",
                          "I BranchesRepository::slotDeletedAdminsFromBranch(4, ',')",
                          "I BranchesRepository::getUids4Branch(4)"}));
}

void TestBranchesPropagation::additionsPropagateInsideTheCall()
{
    m_database.run("INSERT INTO admins (aid) VALUES (33)");
    Repo repo(*this, 1, true);
    LogCapture log;
    QVERIFY(repo.addPeopleToBranch(3, "23"));
    QCOMPARE(registered(), TableRows({{"14", "23"}}));
    QCOMPARE(handled(), TableRows({{"31", "23"}}));
    QCOMPARE(log.lines(),
             QStringList({"I BranchesRepository::addPeopleToBranch(3, '23')",
                          "I BranchesRepository::slotAddedPeopleToBranch(3, '23')",
                          "I BranchesRepository::getTids4Branch(3)",
                          "I BranchesRepository::getAids4Branch(3)"}));
    QVERIFY(repo.addBranchToTerms(3, "13"));
    QVERIFY(repo.addAdminsToBranch(3, "33"));
    QCOMPARE(registered(), TableRows({{"13", "21"}, {"13", "23"}, {"14", "23"}}));
    QCOMPARE(handled(), TableRows({{"31", "23"}, {"33", "21"}, {"33", "23"}}));
}

void TestBranchesPropagation::removalsDoNotPropagateUnlessAskedFor()
{
    m_database.run("INSERT INTO people_term (tid, uid) VALUES (11, 22), (14, 21)");
    m_database.run("INSERT INTO admins_people (aid, uid) VALUES (31, 21), (32, 22)");
    Repo silent(*this, 0, true, false);
    QVERIFY(silent.delPeopleFromBranch(3, "21"));
    QVERIFY(silent.delBranchFromTerms(3, "14"));
    QVERIFY(silent.delAdminsFromBranch(3, "31"));
    QCOMPARE(registered(), TableRows({{"11", "22"}, {"14", "21"}}));
    QCOMPARE(handled(), TableRows({{"31", "21"}, {"32", "22"}}));

    Repo propagating(*this, 0, false, true);
    QVERIFY(propagating.delPeopleFromBranch(2, "22"));
    QCOMPARE(registered(), TableRows({{"14", "21"}}));
    QCOMPARE(handled(), TableRows({{"31", "21"}}));
    m_database.run("INSERT INTO people_term (tid, uid) VALUES (11, 21)");
    QVERIFY(propagating.delBranchFromTerms(2, "11"));
    QVERIFY(propagating.delAdminsFromBranch(2, "31"));
    QCOMPARE(registered(), TableRows({{"14", "21"}}));
    QCOMPARE(handled(), TableRows());
}

void TestBranchesPropagation::aPersonMovedOutKeepsASharedAdministrator()
{
    m_database.run("INSERT INTO admins_people (aid, uid) VALUES (31, 21), (32, 21)");
    Repo repo(*this, 0, true, true);
    QVERIFY(repo.delPeopleFromBranch(2, "21"));
    QCOMPARE(handled(), TableRows({{"31", "21"}}));
}

void TestBranchesPropagation::aFailedPropagationDoesNotFailTheChange()
{
    m_database.hideTable("people_term");
    m_database.hideTable("admins_people");
    Repo repo(*this, 0, true);
    LogCapture log;
    QVERIFY(repo.addPeopleToBranch(3, "23"));
    QCOMPARE(m_database.value("SELECT COUNT(*) FROM brape WHERE bid = 3").toInt(), 2);
    QCOMPARE(log.lines(),
             QStringList({"C BranchesRepository::AddPeopleToTerm - ERROR: Table 'tepdb.people_term"
                              + kDoesNotExist,
                          kTermsFailed,
                          "C BranchesRepository::AddPeopleToAdmins - ERROR: Table"
                          " 'tepdb.admins_people"
                              + kDoesNotExist,
                          kAdminsFailed}));
}

void TestBranchesPropagation::aClosedConnectionFailsWithoutAnError()
{
    Repo repo(*this);
    m_connection.close();
    LogCapture log;
    QVERIFY(!repo.addPeopleToTerm(11, {"21"}));
    QVERIFY(!repo.deletePeopleFromTerm(11, {"21"}));
    QVERIFY(!repo.addPeopleToAdmin(31, {"21"}));
    QVERIFY(!repo.deletePeopleFromAdmin(31, QStringList("21")));
    QVERIFY(!repo.deletePeopleFromAdmin(31, 21u));
    QCOMPARE(repo.getUids4Branch(2), QVector<unsigned int>());
    QCOMPARE(log.lines().filter(QRegularExpression("^C")), QStringList());
}

QTEST_GUILESS_MAIN(TestBranchesPropagation)
#include "tst_branchespropagation.moc"
