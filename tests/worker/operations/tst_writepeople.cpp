#include "tests/worker/operations/samplerecord.h"
#include "tests/worker/operations/workerconnection.h"
#include "tests/worker/support/sqlerrors.h"
#include "tests/worker/support/workertest.h"

#include <QTest>

namespace {

const QString kFindExport = "SELECT name, value FROM vars WHERE name LIKE 'exportPam.%.active%'";

/// The statement that adds a person, with its list of values.
QString insertStatement(const QString &values)
{
    return "INSERT INTO people (pid, pamId, title, name, surname, title2, phone, begin, end, "
           "created, rsBegin, rsEnd, rsText, type, did, calendarID, bid) VALUES("
        + values
        + ") ON DUPLICATE KEY UPDATE pamId=VALUES(pamId), title=VALUES(title), name=VALUES(name), "
          "surname=VALUES(surname), title2=VALUES(title2), phone=VALUES(phone), "
          "begin=VALUES(begin), end=VALUES(end), edited=VALUES(created), status=1, "
          "type=VALUES(type), did=1";
}

/// The values of fullRecord() in branch 5 and department 1.
const QString kFullValues =
    "'12342', '1234.2', 'Ing.', 'Jana', 'Nováková', 'PhD.', '555123456', 1554069600, 1924988399, "
    "UNIX_TIMESTAMP(), 1622498400, 1625090400, 'materská dovolenka', 1, 1, 3, 5";

const QString kFullUpdate =
    "UPDATE people SET pamId=1234.2, title='Ing.', name='Jana', surname='Nováková', "
    "title2='PhD.', phone='555123456', begin=1554069600, end=1924988399, edited=UNIX_TIMESTAMP(), "
    "editor=0, rsBegin=1622498400, rsEnd=1625090400, rsText='materská dovolenka', type=1, did=1, "
    "calendarID=3, bid=5  WHERE pid=12342";

const QString kFullUpdateWithLastCalc =
    "UPDATE people SET pamId=1234.2, title='Ing.', name='Jana', surname='Nováková', "
    "title2='PhD.', phone='555123456', begin=1554069600, end=1924988399, edited=UNIX_TIMESTAMP(), "
    "editor=0, rsBegin=1622498400, rsEnd=1625090400, rsText='materská dovolenka', "
    "lastCalc=1622412000, type=1, did=1, calendarID=3, bid=5 WHERE pid=12342";

const QString kSyntaxError = "You have an error in your SQL syntax;";

} // namespace

/// Adding and updating persons.
class TestWritePeople : public WorkerTest {
    Q_OBJECT
public:
    TestWritePeople()
        : WorkerTest(Tables::Empty)
    {
    }

    static void initMain() { settleInSlovakia(); }

private Q_SLOTS:
    void init();

    void everyFieldOfANewPersonIsWritten();
    void aNewPersonLogsItsSteps_data();
    void aNewPersonLogsItsSteps();
    void missingValuesAreNullOrDefault();
    void typesOfNewPeople_data();
    void typesOfNewPeople();
    void departmentsOfPeople_data();
    void departmentsOfPeople();
    void branchesOfPeople_data();
    void branchesOfPeople();
    void anExistingPidIsMergedInto();
    void mergingTheSameAgainAddsNothing();
    void aRowCountsWithoutAGeneratedKey();
    void aQuoteInANameFails_data();
    void aQuoteInANameFails();
    void aFailureToAddIsCritical_data();
    void aFailureToAddIsCritical();
    void aPlaceholderInANameIsFilledInItsTurn();
    void aPlaceholderInANameThatShiftsTheValuesFails();
    void percentSignsWithoutMeaningStay();
    void aNewPersonIsSelectedForThePayrollExport();
    void anExistingPersonIsSelectedForThePayrollExport();
    void testModeAddsNoPerson_data();
    void testModeAddsNoPerson();

