#include "db/branchesrepository.h"

#include "db/termsyncrepository.h"
#include "tests/db/repositorytest.h"
#include "tests/support/logcapture.h"

#include <QMetaMethod>
#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using Branches = BranchesRepository;
using Signal = void (Branches::*)(ushort, const QString &);
using Change = bool (Branches::*)(ushort, const QString &);
Q_DECLARE_METATYPE(Signal)
Q_DECLARE_METATYPE(Change)

/// Branches, their members and their triples. tst_branchespropagation tests what else a membership
/// change does.
class TestBranchesRepository : public RepositoryTest {
    Q_OBJECT

private Q_SLOTS:
    void signalsAndSlotsComeInTheirOrder();
    void aNewRepositoryIsSilentAndOwnsItsTerminalQueue();
    void setDBAlsoReachesTheTerminalQueue();
    void signalsAreConnectedAsAskedFor_data();
    void signalsAreConnectedAsAskedFor();

    void addBranchInsertsEveryColumn();
    void addBranchWritesNullForWhatABranchHasNot();
    void aDayIsWrittenWhenEitherHourIsSet_data();
    void aDayIsWrittenWhenEitherHourIsSet();
    void addBranchWithoutANameRunsNoStatement();
    void aNameOfBlanksIsAName();
    void addBranchReportsAFailedStatement();
    void addBranchReturnsTheLow16BitsOfTheId_data();
    void addBranchReturnsTheLow16BitsOfTheId();
    void aQuoteInABranchsNameBreaksTheStatement();
    void placeholdersInTextsAreFilledByLaterValues();

    void updateBranchWritesEveryColumn();
    void updateBranchWritesNullForWhatABranchHasNot();
    void updateBranchDoesNotLookAtTheName();
    void updateBranchReturnsTheChangedRows_data();
    void updateBranchReturnsTheChangedRows();
    void updateBranchReportsAFailedStatement();

    void saveBranchInsertsABranchWithoutAnId();
    void saveBranchFailsWhenTheInsertFails();
    void saveBranchUpdatesABranchWithAnId();
    void saveBranchIsFalseWhenTheUpdateChangesNothing();
    void saveBranchIsTrueWhenTheUpdateFails();
    void deleteBranchTouchesNothing();

    void membershipChangesSendTheirStatementAndSignal_data();
    void membershipChangesSendTheirStatementAndSignal();
    void membershipChangesWithoutABranchOrIdsRunNoStatement_data();
    void membershipChangesWithoutABranchOrIdsRunNoStatement();
    void membershipChangesThatAffectNoRowAnnounceNothing_data();
    void membershipChangesThatAffectNoRowAnnounceNothing();
    void membershipChangesSendAndAnnounceTheListAsItCame_data();
    void membershipChangesSendAndAnnounceTheListAsItCame();
    void aListOfBlanksIsSentAndFails_data();
    void aListOfBlanksIsSentAndFails();
    void failedMembershipChangesAreReported_data();
    void failedMembershipChangesAreReported();
    void membershipCallsAreLoggedFromLevel1On_data();
    void membershipCallsAreLoggedFromLevel1On();

    void aPersonInTheBranchGetsANewTimeOfJoining();
    void onlyKnownPeopleJoin();
    void terminalsLeaveWhateverBranchTheyHad();
    void anAdministratorMayServeSeveralBranches();
    void aSectionMovesToTheNewBranch();
    void sectionsLeaveAlsoWhenTheirTriplesStay();
    void deletedTriplesStayDeletedWhenTheSectionsStay();
    void sectionsThatWereNotThereAnnounceNothingThoughTriplesGo();

    void triplesHaveALogText();
    void addBASStoresATriple();
    void addBASOfAStoredTripleSucceeds();
    void deleteBASDeletesExactlyTheTriple();
    void deleteBASOfAMissingTripleSucceeds();
    void addBASStoresAListAsABatch();
    void deleteBASDeletesAListAsABatch();
    void repeatedTriplesAreExecutedAsOftenAsTheyCome();
    void textsWithoutThreePartsAreSkipped();
    void partsThatAreNoNumbersCountAs0();
    void anEmptyBatchExecutesNothingAndSucceeds_data();
    void anEmptyBatchExecutesNothingAndSucceeds();
    void tripleFailuresAreReported_data();
    void tripleFailuresAreReported();
    void aFailingTripleEndsItsBatch();
    void tripleCallsAreLoggedFromLevel1On();

    void errorTextsAreLoggedInUtf8();
    void aClosedConnectionFailsWithoutAnError();

private:
    TableRows branches();
    TableRows columnsOf(const QString &table);
    TableRows triples();
    void fillTables();

    struct Repo : BranchesRepository {
        explicit Repo(const TestBranchesRepository &test, quint8 level = 0)
            : BranchesRepository(nullptr, false, false)
        {
            debugLevel = level;
            setDB(test.m_connection);
        }
    };
};

namespace {

const Signal kSignals[] = {
    &Branches::sigAddedPeopleToBranch,   &Branches::sigDeletedPeopleFromBranch,
    &Branches::sigAddedBranchToTerms,    &Branches::sigDeletedBranchFromTerms,
    &Branches::sigAddedAdminsToBranch,   &Branches::sigDeletedAdminsFromBranch,
    &Branches::sigAddedSectionsToBranch, &Branches::sigDeletedSectionsFromBranch};

const QString kDoesNotExist = "' doesn't exist QMYSQL: Unable to execute query";

BranchRecord fullBranch()
{
    BranchRecord branch;
    branch.bid = 3;
    branch.number = 4294967295u;
    branch.name = "Sklad";
    branch.address = "Dlhá 1";
    branch.note = "nový";
    branch.wh1b = 101;
    branch.wh1e = 102;
    branch.wh2b = 201;
    branch.wh2e = 202;
    branch.wh3b = 301;
    branch.wh3e = 302;
    branch.wh4b = 401;
    branch.wh4e = 402;
    branch.wh5b = 501;
    branch.wh5e = 502;
    branch.wh6b = 601;
    branch.wh6e = 602;
    branch.wh7b = 701;
    branch.wh7e = 65535;
    branch.mgid = 9;
    return branch;
}

BranchRecord namedBranch(const QString &name, quint16 bid = 0)
{
    BranchRecord branch;
    branch.bid = bid;
    branch.name = name;
    return branch;
}

} // namespace

TableRows TestBranchesRepository::branches()
{
    return m_database.rows("SELECT * FROM branches ORDER BY bid");
}

