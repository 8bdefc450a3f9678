#include "tests/worker/operations/samplerecord.h"
#include "tests/worker/support/sqlerrors.h"
#include "tests/worker/support/workertest.h"

#include <QTest>

namespace {

const QString kSelectPeople =
    "SELECT p.pid, p.pamId, p.title, p.name, p.surname, p.title2, p.phone, p.begin, p.end, "
    "p.rsBegin, p.rsEnd, p.rsText, p.calendarID, b.number FROM people p LEFT JOIN branches b "
    "USING(bid) WHERE p.status";

} // namespace

/// What the worker loads of a person. It shows in what the worker then writes for a record: nothing
/// when the loaded person equals it, an update when not, and a new person when none was loaded.
class TestLoadPeople : public WorkerTest {
    Q_OBJECT
public:
    TestLoadPeople()
        : WorkerTest(Tables::Empty)
    {
    }

    static void initMain() { settleInSlovakia(); }

private Q_SLOTS:
    void loadingIsOneStatement_data();
    void loadingIsOneStatement();
    void anEmptyTableLoads();
    void aFailureKeepsThePeopleOfBefore_data();
    void aFailureKeepsThePeopleOfBefore();
    void eachLoadReplacesTheOneBefore();

    void everyColumnIsReadIntoItsField_data();
    void everyColumnIsReadIntoItsField();
    void theStateIsReadFromItsColumns_data();
    void theStateIsReadFromItsColumns();
    void theCalendarHasNoFirstDay();

    void thePayrollIdGivesTheKey_data();
    void thePayrollIdGivesTheKey();
    void thePidColumnIsNotRead();
    void aLaterRowOfTheSameKeyWins();
    void onlyActivePeopleAreLoaded_data();
    void onlyActivePeopleAreLoaded();
    void aPersonWithoutBranchHasCostCentre0_data();
    void aPersonWithoutBranchHasCostCentre0();

private:
    void insertPerson(uint uid, const QString &payrollId, const QString &more = {});
    void load();
    bool isKnown(const MirovaRonRecord &record);
    QStringList updatesOf(const MirovaRonRecord &record, const std::function<void()> &load);
};

/// The row that agrees with person(), in branch 5, which is cost centre 120. `more` is a change of
/// the row: a SET clause of an update.
void TestLoadPeople::insertPerson(uint uid, const QString &payrollId, const QString &more)
{
    m_db.run("INSERT IGNORE INTO branches (bid, number) VALUES (5, 120)");
    m_db.run(QString("INSERT INTO people (uid, pid, pamId, title, name, surname, title2, phone, "
                     "begin, end, rsBegin, rsEnd, rsText, calendarID, bid, status) VALUES (%1, "
                     "%1, '%2', 'Ing.', 'Jana', 'Nováková', 'PhD.', '555123456', 1554069600, "
                     "1924988399, 1622498400, 1625090400, 'materská dovolenka', 3, 5, 1)")
                 .arg(uid)
                 .arg(payrollId));
    if (!more.isEmpty())
        m_db.run(QString("UPDATE people SET %1 WHERE uid = %2").arg(more).arg(uid));
}

void TestLoadPeople::load()
{
    QVERIFY(m_worker->dbLoadPeople());
}

namespace {

/// What the row of insertPerson() holds, for a person who has left: the worker creates no person
/// and looks up no branch for it.
MirovaRonRecord person(MirovaRonRecord record)
{
    record.stavPracovnihoPomeru = 4;
    record.kalendarPlatnostOd = QDate();
    record.nadrizenyOsobniCislo = 0;
    return record;
}

MirovaRonRecord numbered(MirovaRonRecord record, uint personalNumber, uint relationship)
{
    record.osobniCislo = personalNumber;
    record.poradoveCisloPP = relationship;
    return record;
}

} // namespace

/// True when the worker finds the record's person among those it has loaded.
bool TestLoadPeople::isKnown(const MirovaRonRecord &record)
{
    MirovaRonRecord active = record;
    active.stavPracovnihoPomeru = 1;
    return observe([this, &active] { m_worker->doSyncRecord(active); })
        .statements.filter("INSERT INTO people ")
        .isEmpty();
}

/// The updates of `people` that the worker sends for a record of unchanged codes, after `load`.
QStringList TestLoadPeople::updatesOf(const MirovaRonRecord &record,
                                      const std::function<void()> &load)
{
    // Seen once before, while its person was not loaded, so that only the row counts now.
    MirovaRonRecord before = record;
    before.strediskoPopis = "before";
    observe([this, &before] { m_worker->doSyncRecord(before); });
    load();
    return observe([this, &record] { m_worker->doSyncRecord(record); })
        .statements.filter("UPDATE people SET ");
}

void TestLoadPeople::loadingIsOneStatement_data()
{
    addDebugLevels();
}