    void everyFieldOfAPersonIsUpdated();
    void anUpdateLogsItsSteps_data();
    void anUpdateLogsItsSteps();
    void aNewStateMovesTheLastCalculation_data();
    void aNewStateMovesTheLastCalculation();
    void theLastCalculationIsKeptOtherwise_data();
    void theLastCalculationIsKeptOtherwise();
    void missingValuesAreUpdatedToNullOrDefault();
    void thePayrollIdIsANumberInTheUpdate();
    void onlyTheOnePersonIsUpdated();
    void onlyAChangedRowIsQueuedForTerminals();
    void updatingAnUnknownPersonSucceeds();
    void aFailureToUpdateIsCritical_data();
    void aFailureToUpdateIsCritical();
    void aQuoteInAnUpdateFails();
    void aPlaceholderInAnUpdateIsFilledInItsTurn();
    void testModeUpdatesNoPerson_data();
    void testModeUpdatesNoPerson();

private:
    void insertPerson();
    QString personRow();
};

void TestWritePeople::init()
{
    WorkerTest::init();
    m_db.run("INSERT INTO branches (bid, number) VALUES (5, 120)");
    QVERIFY(m_worker->dbLoadBranches());
}

/// A row with other values than fullRecord(), but its pid.
void TestWritePeople::insertPerson()
{
    m_db.run("INSERT INTO people (uid, pid, pamId, title, name, surname, title2, phone, begin, "
             "end, created, edited, editor, rsBegin, rsEnd, rsText, type, did, calendarID, bid, "
             "status, lastCalc, calc, gid) VALUES (42, 12342, 'x', 'x', 'x', 'x', 'x', 'x', 1, 2, "
             "3, 4, 5, 6, 7, 'x', 8, 9, 10, 11, 0, 12, 13, 14)");
}

QString TestWritePeople::personRow()
{
    return m_db.dump("people");
}

// ---- Adding -------------------------------------------------------------------------------------

void TestWritePeople::everyFieldOfANewPersonIsWritten()
{
    freezeTime();
    const Trace trace = observe([this] { QVERIFY(m_worker->dbAddPerson(fullRecord())); });
    QCOMPARE(trace.statements, QStringList({insertStatement(kFullValues), kFindExport}));
    QCOMPARE(personRow(),
             QString("uid=1 pid=12342 pamId=1234.2 title=Ing. name=Jana surname=Nováková "
                     "title2=PhD. phone=555123456 begin=1554069600 end=1924988399 "
                     "created=1700000000 edited=0 editor=0 rsBegin=1622498400 rsEnd=1625090400 "
                     "rsText=materská dovolenka type=1 did=1 calendarID=3 bid=5 status=1 "
                     "lastCalc=0 calc=0 gid=NULL"));
}

void TestWritePeople::aNewPersonLogsItsSteps_data()
{
    addDebugLevels();
}

void TestWritePeople::aNewPersonLogsItsSteps()
{
    QFETCH(int, debugLevel);
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] { QVERIFY(m_worker->dbAddPerson(fullRecord())); });
    // There is no payroll export to put the person into.
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{1, "D MHRWorker::dbAddPerson(1234.2)"},
                      {2, "D MHRWorker::addPersonIntoPam(12342)"},
                      {0, "W MHRWorker::dbAddPerson(1234.2) - addPersonIntoPam() FAILED!"}}));
}

void TestWritePeople::missingValuesAreNullOrDefault()
{
    MirovaRonRecord record;
    record.osobniCislo = 1234;
    record.poradoveCisloPP = 2;
    m_worker->setDepartmentId(0);
    const Trace trace = observe([this, &record] { QVERIFY(m_worker->dbAddPerson(record)); });
    QCOMPARE(trace.statements.first(),
             insertStatement("'12342', '1234.2', '', '', '', '', '', 946681200, NULL, "
                             "UNIX_TIMESTAMP(), NULL, NULL, '', 0, NULL, 0, NULL"));
    QCOMPARE(m_db.rows("SELECT end, rsBegin, rsEnd, did, bid FROM people"),
             TableRows({{"NULL", "NULL", "NULL", "NULL", "NULL"}}));
}