/// The columns named in "table (column, ...)", sorted by them.
TableRows TestBranchesRepository::columnsOf(const QString &table)
{
    const QString name = table.section(" (", 0, 0);
    const QString columns = table.section(" (", 1).chopped(1);
    return m_database.rows(QStringLiteral("SELECT %2 FROM %1 ORDER BY %2").arg(name, columns));
}

TableRows TestBranchesRepository::triples()
{
    return columnsOf("bas (bid, attrid, secid)");
}

/// Two of everything: person, terminal, administrator and section 11 belong to branch 2 already,
/// 12 to none.
void TestBranchesRepository::fillTables()
{
    m_database.run("INSERT INTO people (uid, pid) VALUES (11, 11), (12, 12)");
    m_database.run("INSERT INTO brape (bid, uid, since) VALUES (2, 11, 5)");
    m_database.run("INSERT INTO term (tid, bid) VALUES (11, 2), (12, NULL)");
    m_database.run("INSERT INTO admins (aid) VALUES (11), (12)");
    m_database.run("INSERT INTO bradm (bid, aid) VALUES (2, 11)");
    m_database.run("INSERT INTO sections (secid) VALUES (11), (12)");
    m_database.run("INSERT INTO sec_branch (secid, bid) VALUES (11, 2)");
    m_database.run(
        "INSERT INTO bas (bid, attrid, secid) VALUES (2, 1, 11), (2, 1, 12), (3, 1, 11)");
}

void TestBranchesRepository::signalsAndSlotsComeInTheirOrder()
{
    const QMetaObject &type = BranchesRepository::staticMetaObject;
    QCOMPARE(type.className(), "BranchesRepository");
    QStringList emitted;
    QStringList slotted;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        (method.methodType() == QMetaMethod::Signal ? emitted : slotted) +=
            method.typeName() + QByteArray(" ") + method.methodSignature();
    }
    QCOMPARE(emitted,
             QStringList({"void sigAddedPeopleToBranch(ushort,QString)",
                          "void sigDeletedPeopleFromBranch(ushort,QString)",
                          "void sigAddedBranchToTerms(ushort,QString)",
                          "void sigDeletedBranchFromTerms(ushort,QString)",
                          "void sigAddedAdminsToBranch(ushort,QString)",
                          "void sigDeletedAdminsFromBranch(ushort,QString)",
                          "void sigAddedSectionsToBranch(ushort,QString)",
                          "void sigDeletedSectionsFromBranch(ushort,QString)"}));
    QCOMPARE(slotted,
             QStringList({"bool slotAddedPeopleToBranch(ushort,QString)",
                          "bool slotDeletedPeopleFromBranch(ushort,QString)",
                          "bool slotAddedBranchToTerms(ushort,QString)",
                          "bool slotDeletedBranchFromTerms(ushort,QString)",
                          "bool slotAddedAdminsToBranch(ushort,QString)",
                          "bool slotDeletedAdminsFromBranch(ushort,QString)"}));
}

void TestBranchesRepository::aNewRepositoryIsSilentAndOwnsItsTerminalQueue()
{
    QPointer<TermSyncRepository> queue;
    {
        QObject owner;
        auto *repo = new BranchesRepository(&owner, true, true);
        QCOMPARE(repo->parent(), &owner);
        QCOMPARE(repo->debugLevel, quint8(0));
        QCOMPARE(repo->children().size(), 1);
        queue = repo->findChild<TermSyncRepository *>();
        QVERIFY(queue);
        repo->setDB(m_connection);
        LogCapture log;
        repo->addPeopleToBranch(1, "11");
        repo->addBAS(BASData{1, 2, 3});
        QCOMPARE(log.lines(), QStringList());
    }
    QVERIFY(!queue);
}

void TestBranchesRepository::setDBAlsoReachesTheTerminalQueue()
{
    m_database.run("INSERT INTO people (uid, pid) VALUES (11, 11)");
    BranchesRepository repo(nullptr, true, false);
    repo.setDB(m_connection);
    QVERIFY(repo.addPeopleToTerm(5, {"11"}));
    QCOMPARE(m_database.value("SELECT COUNT(*) FROM term_sync").toInt(), 1);
}

void TestBranchesRepository::signalsAreConnectedAsAskedFor_data()
{
    QTest::addColumn<bool>("added");
    QTest::addColumn<bool>("deleted");
    QTest::newRow("neither") << false << false;
    QTest::newRow("additions") << true << false;
    QTest::newRow("removals") << false << true;
    QTest::newRow("both") << true << true;
}

void TestBranchesRepository::signalsAreConnectedAsAskedFor()
{
    QFETCH(bool, added);
    QFETCH(bool, deleted);
    BranchesRepository repo(nullptr, added, deleted);
    repo.setDB(m_connection);
    repo.debugLevel = 1;
    LogCapture log;
    Q_EMIT repo.sigAddedPeopleToBranch(2, "1");
    Q_EMIT repo.sigAddedBranchToTerms(2, "1");
    Q_EMIT repo.sigAddedAdminsToBranch(2, "1");
    Q_EMIT repo.sigAddedSectionsToBranch(2, "1");
    Q_EMIT repo.sigDeletedPeopleFromBranch(2, "1");
    Q_EMIT repo.sigDeletedBranchFromTerms(2, "1");
    Q_EMIT repo.sigDeletedAdminsFromBranch(2, "1");
    Q_EMIT repo.sigDeletedSectionsFromBranch(2, "1");
    QStringList expected;
    if (added) {
        expected += {"I BranchesRepository::slotAddedPeopleToBranch(2, '1')",
                     "I BranchesRepository::slotAddedBranchToTerms(2, '1')",
                     "I BranchesRepository::slotAddedAdminsToBranch(2, '1')"};
    }
    if (deleted) {
        expected += {"I BranchesRepository::slotDeletedPeopleFromBranch(2, '1')",
                     "I BranchesRepository::slotDeletedBranchFromTerms(2, '1')",
                     "I BranchesRepository::slotDeletedAdminsFromBranch(2, '1')"};
    }
    QCOMPARE(log.lines().filter("::slot"), expected);
}