void TestLoadPeople::loadingIsOneStatement()
{
    QFETCH(int, debugLevel);
    insertPerson(42, "1234.2");
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] { load(); });
    QCOMPARE(trace.statements, QStringList(kSelectPeople));
    QCOMPARE(trace.log, linesAt(debugLevel, {{2, "D MHRWorker::dbLoadPeople()"}}));
}

void TestLoadPeople::anEmptyTableLoads()
{
    load();
    QVERIFY(!isKnown(fullRecord()));
}

void TestLoadPeople::aFailureKeepsThePeopleOfBefore_data()
{
    addDebugLevels();
}

void TestLoadPeople::aFailureKeepsThePeopleOfBefore()
{
    QFETCH(int, debugLevel);
    insertPerson(42, "1234.2");
    load();
    m_db.hideTable("branches");
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] { QVERIFY(!m_worker->dbLoadPeople()); });
    QCOMPARE(
        trace.log,
        linesAt(
            debugLevel,
            {{2, "D MHRWorker::dbLoadPeople()"},
             {0, "C MHRWorker::dbLoadPeople() - SQL ERROR " + SqlErrors::missing("branches")}}));
    m_db.restoreTable("branches");
    QVERIFY(isKnown(fullRecord()));
}

void TestLoadPeople::eachLoadReplacesTheOneBefore()
{
    insertPerson(42, "1234.2");
    load();
    m_db.run("DELETE FROM people");
    insertPerson(43, "1234.3");
    load();
    QVERIFY(!isKnown(numbered(fullRecord(), 1234, 2)));
    QVERIFY(isKnown(numbered(fullRecord(), 1234, 3)));
}

void TestLoadPeople::everyColumnIsReadIntoItsField_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<bool>("agrees");
    QTest::newRow("no change") << "" << true;
    QTest::newRow("title") << "title = 'Mgr.'" << false;
    QTest::newRow("name") << "name = 'Jan'" << false;
    QTest::newRow("surname") << "surname = 'Novák'" << false;
    QTest::newRow("title2") << "title2 = ''" << false;
    QTest::newRow("phone") << "phone = '555'" << false;
    QTest::newRow("begin, another second of the day") << "begin = 1554069600 + 86399" << true;
    QTest::newRow("begin, the day before") << "begin = 1554069600 - 1" << false;
    QTest::newRow("begin, the day after") << "begin = 1554069600 + 86400" << false;
    QTest::newRow("end, another second of the day") << "end = 1924988399 - 86399" << true;
    QTest::newRow("end, the day after") << "end = 1924988399 + 1" << false;
    QTest::newRow("end, the day before") << "end = 1924988399 - 86400" << false;
    QTest::newRow("no end") << "end = NULL" << false;
    QTest::newRow("calendarID") << "calendarID = 4" << false;
    QTest::newRow("no branch") << "bid = NULL" << false;
    QTest::newRow("pamId, the same key from other numbers") << "pamId = '123.42'" << false;
    // The state that the record gets is made from the loaded one, so the two agree when the
    // period has an end, whatever it is.
    QTest::newRow("rsBegin") << "rsBegin = rsBegin - 86400" << true;
    QTest::newRow("rsEnd") << "rsEnd = rsEnd + 86400" << true;
    QTest::newRow("rsText") << "rsText = 'iný'" << true;
    QTest::newRow("no state") << "rsBegin = NULL, rsEnd = NULL, rsText = ''" << true;
    QTest::newRow("a state without end") << "rsEnd = NULL" << false;
    QTest::newRow("a state that ends before it begins") << "rsEnd = rsBegin - 86400" << false;
    QTest::newRow("an end without a state") << "rsBegin = 0" << false;
    // Columns of the table that are not part of the view.
    QTest::newRow("type") << "type = 9" << true;
    QTest::newRow("did") << "did = 9" << true;
    QTest::newRow("lastCalc") << "lastCalc = 9" << true;
}

void TestLoadPeople::everyColumnIsReadIntoItsField()
{
    QFETCH(QString, change);
    QFETCH(bool, agrees);
    const QStringList updates = updatesOf(person(fullRecord()), [this, &change] {
        insertPerson(42, "1234.2", change);
        load();
    });
    QCOMPARE(updates.size(), agrees ? 0 : 1);
}

void TestLoadPeople::theStateIsReadFromItsColumns_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("state");
    QTest::newRow("all three") << ""
                               << "rsBegin=1622498400, rsEnd=1625090400, rsText='materská "
                                  "dovolenka', type=";
    QTest::newRow("any second of the days")
        << "rsBegin = rsBegin + 86399, rsEnd = rsEnd + 3600"
        << "rsBegin=1622498400, rsEnd=1625090400, rsText='materská dovolenka', type=";
    QTest::newRow("none") << "rsBegin = NULL, rsEnd = NULL, rsText = ''"
                          << "rsBegin=NULL, rsEnd=NULL, rsText='', type=";
    QTest::newRow("zeros") << "rsBegin = 0, rsEnd = 0, rsText = 'x'"
                           << "rsBegin=NULL, rsEnd=NULL, rsText='x', type=";
}