void TestWritePeople::typesOfNewPeople_data()
{
    QTest::addColumn<ushort>("code");
    QTest::addColumn<QString>("type");
    QTest::newRow("11") << ushort(11) << "1";
    QTest::newRow("65") << ushort(65) << "1";
    QTest::newRow("51") << ushort(51) << "4";
    QTest::newRow("12") << ushort(12) << "0";
}

void TestWritePeople::typesOfNewPeople()
{
    QFETCH(ushort, code);
    QFETCH(QString, type);
    MirovaRonRecord record = fullRecord();
    record.typPracovnihoPomeru = code;
    const Trace added = observe([this, &record] { m_worker->dbAddPerson(record); });
    QVERIFY(added.statements.first().contains(" 'materská dovolenka', " + type + ", 1, 3, 5)"));
    const Trace updated = observe([this, &record] { m_worker->dbUpdatePerson(record, false); });
    QVERIFY(updated.statements.first().contains(" type=" + type + ", did=1,"));
    const Trace moved = observe([this, &record] { m_worker->dbUpdatePerson(record, true); });
    QVERIFY(moved.statements.first().contains(" type=" + type + ", did=1,"));
}

void TestWritePeople::departmentsOfPeople_data()
{
    QTest::addColumn<uint>("department");
    QTest::addColumn<QString>("did");
    QTest::newRow("none") << 0U << "NULL";
    QTest::newRow("1") << 1U << "1";
    QTest::newRow("7") << 7U << "7";
    QTest::newRow("largest") << 4294967295U << "4294967295";
}

void TestWritePeople::departmentsOfPeople()
{
    QFETCH(uint, department);
    QFETCH(QString, did);
    m_worker->setDepartmentId(department);
    const Trace added = observe([this] { m_worker->dbAddPerson(fullRecord()); });
    QVERIFY(added.statements.first().contains(" 'materská dovolenka', 1, " + did + ", 3, 5)"));
    QCOMPARE(m_db.rows("SELECT did FROM people"), TableRows({{did}}));
    m_db.run("UPDATE people SET did = 99");
    const Trace updated = observe([this] { m_worker->dbUpdatePerson(fullRecord(), false); });
    QVERIFY(updated.statements.first().contains(" type=1, did=" + did + ", calendarID=3"));
    QCOMPARE(m_db.rows("SELECT did FROM people"), TableRows({{did}}));
}

void TestWritePeople::branchesOfPeople_data()
{
    QTest::addColumn<quint32>("costCentre");
    QTest::addColumn<QString>("bid");
    QTest::newRow("known number") << 120U << "5";
    QTest::newRow("number 0") << 0U << "NULL";
    QTest::newRow("unknown number") << 121U << "NULL";
    QTest::newRow("a bid that is no number of a branch") << 5U << "NULL";
    QTest::newRow("number of bid 0") << 130U << "NULL";
    QTest::newRow("largest number and bid") << 4294967295U << "4294967294";
}

void TestWritePeople::branchesOfPeople()
{
    QFETCH(quint32, costCentre);
    QFETCH(QString, bid);
    m_db.widenIds();
    m_db.run("SET sql_mode = 'NO_AUTO_VALUE_ON_ZERO'");
    m_db.run("INSERT INTO branches (bid, number) VALUES (0, 130), (4294967294, 4294967295)");
    m_db.run("SET sql_mode = DEFAULT");
    QVERIFY(m_worker->dbLoadBranches());
    MirovaRonRecord record = fullRecord();
    record.stredisko = costCentre;
    const Trace added = observe([this, &record] { m_worker->dbAddPerson(record); });
    QVERIFY(added.statements.first().contains(", 1, 3, " + bid + ") ON DUPLICATE KEY"));
    const Trace updated = observe([this, &record] { m_worker->dbUpdatePerson(record, false); });
    QVERIFY(updated.statements.first().endsWith(", bid=" + bid + "  WHERE pid=12342"));
    QCOMPARE(m_db.rows("SELECT bid FROM people"), TableRows({{bid}}));
}