void TestBranchesRepository::addBranchInsertsEveryColumn()
{
    LogCapture log;
    QCOMPARE(Repo(*this, 9).addBranch(fullBranch()), ushort(1));
    QCOMPARE(m_database.statements(),
             QStringList("INSERT INTO `branches` (`number`, `name`, `address`, `note`, `wh1b`,"
                         " `wh1e`, `wh2b`, `wh2e`, `wh3b`, `wh3e`, `wh4b`, `wh4e`, `wh5b`, `wh5e`,"
                         " `wh6b`, `wh6e`, `wh7b`, `wh7e`, `mgid`) VALUES (4294967295, 'Sklad',"
                         " 'Dlhá 1', 'nový', 101, 102, 201, 202, 301, 302, 401, 402, 501, 502, 601,"
                         " 602, 701, 65535, 9)"));
    QCOMPARE(branches(), TableRows({{"1",   "4294967295", "Sklad", "Dlhá 1", "nový",  "101", "102",
                                     "201", "202",        "301",   "302",    "401",   "402", "501",
                                     "502", "601",        "602",   "701",    "65535", "9"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::addBranchWritesNullForWhatABranchHasNot()
{
    QCOMPARE(Repo(*this).addBranch(namedBranch("Sklad")), ushort(1));
    QCOMPARE(m_database.statements(),
             QStringList("INSERT INTO `branches` (`number`, `name`, `address`, `note`, `wh1b`,"
                         " `wh1e`, `wh2b`, `wh2e`, `wh3b`, `wh3e`, `wh4b`, `wh4e`, `wh5b`, `wh5e`,"
                         " `wh6b`, `wh6e`, `wh7b`, `wh7e`, `mgid`) VALUES (NULL, 'Sklad', '', '',"
                         " NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL,"
                         " NULL, NULL, NULL)"));
    QCOMPARE(m_database.rows("SELECT number, mgid, wh1b, wh7e FROM branches"),
             TableRows({{"NULL", "NULL", "NULL", "NULL"}}));
}

void TestBranchesRepository::aDayIsWrittenWhenEitherHourIsSet_data()
{
    QTest::addColumn<int>("begin");
    QTest::addColumn<int>("end");
    QTest::addColumn<QStringList>("written");
    QTest::newRow("neither") << 0 << 0 << QStringList({"NULL", "NULL"});
    QTest::newRow("end only") << 0 << 600 << QStringList({"0", "600"});
    QTest::newRow("begin only") << 600 << 0 << QStringList({"600", "0"});
    QTest::newRow("both") << 360 << 840 << QStringList({"360", "840"});
}

void TestBranchesRepository::aDayIsWrittenWhenEitherHourIsSet()
{
    QFETCH(int, begin);
    QFETCH(int, end);
    QFETCH(QStringList, written);
    BranchRecord branch = namedBranch("Sklad");
    branch.wh4b = quint16(begin);
    branch.wh4e = quint16(end);
    QCOMPARE(Repo(*this).addBranch(branch), ushort(1));
    QCOMPARE(m_database.rows("SELECT wh4b, wh4e FROM branches"), TableRows({written}));
    branch.bid = 1;
    m_database.run("UPDATE branches SET wh4b = 1, wh4e = 1");
    QCOMPARE(Repo(*this).updateBranch(branch), 1);
    QCOMPARE(m_database.rows("SELECT wh3e, wh4b, wh4e, wh5b FROM branches"),
             TableRows({QStringList("NULL") + written + QStringList("NULL")}));
}

void TestBranchesRepository::addBranchWithoutANameRunsNoStatement()
{
    BranchRecord branch = fullBranch();
    branch.name.clear();
    LogCapture log;
    QCOMPARE(Repo(*this).addBranch(branch), ushort(0));
    QCOMPARE(m_database.statements(), QStringList());
    QCOMPARE(log.lines(),
             QStringList("W BranchesRepository::addBranch() -  branch name can not be empty!"));
}

void TestBranchesRepository::aNameOfBlanksIsAName()
{
    LogCapture log;
    QCOMPARE(Repo(*this).addBranch(namedBranch("  ")), ushort(1));
    QCOMPARE(m_database.rows("SELECT name FROM branches"), TableRows({{"  "}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::addBranchReportsAFailedStatement()
{
    m_database.hideTable("branches");
    LogCapture log;
    QCOMPARE(Repo(*this).addBranch(fullBranch()), ushort(0));
    QCOMPARE(log.lines(),
             QStringList("C BranchesRepository::addBranch - ERROR: Table 'tepdb.branches"
                         + kDoesNotExist));
}

void TestBranchesRepository::addBranchReturnsTheLow16BitsOfTheId_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<ushort>("returned");
    QTest::newRow("largest that fits") << "65535" << ushort(65535);
    QTest::newRow("first that does not") << "65536" << ushort(0);
    QTest::newRow("next") << "65537" << ushort(1);
}

void TestBranchesRepository::addBranchReturnsTheLow16BitsOfTheId()
{
    QFETCH(QString, id);
    m_database.widenIds();
    m_database.run("ALTER TABLE branches AUTO_INCREMENT = " + id);
    QTEST(Repo(*this).addBranch(fullBranch()), "returned");
    QCOMPARE(m_database.value("SELECT bid FROM branches").toString(), id);
}

void TestBranchesRepository::aQuoteInABranchsNameBreaksTheStatement()
{
    LogCapture log;
    QCOMPARE(Repo(*this).addBranch(namedBranch("o'clock")), ushort(0));
    QCOMPARE(Repo(*this).updateBranch(namedBranch("o'clock", 1)), -1);
    QCOMPARE(log.lines().size(), 2);
    QVERIFY(log.lines().first().startsWith("C BranchesRepository::addBranch - ERROR: You have an"
                                           " error in your SQL syntax;"));
    QVERIFY(log.lines().last().startsWith("C BranchesRepository::updateBranch - ERROR: You have an"
                                          " error in your SQL syntax;"));
    QCOMPARE(branches(), TableRows());
}

void TestBranchesRepository::placeholdersInTextsAreFilledByLaterValues()
{
    BranchRecord branch = namedBranch("old %3 and %19", 1);
    branch.address = "Dlhá 1";
    branch.mgid = 9;
    QCOMPARE(Repo(*this).addBranch(branch), ushort(1));
    QCOMPARE(m_database.rows("SELECT name, address, mgid FROM branches"),
             TableRows({{"old Dlhá 1 and 9", "Dlhá 1", "9"}}));
    branch.name = "new %2 and %20";
    QCOMPARE(Repo(*this).updateBranch(branch), 1);
    QCOMPARE(m_database.rows("SELECT name, address, mgid FROM branches"),
             TableRows({{"new Dlhá 1 and 1", "Dlhá 1", "9"}}));
}

void TestBranchesRepository::updateBranchWritesEveryColumn()
{
    m_database.run("INSERT INTO branches (bid, name) VALUES (3, 'old'), (4, 'other')");
    LogCapture log;
    QCOMPARE(Repo(*this, 9).updateBranch(fullBranch()), 1);
    QCOMPARE(m_database.statements(),
             QStringList("UPDATE `branches` SET `name`='Sklad', `address`='Dlhá 1', `note`='nový',"
                         " `wh1b`=101, `wh1e`=102, `wh2b`=201, `wh2e`=202, `wh3b`=301, `wh3e`=302,"
                         " `wh4b`=401, `wh4e`=402, `wh5b`=501, `wh5e`=502, `wh6b`=601, `wh6e`=602,"
                         " `wh7b`=701, `wh7e`=65535,`number` = 4294967295, `mgid`= 9 WHERE bid ="
                         " 3"));
    QCOMPARE(branches().first(),
             QStringList({"3",   "4294967295", "Sklad", "Dlhá 1", "nový",  "101", "102",
                          "201", "202",        "301",   "302",    "401",   "402", "501",
                          "502", "601",        "602",   "701",    "65535", "9"}));
    QCOMPARE(branches().last().at(2), QString("other"));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::updateBranchWritesNullForWhatABranchHasNot()
{
    Repo(*this).addBranch(fullBranch());
    m_database.clearStatements();
    QCOMPARE(Repo(*this).updateBranch(namedBranch("Sklad", 1)), 1);
    QCOMPARE(m_database.statements(),
             QStringList("UPDATE `branches` SET `name`='Sklad', `address`='', `note`='',"
                         " `wh1b`=NULL, `wh1e`=NULL, `wh2b`=NULL, `wh2e`=NULL, `wh3b`=NULL,"
                         " `wh3e`=NULL, `wh4b`=NULL, `wh4e`=NULL, `wh5b`=NULL, `wh5e`=NULL,"
                         " `wh6b`=NULL, `wh6e`=NULL, `wh7b`=NULL, `wh7e`=NULL,`number` = NULL,"
                         " `mgid`= NULL WHERE bid = 1"));
}

void TestBranchesRepository::updateBranchDoesNotLookAtTheName()
{
    m_database.run("INSERT INTO branches (bid, name) VALUES (3, 'old')");
    LogCapture log;
    QCOMPARE(Repo(*this).updateBranch(namedBranch("", 3)), 1);
    QCOMPARE(m_database.value("SELECT name FROM branches").toString(), QString());
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::updateBranchReturnsTheChangedRows_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("bid");
    QTest::addColumn<int>("changed");
    QTest::newRow("another name") << "new" << 3 << 1;
    QTest::newRow("the same") << "old" << 3 << 0;
    QTest::newRow("an unknown branch") << "new" << 4 << 0;
    QTest::newRow("branch 0") << "new" << 0 << 0;
}

void TestBranchesRepository::updateBranchReturnsTheChangedRows()
{
    QFETCH(QString, name);
    QFETCH(int, bid);
    m_database.run("INSERT INTO branches (bid, name) VALUES (3, 'old')");
    QTEST(Repo(*this).updateBranch(namedBranch(name, quint16(bid))), "changed");
}

void TestBranchesRepository::updateBranchReportsAFailedStatement()
{
    m_database.hideTable("branches");
    LogCapture log;
    QCOMPARE(Repo(*this).updateBranch(fullBranch()), -1);
    QCOMPARE(log.lines(),
             QStringList("C BranchesRepository::updateBranch - ERROR: Table 'tepdb.branches"
                         + kDoesNotExist));
}

void TestBranchesRepository::saveBranchInsertsABranchWithoutAnId()
{
    QVERIFY(Repo(*this).saveBranch(namedBranch("Sklad")));
    QCOMPARE(branches().size(), 1);
}

void TestBranchesRepository::saveBranchFailsWhenTheInsertFails()
{
    LogCapture log;
    QVERIFY(!Repo(*this).saveBranch(namedBranch("")));
    m_database.refuse("INSERT", "branches");
    QVERIFY(!Repo(*this).saveBranch(namedBranch("Sklad")));
    QCOMPARE(log.lines().size(), 2);
    QCOMPARE(branches(), TableRows());
}

void TestBranchesRepository::saveBranchUpdatesABranchWithAnId()
{
    m_database.run("INSERT INTO branches (bid, name) VALUES (3, 'old')");
    QVERIFY(Repo(*this).saveBranch(namedBranch("new", 3)));
    QCOMPARE(m_database.rows("SELECT bid, name FROM branches"), TableRows({{"3", "new"}}));
}

void TestBranchesRepository::saveBranchIsFalseWhenTheUpdateChangesNothing()
{
    m_database.run("INSERT INTO branches (bid, name) VALUES (3, 'old')");
    QVERIFY(!Repo(*this).saveBranch(namedBranch("old", 3)));
    QVERIFY(!Repo(*this).saveBranch(namedBranch("old", 4)));
}

void TestBranchesRepository::saveBranchIsTrueWhenTheUpdateFails()
{
    m_database.run("INSERT INTO branches (bid, name) VALUES (3, 'old')");
    m_database.refuse("UPDATE", "branches");
    LogCapture log;
    QVERIFY(Repo(*this).saveBranch(namedBranch("new", 3)));
    QCOMPARE(log.lines().size(), 1);
    QCOMPARE(m_database.rows("SELECT bid, name FROM branches"), TableRows({{"3", "old"}}));
}

void TestBranchesRepository::deleteBranchTouchesNothing()
{
    m_database.run("INSERT INTO branches (bid, name) VALUES (3, 'old')");
    LogCapture log;
    QVERIFY(!Repo(*this, 9).deleteBranch(3));
    QVERIFY(!Repo(*this, 9).deleteBranch(0));
    QCOMPARE(m_database.statements(), QStringList());
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::membershipChangesSendTheirStatementAndSignal_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<Signal>("announcement");
    QTest::addColumn<int>("bid");
    QTest::addColumn<QString>("ids");
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<QString>("table");
    QTest::addColumn<TableRows>("rows");
    QTest::newRow("addPeopleToBranch")
        << Change(&Branches::addPeopleToBranch) << Signal(&Branches::sigAddedPeopleToBranch) << 3
        << "11,12"
        << QStringList("INSERT INTO brape (bid, uid, since) SELECT 3 bid, uid, UNIX_TIMESTAMP()"
                       " since FROM people WHERE uid IN(11,12) ON DUPLICATE KEY UPDATE"
                       " since=UNIX_TIMESTAMP()")
        << "brape (bid, uid, since)"
        << TableRows({{"2", "11", "5"}, {"3", "11", "1700000000"}, {"3", "12", "1700000000"}});
    QTest::newRow("delPeopleFromBranch")
        << Change(&Branches::delPeopleFromBranch) << Signal(&Branches::sigDeletedPeopleFromBranch)
        << 2 << "12, 11" << QStringList("DELETE FROM brape WHERE bid = 2 AND uid IN(12, 11)")
        << "brape (bid, uid)" << TableRows();
    QTest::newRow("addBranchToTerms")
        << Change(&Branches::addBranchToTerms) << Signal(&Branches::sigAddedBranchToTerms) << 65535
        << "12" << QStringList("UPDATE term SET bid = 65535 WHERE tid IN(12)") << "term (tid, bid)"
        << TableRows({{"11", "2"}, {"12", "65535"}});
    QTest::newRow("delBranchFromTerms")
        << Change(&Branches::delBranchFromTerms) << Signal(&Branches::sigDeletedBranchFromTerms)
        << 2 << "11,12" << QStringList("UPDATE term SET bid = NULL WHERE tid IN(11,12)")
        << "term (tid, bid)" << TableRows({{"11", "NULL"}, {"12", "NULL"}});
    QTest::newRow("addAdminsToBranch")
        << Change(&Branches::addAdminsToBranch) << Signal(&Branches::sigAddedAdminsToBranch) << 2
        << "11,12,13"
        << QStringList("INSERT INTO bradm (bid, aid) SELECT 2 bid, aid FROM admins WHERE aid"
                       " IN(11,12,13) ON DUPLICATE KEY UPDATE bid=2")
        << "bradm (bid, aid)" << TableRows({{"2", "11"}, {"2", "12"}});
    QTest::newRow("delAdminsFromBranch")
        << Change(&Branches::delAdminsFromBranch) << Signal(&Branches::sigDeletedAdminsFromBranch)
        << 2 << "11,12" << QStringList("DELETE FROM bradm WHERE bid = 2 AND aid IN(11,12)")
        << "bradm (bid, aid)" << TableRows();
    QTest::newRow("addSectionsToBranch")
        << Change(&Branches::addSectionsToBranch) << Signal(&Branches::sigAddedSectionsToBranch)
        << 3 << "11,12,13"
        << QStringList("INSERT INTO sec_branch (secid, bid) SELECT secid, 3 bid FROM sections"
                       " WHERE secid IN(11,12,13) ON DUPLICATE KEY UPDATE bid=3")
        << "sec_branch (secid, bid)" << TableRows({{"11", "3"}, {"12", "3"}});
    QTest::newRow("delSectionsFromBranch")
        << Change(&Branches::delSectionsFromBranch)
        << Signal(&Branches::sigDeletedSectionsFromBranch) << 2 << "11"
        << QStringList({"DELETE FROM bas WHERE bid = 2 AND secid IN(11)",
                        "DELETE FROM sec_branch WHERE bid = 2 AND secid IN(11)"})
        << "sec_branch (secid, bid)" << TableRows();
}

void TestBranchesRepository::membershipChangesSendTheirStatementAndSignal()
{
    QFETCH(Change, change);
    QFETCH(Signal, announcement);
    QFETCH(int, bid);
    QFETCH(QString, ids);
    QFETCH(QString, table);
    fillTables();
    runOnConnection("SET timestamp = 1700000000");
    Repo repo(*this);
    QStringList announced;
    for (Signal signal : kSignals) {
        connect(&repo, signal, &repo, [&, signal](ushort branch, const QString &members) {
            announced += QStringLiteral("%1 %2 %3")
                             .arg(signal == announcement ? "its own:" : "another:")
                             .arg(branch)
                             .arg(members);
        });
    }
    LogCapture log;
    QVERIFY((repo.*change)(ushort(bid), ids));
    QTEST(m_database.statements(), "statements");
    QCOMPARE(announced, QStringList(QStringLiteral("its own: %1 %2").arg(bid).arg(ids)));
    QTEST(columnsOf(table), "rows");
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::membershipChangesWithoutABranchOrIdsRunNoStatement_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("addPeopleToBranch") << Change(&Branches::addPeopleToBranch);
    QTest::newRow("delPeopleFromBranch") << Change(&Branches::delPeopleFromBranch);
    QTest::newRow("addBranchToTerms") << Change(&Branches::addBranchToTerms);
    QTest::newRow("delBranchFromTerms") << Change(&Branches::delBranchFromTerms);
    QTest::newRow("addAdminsToBranch") << Change(&Branches::addAdminsToBranch);
    QTest::newRow("delAdminsFromBranch") << Change(&Branches::delAdminsFromBranch);
    QTest::newRow("addSectionsToBranch") << Change(&Branches::addSectionsToBranch);
    QTest::newRow("delSectionsFromBranch") << Change(&Branches::delSectionsFromBranch);
}

void TestBranchesRepository::membershipChangesWithoutABranchOrIdsRunNoStatement()
{
    QFETCH(Change, change);
    fillTables();
    Repo repo(*this);
    LogCapture log;
    QVERIFY(!(repo.*change)(0, "11,12"));
    QVERIFY(!(repo.*change)(2, ""));
    QVERIFY(!(repo.*change)(2, QString()));
    QCOMPARE(m_database.statements(), QStringList());
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::membershipChangesThatAffectNoRowAnnounceNothing_data()
{
    membershipChangesWithoutABranchOrIdsRunNoStatement_data();
}

void TestBranchesRepository::membershipChangesThatAffectNoRowAnnounceNothing()
{
    QFETCH(Change, change);
    fillTables();
    const DatabaseState before = m_database.dumpAll();
    Repo repo(*this);
    int announced = 0;
    for (Signal signal : kSignals)
        connect(&repo, signal, &repo, [&] { ++announced; });
    LogCapture log;
    QVERIFY(!(repo.*change)(2, "98,99"));
    QVERIFY(!m_database.statements().isEmpty());
    QCOMPARE(announced, 0);
    QCOMPARE(TestDatabase::difference(before, m_database.dumpAll()), QString());
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::membershipChangesSendAndAnnounceTheListAsItCame_data()
{
    membershipChangesWithoutABranchOrIdsRunNoStatement_data();
}

void TestBranchesRepository::membershipChangesSendAndAnnounceTheListAsItCame()
{
    QFETCH(Change, change);
    fillTables();
    Repo repo(*this);
    QStringList announced;
    for (Signal signal : kSignals)
        connect(&repo, signal, &repo, [&](ushort, const QString &ids) { announced += ids; });
    const QString ids = " 12,11 , 12,11";
    LogCapture log;
    QVERIFY((repo.*change)(2, ids));
    const QStringList statements = m_database.statements();
    QVERIFY(!statements.isEmpty());
    QCOMPARE(statements.filter(" IN(" + ids + ")"), statements);
    QCOMPARE(announced, QStringList(ids));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::aListOfBlanksIsSentAndFails_data()
{
    membershipChangesWithoutABranchOrIdsRunNoStatement_data();
}

void TestBranchesRepository::aListOfBlanksIsSentAndFails()
{
    QFETCH(Change, change);
    fillTables();
    Repo repo(*this);
    LogCapture log;
    QVERIFY(!(repo.*change)(2, "  "));
    const QStringList statements = m_database.statements();
    QVERIFY(!statements.isEmpty());
    QCOMPARE(statements.filter(" IN(  )"), statements);
    QCOMPARE(log.lines().filter("ERROR: You have an error in your SQL syntax").size(),
             statements.size());
}

void TestBranchesRepository::failedMembershipChangesAreReported_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("message");
    QTest::newRow("addPeopleToBranch") << Change(&Branches::addPeopleToBranch) << "brape"
                                       << "BranchesRepository::addPeopleToBranch - ERROR: ";
    QTest::newRow("delPeopleFromBranch") << Change(&Branches::delPeopleFromBranch) << "brape"
                                         << "BranchesRepository::delPeopleFromBranch - ERROR: ";
    QTest::newRow("addBranchToTerms") << Change(&Branches::addBranchToTerms) << "term"
                                      << "BranchesRepository::addBranchToTerms - ERROR: ";
    QTest::newRow("delBranchFromTerms") << Change(&Branches::delBranchFromTerms) << "term"
                                        << "BranchesRepository::delBranchFromTerms - ERROR: ";
    QTest::newRow("addAdminsToBranch") << Change(&Branches::addAdminsToBranch) << "bradm"
                                       << "BranchesRepository::addAdminsToBranch - ERROR: ";
    QTest::newRow("delAdminsFromBranch") << Change(&Branches::delAdminsFromBranch) << "bradm"
                                         << "BranchesRepository::delAdminsFromBranch - ERROR: ";
    QTest::newRow("addSectionsToBranch") << Change(&Branches::addSectionsToBranch) << "sec_branch"
                                         << "BranchesRepository::addSectionsToBranch - ERROR: ";
    QTest::newRow("delSectionsFromBranch")
        << Change(&Branches::delSectionsFromBranch) << "sec_branch"
        << "BranchesRepository::delSectionsFromBranch [sec_branch] - ERROR: ";
}

void TestBranchesRepository::failedMembershipChangesAreReported()
{
    QFETCH(Change, change);
    QFETCH(QString, table);
    QFETCH(QString, message);
    m_database.hideTable(table);
    Repo repo(*this);
    int announced = 0;
    for (Signal signal : kSignals)
        connect(&repo, signal, &repo, [&] { ++announced; });
    LogCapture log;
    QVERIFY(!(repo.*change)(2, "11,12"));
    QCOMPARE(log.lines(), QStringList("C " + message + "Table 'tepdb." + table + kDoesNotExist));
    QCOMPARE(announced, 0);
}

void TestBranchesRepository::membershipCallsAreLoggedFromLevel1On_data()
{
    membershipChangesWithoutABranchOrIdsRunNoStatement_data();
}

void TestBranchesRepository::membershipCallsAreLoggedFromLevel1On()
{
    QFETCH(Change, change);
    const QString name = QTest::currentDataTag();
    Repo repo(*this, 1);
    LogCapture log;
    (repo.*change)(0, "");
    (repo.*change)(65535, "11, 12,x%1");
    QCOMPARE(log.lines().filter(QRegularExpression("^I")),
             QStringList({"I BranchesRepository::" + name + "(0, '')",
                          "I BranchesRepository::" + name + "(65535, '11, 12,x%1')"}));
}

void TestBranchesRepository::aPersonInTheBranchGetsANewTimeOfJoining()
{
    fillTables();
    runOnConnection("SET timestamp = 1700000000");
    QVERIFY(Repo(*this).addPeopleToBranch(2, "11"));
    QCOMPARE(columnsOf("brape (bid, uid, since)"), TableRows({{"2", "11", "1700000000"}}));
}

void TestBranchesRepository::onlyKnownPeopleJoin()
{
    fillTables();
    QVERIFY(Repo(*this).addPeopleToBranch(3, "12,99"));
    QCOMPARE(columnsOf("brape (bid, uid)"), TableRows({{"2", "11"}, {"3", "12"}}));
}

void TestBranchesRepository::terminalsLeaveWhateverBranchTheyHad()
{
    fillTables();
    QVERIFY(Repo(*this).delBranchFromTerms(7, "11"));
    QCOMPARE(columnsOf("term (tid, bid)"), TableRows({{"11", "NULL"}, {"12", "NULL"}}));
}

void TestBranchesRepository::anAdministratorMayServeSeveralBranches()
{
    fillTables();
    QVERIFY(Repo(*this).addAdminsToBranch(3, "11"));
    QCOMPARE(columnsOf("bradm (bid, aid)"), TableRows({{"2", "11"}, {"3", "11"}}));
}

void TestBranchesRepository::aSectionMovesToTheNewBranch()
{
    fillTables();
    QVERIFY(Repo(*this).addSectionsToBranch(3, "11"));
    QCOMPARE(columnsOf("sec_branch (secid, bid)"), TableRows({{"11", "3"}}));
    QVERIFY(!Repo(*this).addSectionsToBranch(3, "11"));
}

void TestBranchesRepository::sectionsLeaveAlsoWhenTheirTriplesStay()
{
    fillTables();
    m_database.refuse("DELETE", "bas", "refused");
    Repo repo(*this);
    QSignalSpy announced(&repo, &Branches::sigDeletedSectionsFromBranch);
    LogCapture log;
    QVERIFY(repo.delSectionsFromBranch(2, "11"));
    QCOMPARE(log.lines(),
             QStringList("C BranchesRepository::delSectionsFromBranch [bas] - ERROR: refused"
                         " QMYSQL: Unable to execute query"));
    QCOMPARE(columnsOf("sec_branch (secid, bid)"), TableRows());
    QCOMPARE(triples().size(), 3);
    QCOMPARE(announced.size(), 1);
}

void TestBranchesRepository::deletedTriplesStayDeletedWhenTheSectionsStay()
{
    fillTables();
    m_database.refuse("DELETE", "sec_branch", "refused");
    Repo repo(*this);
    QSignalSpy announced(&repo, &Branches::sigDeletedSectionsFromBranch);
    LogCapture log;
    QVERIFY(!repo.delSectionsFromBranch(2, "11"));
    QCOMPARE(log.lines(),
             QStringList("C BranchesRepository::delSectionsFromBranch [sec_branch] - ERROR: refused"
                         " QMYSQL: Unable to execute query"));
    QCOMPARE(triples(), TableRows({{"2", "1", "12"}, {"3", "1", "11"}}));
    QCOMPARE(announced.size(), 0);
}

void TestBranchesRepository::sectionsThatWereNotThereAnnounceNothingThoughTriplesGo()
{
    fillTables();
    Repo repo(*this);
    QSignalSpy announced(&repo, &Branches::sigDeletedSectionsFromBranch);
    QVERIFY(!repo.delSectionsFromBranch(2, "12"));
    QCOMPARE(triples(), TableRows({{"2", "1", "11"}, {"3", "1", "11"}}));
    QCOMPARE(announced.size(), 0);
}

void TestBranchesRepository::triplesHaveALogText()
{
    QCOMPARE(BASData({3, 12, 7}).getString(), QString("3-12-7"));
    QCOMPARE(BASData({0, 4294967295u, 0}).getString(), QString("0-4294967295-0"));
}

void TestBranchesRepository::addBASStoresATriple()
{
    LogCapture log;
    QVERIFY(Repo(*this).addBAS(BASData{3, 12, 7}));
    QCOMPARE(m_database.statements(),
             QStringList({"PREPARE: INSERT INTO `bas` (bid, attrid, secid) VALUES(?, ?, ?) ON"
                          " DUPLICATE KEY UPDATE bid=VALUES(bid)",
                          "EXECUTE: INSERT INTO `bas` (bid, attrid, secid) VALUES(3, 12, 7) ON"
                          " DUPLICATE KEY UPDATE bid=VALUES(bid)"}));
    QCOMPARE(triples(), TableRows({{"3", "12", "7"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::addBASOfAStoredTripleSucceeds()
{
    m_database.run("INSERT INTO bas (bid, attrid, secid) VALUES (3, 12, 7)");
    QVERIFY(Repo(*this).addBAS(BASData{3, 12, 7}));
    QCOMPARE(triples(), TableRows({{"3", "12", "7"}}));
}

void TestBranchesRepository::deleteBASDeletesExactlyTheTriple()
{
    m_database.run("INSERT INTO bas (bid, attrid, secid) VALUES (3, 12, 7), (3, 12, 8),"
                   " (3, 13, 7), (4, 12, 7)");
    LogCapture log;
    QVERIFY(Repo(*this).deleteBAS(BASData{3, 12, 7}));
    QCOMPARE(
        m_database.statements(),
        QStringList({"PREPARE: DELETE FROM `bas` WHERE bid = ? AND attrid = ? AND secid = ?",
                     "EXECUTE: DELETE FROM `bas` WHERE bid = 3 AND attrid = 12 AND secid = 7"}));
    QCOMPARE(triples(), TableRows({{"3", "12", "8"}, {"3", "13", "7"}, {"4", "12", "7"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::deleteBASOfAMissingTripleSucceeds()
{
    LogCapture log;
    QVERIFY(Repo(*this).deleteBAS(BASData{3, 12, 7}));
    QVERIFY(Repo(*this).deleteBAS(QStringList("3-12-7")));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::addBASStoresAListAsABatch()
{
    LogCapture log;
    QVERIFY(Repo(*this).addBAS(QStringList({"3-12-7", "3-12-8"})));
    QCOMPARE(m_database.statements(),
             QStringList({"PREPARE: INSERT INTO `bas` (bid, attrid, secid) VALUES(?, ?, ?) ON"
                          " DUPLICATE KEY UPDATE bid=VALUES(bid)",
                          "EXECUTE: INSERT INTO `bas` (bid, attrid, secid) VALUES(3, 12, 7) ON"
                          " DUPLICATE KEY UPDATE bid=VALUES(bid)",
                          "EXECUTE: INSERT INTO `bas` (bid, attrid, secid) VALUES(3, 12, 8) ON"
                          " DUPLICATE KEY UPDATE bid=VALUES(bid)"}));
    QCOMPARE(triples(), TableRows({{"3", "12", "7"}, {"3", "12", "8"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::deleteBASDeletesAListAsABatch()
{
    m_database.run(
        "INSERT INTO bas (bid, attrid, secid) VALUES (3, 12, 7), (3, 12, 8), (3, 13, 7)");
    LogCapture log;
    QVERIFY(Repo(*this).deleteBAS(QStringList({"3-12-8", "3-13-7"})));
    QCOMPARE(
        m_database.statements(),
        QStringList({"PREPARE: DELETE FROM `bas` WHERE bid = ? AND attrid = ? AND secid = ?",
                     "EXECUTE: DELETE FROM `bas` WHERE bid = 3 AND attrid = 12 AND secid = 8",
                     "EXECUTE: DELETE FROM `bas` WHERE bid = 3 AND attrid = 13 AND secid = 7"}));
    QCOMPARE(triples(), TableRows({{"3", "12", "7"}}));
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::repeatedTriplesAreExecutedAsOftenAsTheyCome()
{
    const QStringList texts = {"3-12-7", "3-12-7", " 3-12-7"};
    QVERIFY(Repo(*this).addBAS(texts));
    QCOMPARE(m_database.statements().filter("EXECUTE").size(), 3);
    QCOMPARE(triples(), TableRows({{"3", "12", "7"}}));
    m_database.clearStatements();
    QVERIFY(Repo(*this).deleteBAS(texts));
    QCOMPARE(m_database.statements().filter("EXECUTE").size(), 3);
    QCOMPARE(triples(), TableRows());
}

void TestBranchesRepository::textsWithoutThreePartsAreSkipped()
{
    const QStringList texts = {"3-12", "3-12-7", "", "3-12-8-9", "4-12-7", "-", "5"};
    QVERIFY(Repo(*this).addBAS(texts));
    QCOMPARE(triples(), TableRows({{"3", "12", "7"}, {"4", "12", "7"}}));
    QVERIFY(Repo(*this).deleteBAS(texts));
    QCOMPARE(triples(), TableRows());
}

void TestBranchesRepository::partsThatAreNoNumbersCountAs0()
{
    QVERIFY(Repo(*this).addBAS(QStringList({"3--7", "x-4294967295-4294967296", " 8-9-1"})));
    QCOMPARE(triples(), TableRows({{"0", "4294967295", "0"}, {"3", "0", "7"}, {"8", "9", "1"}}));
}

void TestBranchesRepository::anEmptyBatchExecutesNothingAndSucceeds_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("no text") << QStringList();
    QTest::newRow("none with three parts") << QStringList({"3-12", "1-2-3-4"});
}

void TestBranchesRepository::anEmptyBatchExecutesNothingAndSucceeds()
{
    QFETCH(QStringList, texts);
    LogCapture log;
    QVERIFY(Repo(*this).addBAS(texts));
    QVERIFY(Repo(*this).deleteBAS(texts));
    QCOMPARE(m_database.statements().filter("EXECUTE"), QStringList());
    QCOMPARE(log.lines(), QStringList());
}

void TestBranchesRepository::tripleFailuresAreReported_data()
{
    QTest::addColumn<bool>("add");
    QTest::addColumn<bool>("list");
    QTest::addColumn<bool>("prepared");
    QTest::addColumn<QString>("line");
    const QString notPrepared =
        " Table 'tepdb.bas' doesn't exist QMYSQL3: Unable to prepare statement";
    const QString notExecuted = " refused QMYSQL3: Unable to execute statement";
    QTest::newRow("add, not prepared")
        << true << false << false
        << "C BranchesRepository::addBAS() - prepare failed, SQL ERROR:" + notPrepared;
    QTest::newRow("add, not executed")
        << true << false << true
        << "C BranchesRepository::addBAS() - exec failed, SQL ERROR:" + notExecuted;
    QTest::newRow("add list, not prepared")
        << true << true << false
        << "C BranchesRepository::addBAS() - prepare failed, SQL ERROR:" + notPrepared;
    QTest::newRow("add list, not executed")
        << true << true << true
        << "C BranchesRepository::addBAS() - execBatch failed, SQL ERROR:" + notExecuted;
    QTest::newRow("delete, not prepared")
        << false << false << false
        << "C BranchesRepository::deleteBAS() - prepare failed, SQL ERROR:" + notPrepared;
    QTest::newRow("delete, not executed")
        << false << false << true
        << "C BranchesRepository::deleteBAS() - exec failed, SQL ERROR:" + notExecuted;
    QTest::newRow("delete list, not prepared")
        << false << true << false
        << "C BranchesRepository::deleteBAS() - prepare failed, SQL ERROR:" + notPrepared;
    QTest::newRow("delete list, not executed")
        << false << true << true
        << "C BranchesRepository::deleteBAS() - execBatch failed, SQL ERROR:" + notExecuted;
}

void TestBranchesRepository::tripleFailuresAreReported()
{
    QFETCH(bool, add);
    QFETCH(bool, list);
    QFETCH(bool, prepared);
    QFETCH(QString, line);
    m_database.run("INSERT INTO bas (bid, attrid, secid) VALUES (3, 12, 7)");
    if (prepared)
        m_database.refuse(add ? "INSERT" : "DELETE", "bas", "refused");
    else
        m_database.hideTable("bas");
    const BASData triple{3, 12, 7};
    const QStringList texts("3-12-7");
    Repo repo(*this);
    LogCapture log;
    if (add)
        QVERIFY(!(list ? repo.addBAS(texts) : repo.addBAS(triple)));
    else
        QVERIFY(!(list ? repo.deleteBAS(texts) : repo.deleteBAS(triple)));
    QCOMPARE(log.lines(), QStringList(line));
}

void TestBranchesRepository::aFailingTripleEndsItsBatch()
{
    m_database.refuse("INSERT", "bas", "refused", "NEW.bid = 4");
    LogCapture log;
    QVERIFY(!Repo(*this).addBAS(QStringList({"3-12-7", "4-12-7", "5-12-7"})));
    QCOMPARE(triples(), TableRows({{"3", "12", "7"}}));
    QCOMPARE(log.lines().size(), 1);
}

void TestBranchesRepository::tripleCallsAreLoggedFromLevel1On()
{
    Repo repo(*this, 1);
    LogCapture log;
    repo.addBAS(BASData{3, 12, 7});
    repo.deleteBAS(BASData{3, 12, 7});
    repo.addBAS(QStringList({"3-12-7", "4-x", "5-1-2"}));
    repo.deleteBAS(QStringList({"3-12-7", "4-x", "5-1-2"}));
    repo.addBAS(QStringList());
    QCOMPARE(log.lines(),
             QStringList({"I BranchesRepository::addBAS(3-12-7)",
                          "I BranchesRepository::deleteBAS(3-12-7)",
                          "I BranchesRepository::addBAS(3-12-7,4-x,5-1-2)",
                          "I BranchesRepository::deleteBAS(3-12-7,4-x,5-1-2)",
                          "I BranchesRepository::addBAS()"}));
}

void TestBranchesRepository::errorTextsAreLoggedInUtf8()
{
    fillTables();
    m_database.refuse("INSERT", "brape", "žiadny človek");
    LogCapture log;
    QVERIFY(!Repo(*this).addPeopleToBranch(3, "11"));
    QCOMPARE(log.lines(),
             QStringList("C BranchesRepository::addPeopleToBranch - ERROR: žiadny človek QMYSQL:"
                         " Unable to execute query"));
}

void TestBranchesRepository::aClosedConnectionFailsWithoutAnError()
{
    Repo repo(*this);
    m_connection.close();
    LogCapture log;
    QCOMPARE(repo.addBranch(fullBranch()), ushort(0));
    QCOMPARE(repo.updateBranch(fullBranch()), 0);
    QVERIFY(!repo.saveBranch(fullBranch()));
    QVERIFY(!repo.addPeopleToBranch(2, "11"));
    QVERIFY(!repo.delSectionsFromBranch(2, "11"));
    QCOMPARE(log.lines().filter(QRegularExpression("^C")), QStringList());
    log.clear();
    // A preparation that fails is reported all the same.
    QVERIFY(!repo.addBAS(BASData{3, 12, 7}));
    QCOMPARE(log.lines().filter(QRegularExpression("^C")),
             QStringList("C BranchesRepository::addBAS() - prepare failed, SQL ERROR: "));
}

QTEST_GUILESS_MAIN(TestBranchesRepository)
#include "tst_branchesrepository.moc"