void TestLoadPeople::theStateIsReadFromItsColumns()
{
    QFETCH(QString, change);
    QFETCH(QString, state);
    MirovaRonRecord record = person(fullRecord());
    record.telefon = "another one";
    const QStringList updates = updatesOf(record, [this, &change] {
        insertPerson(42, "1234.2", change);
        load();
    });
    QCOMPARE(updates.size(), 1);
    QVERIFY2(updates.first().contains(state), qPrintable(updates.first()));
}

void TestLoadPeople::theCalendarHasNoFirstDay()
{
    // The table does not hold it, so a record that names one asks for a recalculation.
    insertPerson(42, "1234.2", "pid = 12342");
    load();
    const auto asksForIt = [this](const MirovaRonRecord &record) {
        return !observe([this, &record] { m_worker->doSyncRecord(record); })
                    .statements.filter("UPDATE atten SET ok = -1")
                    .isEmpty();
    };
    MirovaRonRecord record = person(fullRecord());
    QVERIFY(!asksForIt(record));
    record.kalendarPlatnostOd = QDate(2020, 5, 1);
    QVERIFY(asksForIt(record));
}

void TestLoadPeople::thePayrollIdGivesTheKey_data()
{
    QTest::addColumn<QString>("payrollId");
    QTest::addColumn<uint>("personalNumber");
    QTest::addColumn<uint>("relationship");
    QTest::newRow("both numbers") << "1234.2" << 1234U << 2U;
    QTest::newRow("no dot: 12340") << "1234" << 1234U << 0U;
    QTest::newRow("nothing behind the dot") << "1234." << 1234U << 0U;
    QTest::newRow("nothing before the dot") << ".2" << 0U << 2U;
    QTest::newRow("a third part") << "1234.2.9" << 1234U << 2U;
    QTest::newRow("an empty part in the middle") << "1234..9" << 1234U << 0U;
    QTest::newRow("no numbers") << "abc.d" << 0U << 0U;
    QTest::newRow("empty") << "" << 0U << 0U;
    QTest::newRow("leading zeros") << "0012.03" << 12U << 3U;
    QTest::newRow("largest numbers") << "4294967295.4294967295" << 4294967295U << 4294967295U;
}

void TestLoadPeople::thePayrollIdGivesTheKey()
{
    QFETCH(QString, payrollId);
    QFETCH(uint, personalNumber);
    QFETCH(uint, relationship);
    const MirovaRonRecord record = numbered(person(fullRecord()), personalNumber, relationship);
    const QStringList updates = updatesOf(record, [this, &payrollId] {
        insertPerson(42, payrollId);
        load();
    });
    QCOMPARE(updates, QStringList());
    QVERIFY(isKnown(record));
}

void TestLoadPeople::thePidColumnIsNotRead()
{
    insertPerson(42, "1234.2", "pid = 77");
    load();
    QVERIFY(isKnown(numbered(fullRecord(), 1234, 2)));
    QVERIFY(!isKnown(numbered(fullRecord(), 7, 7)));
}

void TestLoadPeople::aLaterRowOfTheSameKeyWins()
{
    const QStringList updates = updatesOf(person(fullRecord()), [this] {
        insertPerson(41, "1234.2", "surname = 'Stará'");
        insertPerson(42, "1234.2");
        insertPerson(43, "1234.3", "surname = 'Iná'");
        load();
    });
    QCOMPARE(updates, QStringList());
}

void TestLoadPeople::onlyActivePeopleAreLoaded_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("loaded");
    QTest::newRow("status 0") << 0 << false;
    QTest::newRow("status 1") << 1 << true;
    QTest::newRow("status 2") << 2 << true;
}

void TestLoadPeople::onlyActivePeopleAreLoaded()
{
    QFETCH(int, status);
    QFETCH(bool, loaded);
    insertPerson(42, "1234.2", QString("status = %1").arg(status));
    load();
    QCOMPARE(isKnown(fullRecord()), loaded);
}

void TestLoadPeople::aPersonWithoutBranchHasCostCentre0_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("no branch") << "bid = NULL";
    QTest::newRow("a branch that does not exist") << "bid = 99";
    QTest::newRow("a branch without number") << "bid = 6";
}

void TestLoadPeople::aPersonWithoutBranchHasCostCentre0()
{
    QFETCH(QString, change);
    m_db.run("INSERT INTO branches (bid, number) VALUES (6, NULL)");
    MirovaRonRecord record = person(fullRecord());
    record.stredisko = 0;
    const QStringList updates = updatesOf(record, [this, &change] {
        insertPerson(42, "1234.2", change);
        load();
    });
    QCOMPARE(updates, QStringList());
}

QTEST_GUILESS_MAIN(TestLoadPeople)
#include "tst_loadpeople.moc"