void TestWritePeople::anExistingPidIsMergedInto()
{
    insertPerson();
    freezeTime();
    m_worker->setDepartmentId(7);
    const Trace trace = observe([this] { QVERIFY(m_worker->dbAddPerson(fullRecord())); });
    QCOMPARE(trace.statements.size(), 2);
    // What is left as it was: the state, the calendar, the branch, and what only others write.
    QCOMPARE(personRow(),
             QString("uid=42 pid=12342 pamId=1234.2 title=Ing. name=Jana surname=Nováková "
                     "title2=PhD. phone=555123456 begin=1554069600 end=1924988399 created=3 "
                     "edited=1700000000 editor=5 rsBegin=6 rsEnd=7 rsText=x type=1 did=1 "
                     "calendarID=10 bid=11 status=1 lastCalc=12 calc=13 gid=14"));
}

void TestWritePeople::mergingTheSameAgainAddsNothing()
{
    insertPerson();
    freezeTime();
    observe([this] { QVERIFY(m_worker->dbAddPerson(fullRecord())); });
    const QString row = personRow();
    // The row stays the same to the second: no row was affected, and there is no new key.
    const Trace trace = observe([this] { QVERIFY(!m_worker->dbAddPerson(fullRecord())); });
    QCOMPARE(trace.log,
             QStringList("W MHRWorker::dbAddPerson(1234.2) - addPersonIntoPam() FAILED!"));
    QCOMPARE(trace.statements, QStringList({insertStatement(kFullValues), kFindExport}));
    QCOMPARE(personRow(), row);
}

void TestWritePeople::aRowCountsWithoutAGeneratedKey()
{
    // A site's table may generate no keys: then only the affected rows show the success.
    m_db.run("ALTER TABLE people MODIFY uid INT UNSIGNED NOT NULL DEFAULT 42");
    observe([this] { QVERIFY(m_worker->dbAddPerson(fullRecord())); });
    QCOMPARE(m_db.rows("SELECT uid, pid FROM people"), TableRows({{"42", "12342"}}));
}

void TestWritePeople::aQuoteInANameFails_data()
{
    addDebugLevels();
}

void TestWritePeople::aQuoteInANameFails()
{
    QFETCH(int, debugLevel);
    MirovaRonRecord record = fullRecord();
    record.jmeno = "D'Arc";
    setDebugLevel(debugLevel);
    const Trace trace = observe([this, &record] { QVERIFY(!m_worker->dbAddPerson(record)); });
    QCOMPARE(trace.statements,
             QStringList(insertStatement(QString(kFullValues).replace("Jana", "D'Arc"))));
    QCOMPARE(trace.log.size(), debugLevel == 0 ? 1 : 2);
    QVERIFY2(trace.log.last().startsWith("C MHRWorker::dbAddPerson(1234.2) - SQL ERROR: "
                                         + kSyntaxError),
             qPrintable(trace.log.last()));
    QCOMPARE(personRow(), QString());
}

void TestWritePeople::aFailureToAddIsCritical_data()
{
    addDebugLevels();
}

void TestWritePeople::aFailureToAddIsCritical()
{
    QFETCH(int, debugLevel);
    m_db.refuse("INSERT", "people");
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] { QVERIFY(!m_worker->dbAddPerson(fullRecord())); });
    QCOMPARE(trace.statements, QStringList(insertStatement(kFullValues)));
    QCOMPARE(
        trace.log,
        linesAt(
            debugLevel,
            {{1, "D MHRWorker::dbAddPerson(1234.2)"},
             {0, "C MHRWorker::dbAddPerson(1234.2) - SQL ERROR: " + SqlErrors::refusedText()}}));
}

// The values are filled in one after the other, each into the lowest placeholder that the text
// then has, its own values included.

void TestWritePeople::aPlaceholderInANameIsFilledInItsTurn()
{
    MirovaRonRecord record = fullRecord();
    record.titul = "%9";
    record.telefon = "od %16 do %13";
    const Trace trace = observe([this, &record] { QVERIFY(m_worker->dbAddPerson(record)); });
    QCOMPARE(trace.statements.first(),
             insertStatement("'12342', '1234.2', '1924988399', 'Jana', 'Nováková', 'PhD.', "
                             "'od 5 do 1', 1554069600, 1924988399, UNIX_TIMESTAMP(), 1622498400, "
                             "1625090400, 'materská dovolenka', 1, 1, 3, 5"));
}

void TestWritePeople::aPlaceholderInANameThatShiftsTheValuesFails()
{
    MirovaRonRecord record = fullRecord();
    record.titul = "%1";
    const Trace trace = observe([this, &record] { QVERIFY(!m_worker->dbAddPerson(record)); });
    QCOMPARE(trace.statements,
             QStringList(insertStatement(
                 "'12342', '1234.2', 'Jana', 'Nováková', 'PhD.', '555123456', '1554069600', "
                 "1924988399, 1622498400, UNIX_TIMESTAMP(), 1625090400, materská dovolenka, '1', "
                 "1, 3, 5, %16")));
    QCOMPARE(trace.log.size(), 1);
    QVERIFY(trace.log.first().startsWith("C MHRWorker::dbAddPerson(1234.2) - SQL ERROR: "
                                         + kSyntaxError));
}

void TestWritePeople::percentSignsWithoutMeaningStay()
{
    MirovaRonRecord record = fullRecord();
    record.titul = "100 %";
    record.jmeno = "%99";
    record.prijmeni = "%s %d";
    record.rsText = "50%L";
    observe([this, &record] { QVERIFY(m_worker->dbAddPerson(record)); });
    QCOMPARE(m_db.rows("SELECT title, name, surname, rsText FROM people"),
             TableRows({{"100 %", "%99", "%s %d", "50%L"}}));
}

void TestWritePeople::aNewPersonIsSelectedForThePayrollExport()
{
    m_db.run("INSERT INTO vars (name, value) VALUES ('exportPam.3.active', '1')");
    const Trace trace = observe([this] { QVERIFY(m_worker->dbAddPerson(fullRecord())); });
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(trace.statements,
             QStringList({
                 insertStatement(kFullValues),
                 kFindExport,
                 "SELECT value FROM vars WHERE name='exportPam.3.selPeople' LIMIT 1",
                 "PREPARE: INSERT INTO vars (name, value) VALUES(?, ?) ON DUPLICATE KEY UPDATE "
                 "value=VALUES(value)",
                 "EXECUTE: INSERT INTO vars (name, value) VALUES('exportPam.3.selPeople', "
                 "'12342') ON DUPLICATE KEY UPDATE value=VALUES(value)",
             }));
}

void TestWritePeople::anExistingPersonIsSelectedForThePayrollExport()
{
    m_db.run("INSERT INTO vars (name, value) VALUES ('exportPam.3.active', '1')");
    insertPerson();
    observe([this] { QVERIFY(m_worker->dbAddPerson(fullRecord())); });
    QCOMPARE(m_db.value("SELECT value FROM vars WHERE name = 'exportPam.3.selPeople'").toString(),
             QString("12342"));
}

void TestWritePeople::testModeAddsNoPerson_data()
{
    addDebugLevels();
}

void TestWritePeople::testModeAddsNoPerson()
{
    QFETCH(int, debugLevel);
    setDebugLevel(debugLevel);
    m_worker->setTestMode(true);
    const Trace trace = observe([this] { QVERIFY(m_worker->dbAddPerson(fullRecord())); });
    QCOMPARE(trace.statements, QStringList());
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{1, "D MHRWorker::dbAddPerson(1234.2)"},
                      {1,
                       "W MHRWorker::dbAddPerson(1234.2) - Testing mode is active, "
                       "person not really add!"}}));

    m_worker->setTestMode(false);
    observe([this] { QVERIFY(m_worker->dbAddPerson(fullRecord())); });
    QCOMPARE(m_db.rows("SELECT pid FROM people"), TableRows({{"12342"}}));
}

// ---- Updating -----------------------------------------------------------------------------------

void TestWritePeople::everyFieldOfAPersonIsUpdated()
{
    insertPerson();
    freezeTime();
    const Trace trace = observe([this] { QVERIFY(m_worker->dbUpdatePerson(fullRecord(), false)); });
    QCOMPARE(trace.statements.first(), kFullUpdate);
    // What is left as it was: the status, the calculation and what only others write.
    QCOMPARE(personRow(),
             QString("uid=42 pid=12342 pamId=1234.2 title=Ing. name=Jana surname=Nováková "
                     "title2=PhD. phone=555123456 begin=1554069600 end=1924988399 created=3 "
                     "edited=1700000000 editor=0 rsBegin=1622498400 rsEnd=1625090400 "
                     "rsText=materská dovolenka type=1 did=1 calendarID=3 bid=5 status=0 "
                     "lastCalc=12 calc=13 gid=14"));
}

void TestWritePeople::anUpdateLogsItsSteps_data()
{
    addDebugLevels();
}

void TestWritePeople::anUpdateLogsItsSteps()
{
    QFETCH(int, debugLevel);
    insertPerson();
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] { QVERIFY(m_worker->dbUpdatePerson(fullRecord(), false)); });
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{1, "D MHRWorker::dbUpdatePerson(1234.2)"},
                      {2, "D MHRWorker::addTermSyncPerson(12342, U, people)"}}));
}

void TestWritePeople::aNewStateMovesTheLastCalculation_data()
{
    QTest::addColumn<QDate>("rsFrom");
    QTest::addColumn<QString>("rsBegin");
    QTest::addColumn<QString>("lastCalc");
    QTest::newRow("an ordinary day") << QDate(2021, 6, 1) << "1622498400"
                                     << "1622412000";
    QTest::newRow("the day after a change to summer time") << QDate(2021, 3, 29) << "1616968800"
                                                           << "1616886000";
    QTest::newRow("the day after a change to winter time") << QDate(2021, 11, 1) << "1635721200"
                                                           << "1635631200";
    QTest::newRow("the second day of Unix time") << QDate(1970, 1, 2) << "82800"
                                                 << "0";
    QTest::newRow("before Unix time") << QDate(1960, 1, 1) << "-315622800"
                                      << "0";
    QTest::newRow("beyond 32 bits") << QDate(2200, 1, 1) << "7258114800"
                                    << "4294967295";
}

void TestWritePeople::aNewStateMovesTheLastCalculation()
{
    QFETCH(QDate, rsFrom);
    QFETCH(QString, rsBegin);
    QFETCH(QString, lastCalc);
    insertPerson();
    MirovaRonRecord record = fullRecord();
    record.rsFrom = rsFrom;
    const Trace trace =
        observe([this, &record] { QVERIFY(m_worker->dbUpdatePerson(record, true)); });
    QCOMPARE(trace.statements.first(),
             QString(kFullUpdateWithLastCalc)
                 .replace("rsBegin=1622498400", "rsBegin=" + rsBegin)
                 .replace("lastCalc=1622412000", "lastCalc=" + lastCalc));
    QCOMPARE(m_db.rows("SELECT rsBegin, lastCalc, calc FROM people"),
             TableRows({{rsBegin, lastCalc, "13"}}));
}

void TestWritePeople::theLastCalculationIsKeptOtherwise_data()
{
    QTest::addColumn<QDate>("rsFrom");
    QTest::addColumn<bool>("esChanged");
    QTest::newRow("the register state is the same") << QDate(2021, 6, 1) << false;
    QTest::newRow("no state now") << QDate() << true;
    QTest::newRow("neither") << QDate() << false;
}

void TestWritePeople::theLastCalculationIsKeptOtherwise()
{
    QFETCH(QDate, rsFrom);
    QFETCH(bool, esChanged);
    insertPerson();
    MirovaRonRecord record = fullRecord();
    record.rsFrom = rsFrom;
    const Trace trace = observe(
        [this, &record, esChanged] { QVERIFY(m_worker->dbUpdatePerson(record, esChanged)); });
    QString expected = kFullUpdate;
    if (!rsFrom.isValid())
        expected.replace("rsBegin=1622498400", "rsBegin=NULL");
    QCOMPARE(trace.statements.first(), expected);
    QCOMPARE(m_db.value("SELECT lastCalc FROM people").toInt(), 12);
}

void TestWritePeople::missingValuesAreUpdatedToNullOrDefault()
{
    insertPerson();
    MirovaRonRecord record;
    record.osobniCislo = 1234;
    record.poradoveCisloPP = 2;
    m_worker->setDepartmentId(0);
    const Trace trace =
        observe([this, &record] { QVERIFY(m_worker->dbUpdatePerson(record, true)); });
    QCOMPARE(trace.statements.first(),
             QString("UPDATE people SET pamId=1234.2, title='', name='', surname='', title2='', "
                     "phone='', begin=946681200, end=NULL, edited=UNIX_TIMESTAMP(), editor=0, "
                     "rsBegin=NULL, rsEnd=NULL, rsText='', type=0, did=NULL, calendarID=0, "
                     "bid=NULL  WHERE pid=12342"));
    QCOMPARE(m_db.rows("SELECT end, rsBegin, rsEnd, did, bid FROM people"),
             TableRows({{"NULL", "NULL", "NULL", "NULL", "NULL"}}));
}

void TestWritePeople::thePayrollIdIsANumberInTheUpdate()
{
    m_db.run("INSERT INTO people (uid, pid) VALUES (42, 123410)");
    MirovaRonRecord record = fullRecord();
    record.poradoveCisloPP = 10;
    const Trace trace =
        observe([this, &record] { QVERIFY(m_worker->dbUpdatePerson(record, false)); });
    QVERIFY(trace.statements.first().startsWith("UPDATE people SET pamId=1234.10, title="));
    QCOMPARE(m_db.value("SELECT pamId FROM people").toString(), QString("1234.10"));
}

void TestWritePeople::onlyTheOnePersonIsUpdated()
{
    insertPerson();
    m_db.run("INSERT INTO people (uid, pid, pamId) VALUES (43, 12343, '1234.2')");
    const QString other = m_db.dump("people").split('\n').last();
    QVERIFY(other.startsWith("uid=43 "));
    observe([this] { QVERIFY(m_worker->dbUpdatePerson(fullRecord(), true)); });
    QCOMPARE(m_db.dump("people").split('\n').last(), other);
}

void TestWritePeople::onlyAChangedRowIsQueuedForTerminals()
{
    insertPerson();
    m_db.run("INSERT INTO term (tid, status, flags) VALUES (7, 1, 2)");
    m_db.run("INSERT INTO people_term (tid, uid) VALUES (7, 42)");
    freezeTime();
    Trace trace = observe([this] { QVERIFY(m_worker->dbUpdatePerson(fullRecord(), false)); });
    QCOMPARE(trace.statements,
             QStringList({
                 kFullUpdate,
                 "SELECT uid FROM people WHERE pid=12342 LIMIT 1",
                 "INSERT INTO `term_sync` (tid, type, ref, ref_col, ref_id, created, flags) SELECT "
                 "`tid` tid, 'U' type, 'people' ref, 'uid' ref_col, 42 ref_id, UNIX_TIMESTAMP() "
                 "created, 2 flags FROM people_term JOIN term USING(tid) WHERE status = 1 AND uid "
                 "= 42 AND (flags & 2)",
                 "CALL updateTermsSync(42, 2)",
             }));
    QCOMPARE(m_db.dump("term_sync"),
             QString("tid=7 type=U ref=people ref_col=uid ref_id=42 ref_col2=NULL ref_id2=NULL "
                     "created=1700000000 flags=2"));

    // The same values in the same second change nothing.
    trace = observe([this] { QVERIFY(m_worker->dbUpdatePerson(fullRecord(), false)); });
    QCOMPARE(trace.statements, QStringList(kFullUpdate));
    QCOMPARE(trace.log, QStringList());
}

void TestWritePeople::updatingAnUnknownPersonSucceeds()
{
    const Trace trace = observe([this] { QVERIFY(m_worker->dbUpdatePerson(fullRecord(), true)); });
    QCOMPARE(trace.statements, QStringList(kFullUpdateWithLastCalc));
    QCOMPARE(trace.log, QStringList());
}

void TestWritePeople::aFailureToUpdateIsCritical_data()
{
    addDebugLevels();
}

void TestWritePeople::aFailureToUpdateIsCritical()
{
    QFETCH(int, debugLevel);
    insertPerson();
    m_db.refuse("UPDATE", "people");
    setDebugLevel(debugLevel);
    const Trace trace =
        observe([this] { QVERIFY(!m_worker->dbUpdatePerson(fullRecord(), false)); });
    QCOMPARE(trace.statements, QStringList(kFullUpdate));
    QCOMPARE(
        trace.log,
        linesAt(
            debugLevel,
            {{1, "D MHRWorker::dbUpdatePerson(1234.2)"},
             {0, "C MHRWorker::dbUpdatePerson(1234.2) - SQL ERROR: " + SqlErrors::refusedText()}}));
}

void TestWritePeople::aQuoteInAnUpdateFails()
{
    insertPerson();
    const QString row = personRow();
    MirovaRonRecord record = fullRecord();
    record.jmeno = "D'Arc";
    const Trace trace =
        observe([this, &record] { QVERIFY(!m_worker->dbUpdatePerson(record, false)); });
    QCOMPARE(trace.statements, QStringList(QString(kFullUpdate).replace("Jana", "D'Arc")));
    QCOMPARE(trace.log.size(), 1);
    QVERIFY(trace.log.first().startsWith("C MHRWorker::dbUpdatePerson(1234.2) - SQL ERROR: "
                                         + kSyntaxError));
    QCOMPARE(personRow(), row);
}

void TestWritePeople::aPlaceholderInAnUpdateIsFilledInItsTurn()
{
    insertPerson();
    MirovaRonRecord record = fullRecord();
    record.titul = "%9";
    record.telefon = "%13";
    Trace trace = observe([this, &record] { QVERIFY(m_worker->dbUpdatePerson(record, false)); });
    QCOMPARE(trace.statements.first(),
             QString(kFullUpdate)
                 .replace("title='Ing.'", "title='12342'")
                 .replace("phone='555123456'", "phone='1'"));
    trace = observe([this, &record] { QVERIFY(m_worker->dbUpdatePerson(record, true)); });
    QCOMPARE(trace.statements.first(),
             QString(kFullUpdateWithLastCalc)
                 .replace("title='Ing.'", "title='12342'")
                 .replace("phone='555123456'", "phone='1622412000'"));
}

void TestWritePeople::testModeUpdatesNoPerson_data()
{
    addDebugLevels();
}

void TestWritePeople::testModeUpdatesNoPerson()
{
    QFETCH(int, debugLevel);
    insertPerson();
    const QString row = personRow();
    setDebugLevel(debugLevel);
    m_worker->setTestMode(true);
    const Trace trace = observe([this] { QVERIFY(m_worker->dbUpdatePerson(fullRecord(), true)); });
    QCOMPARE(trace.statements, QStringList());
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{1, "D MHRWorker::dbUpdatePerson(1234.2)"},
                      {1,
                       "W MHRWorker::dbUpdatePerson(1234.2) - Testing mode is active, "
                       "person not really update!"}}));
    QCOMPARE(personRow(), row);
}

QTEST_GUILESS_MAIN(TestWritePeople)
#include "tst_writepeople.moc"
