#include "tests/worker/support/sqlerrors.h"
#include "tests/worker/support/workertest.h"

#include <QTest>

namespace {

const QString kFindExport = "SELECT name, value FROM vars WHERE name LIKE 'exportPam.%.active%'";

const QString kPrepareSet = "PREPARE: INSERT INTO vars (name, value) VALUES(?, ?) ON DUPLICATE KEY "
                            "UPDATE value=VALUES(value)";

QString getStatement(const QString &key)
{
    return "SELECT value FROM vars WHERE name='" + key + "' LIMIT 1";
}

QString setStatement(const QString &key, const QString &value)
{
    return "EXECUTE: INSERT INTO vars (name, value) VALUES('" + key + "', '" + value
        + "') ON DUPLICATE KEY UPDATE value=VALUES(value)";
}

} // namespace

/// The payroll export: which persons it selects, and the settings that a person is bound to.
class TestPayroll : public WorkerTest {
    Q_OBJECT
public:
    TestPayroll()
        : WorkerTest(Tables::Empty)
    {
    }

private Q_SLOTS:
    void aPersonIsAppendedToTheSelection_data();
    void aPersonIsAppendedToTheSelection();
    void aMissingSelectionIsMade();
    void aSelectedPersonIsNotWrittenAgain_data();
    void aSelectedPersonIsNotWrittenAgain();
    void selectingIsLoggedFromDebugLevel2On_data();
    void selectingIsLoggedFromDebugLevel2On();
    void pid0IsNeverSelected();
    void thereMustBeExactlyOneExport_data();
    void thereMustBeExactlyOneExport();
    void theKeyOfTheSelectionFollowsThatOfTheExport_data();
    void theKeyOfTheSelectionFollowsThatOfTheExport();
    void testModeStillSelects();
    void aFailureToReadTheExportsSelectsNoPerson();
    void aFailureToWriteTheSelectionIsReported();

    void aPersonIsBoundToPayrollSettings_data();
    void aPersonIsBoundToPayrollSettings();
    void aBoundPersonIsBoundAgain();
    void bindingTheSameAgainFails();
    void anUnknownPersonIsNotBound_data();
    void anUnknownPersonIsNotBound();
    void aPersonOfUid0IsNotBound();
    void aFailedLookUpBindsNoPerson_data();
    void aFailedLookUpBindsNoPerson();
    void aFailureToBindIsCritical_data();
    void aFailureToBindIsCritical();
    void testModeBindsNoPerson_data();
    void testModeBindsNoPerson();

private:
    void setVariable(const QString &name, const QString &value)
    {
        m_db.run(QString("INSERT INTO vars (name, value) VALUES ('%1', '%2')").arg(name, value));
    }
    QString variable(const QString &name)
    {
        return m_db.value("SELECT value FROM vars WHERE name = '" + name + "'").toString();
    }
    void insertPerson()
    {
        m_db.run("INSERT INTO people (uid, pid) VALUES (41, 1111), (42, 12342)");
    }
};

// ---- The selection ------------------------------------------------------------------------------

void TestPayroll::aPersonIsAppendedToTheSelection_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("empty") << ""
                           << "12342";
    QTest::newRow("one other") << "10"
                               << "10,12342";
    QTest::newRow("several others") << "30,10,20"
                                    << "30,10,20,12342";
    QTest::newRow("an empty part") << "10,,20"
                                   << "10,20,12342";
    QTest::newRow("an empty part at the begin") << ",10,20"
                                                << "10,20,12342";
    QTest::newRow("an empty part at the end") << "10,20,"
                                              << "10,20,12342";
    QTest::newRow("empty parts at the ends") << ",10,20,,"
                                             << "10,20,12342";
    QTest::newRow("only separators") << ",,,"
                                     << "12342";
    QTest::newRow("pids that contain this one") << "123421,112342"
                                                << "123421,112342,12342";
    QTest::newRow("this one with a blank") << "10, 12342"
                                           << "10, 12342,12342";
    QTest::newRow("this one with a zero") << "012342"
                                          << "012342,12342";
    QTest::newRow("words") << "all,none"
                           << "all,none,12342";
    const QStringList many = QString("10,20,300,4000").repeated(20).split(',');
    for (int others : {1, 2, 3, 5, 8, 13, 21, 34, 55}) {
        QStringList parts = many;
        parts.insert(others, QString());
        QTest::addRow("an empty part after %d of many", others)
            << parts.join(',') << many.join(',') + ",12342";
    }
}

void TestPayroll::aPersonIsAppendedToTheSelection()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    setVariable("exportPam.3.active", "1");
    setVariable("exportPam.3.selPeople", before);
    const Trace trace = observe([this] { QVERIFY(m_worker->addPersonIntoPam(12342)); });
    QCOMPARE(trace.statements,
             QStringList({kFindExport, getStatement("exportPam.3.selPeople"), kPrepareSet,
                          setStatement("exportPam.3.selPeople", after)}));
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(m_db.dump("vars"),
             "name=exportPam.3.active value=1\nname=exportPam.3.selPeople value=" + after);
}

void TestPayroll::aMissingSelectionIsMade()
{
    setVariable("exportPam.3.active", "1");
    const Trace trace = observe([this] { QVERIFY(m_worker->addPersonIntoPam(4294967295U)); });
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(variable("exportPam.3.selPeople"), QString("4294967295"));
}

void TestPayroll::aSelectedPersonIsNotWrittenAgain_data()
{
    QTest::addColumn<QString>("selection");
    QTest::newRow("alone") << "12342";
    QTest::newRow("first") << "12342,10";
    QTest::newRow("last") << "10,12342";
    QTest::newRow("first, after an empty part") << ",12342,10";
    QTest::newRow("last, before an empty part") << "10,12342,";
    QTest::newRow("in the middle, with empty parts") << "10,,12342,,20,";
    QTest::newRow("twice") << "12342,12342";
}

void TestPayroll::aSelectedPersonIsNotWrittenAgain()
{
    QFETCH(QString, selection);
    setVariable("exportPam.3.active", "1");
    setVariable("exportPam.3.selPeople", selection);
    const Trace trace = observe([this] { QVERIFY(m_worker->addPersonIntoPam(12342)); });
    QCOMPARE(trace.statements, QStringList({kFindExport, getStatement("exportPam.3.selPeople")}));
    QCOMPARE(variable("exportPam.3.selPeople"), selection);
}

void TestPayroll::selectingIsLoggedFromDebugLevel2On_data()
{
    addDebugLevels();
}

void TestPayroll::selectingIsLoggedFromDebugLevel2On()
{
    QFETCH(int, debugLevel);
    setVariable("exportPam.3.active", "1");
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] {
        QVERIFY(m_worker->addPersonIntoPam(12342));
        QVERIFY(!m_worker->addPersonIntoPam(0));
    });
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{2, "D MHRWorker::addPersonIntoPam(12342)"},
                      {2, "D MHRWorker::addPersonIntoPam(0)"}}));
}

void TestPayroll::pid0IsNeverSelected()
{
    setVariable("exportPam.3.active", "1");
    const Trace trace = observe([this] { QVERIFY(!m_worker->addPersonIntoPam(0)); });
    QCOMPARE(trace.statements, QStringList());
}

void TestPayroll::thereMustBeExactlyOneExport_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("none") << QStringList();
    QTest::newRow("two") << QStringList({"exportPam.1.active", "exportPam.2.active"});
    QTest::newRow("one and a longer name")
        << QStringList({"exportPam.1.active", "exportPam.1.activeSince"});
    QTest::newRow("no settings id") << QStringList("exportPam.active");
    QTest::newRow("only a selection") << QStringList("exportPam.1.selPeople");
    QTest::newRow("another module") << QStringList("importPam.1.active");
}

void TestPayroll::thereMustBeExactlyOneExport()
{
    QFETCH(QStringList, keys);
    for (const QString &key : qAsConst(keys))
        setVariable(key, "1");
    const QString before = m_db.dump("vars");
    const Trace trace = observe([this] { QVERIFY(!m_worker->addPersonIntoPam(12342)); });
    QCOMPARE(trace.statements, QStringList(kFindExport));
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(m_db.dump("vars"), before);
}

void TestPayroll::theKeyOfTheSelectionFollowsThatOfTheExport_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("selectionKey");
    QTest::newRow("an id") << "exportPam.3.active"
                           << "1"
                           << "exportPam.3.selPeople";
    QTest::newRow("a value that says no") << "exportPam.3.active"
                                          << "0"
                                          << "exportPam.3.selPeople";
    QTest::newRow("no value") << "exportPam.17.active"
                              << ""
                              << "exportPam.17.selPeople";
    QTest::newRow("a longer name") << "exportPam.3.activeSince"
                                   << "1"
                                   << "exportPam.3.selPeopleSince";
    QTest::newRow("another case") << "exportPam.Active.active"
                                  << "1"
                                  << "exportPam.Active.selPeople";
}

void TestPayroll::theKeyOfTheSelectionFollowsThatOfTheExport()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, selectionKey);
    setVariable(key, value);
    observe([this] { QVERIFY(m_worker->addPersonIntoPam(12342)); });
    QCOMPARE(m_db.rows("SELECT value FROM vars WHERE name = BINARY '" + selectionKey + "'"),
             TableRows({{"12342"}}));
    QCOMPARE(variable(key), value);
}

void TestPayroll::testModeStillSelects()
{
    setVariable("exportPam.3.active", "1");
    m_worker->setTestMode(true);
    observe([this] { QVERIFY(m_worker->addPersonIntoPam(12342)); });
    QCOMPARE(variable("exportPam.3.selPeople"), QString("12342"));
}

void TestPayroll::aFailureToReadTheExportsSelectsNoPerson()
{
    setVariable("exportPam.3.active", "1");
    m_db.hideTable("vars");
    const Trace trace = observe([this] { QVERIFY(!m_worker->addPersonIntoPam(12342)); });
    QCOMPARE(trace.statements, QStringList(kFindExport));
    QCOMPARE(trace.log,
             QStringList("C TepDbSettings::variableGetMultiple - SQL ERROR: "
                         + SqlErrors::missingText("vars")));
}

void TestPayroll::aFailureToWriteTheSelectionIsReported()
{
    setVariable("exportPam.3.active", "1");
    setVariable("exportPam.3.selPeople", "10");
    m_db.refuse("UPDATE", "vars");
    const Trace trace = observe([this] { QVERIFY(!m_worker->addPersonIntoPam(12342)); });
    QCOMPARE(trace.log.size(), 1);
    QVERIFY2(trace.log.first().startsWith("C variableSet ERROR: \"refused by the test "),
             qPrintable(trace.log.first()));
    QCOMPARE(variable("exportPam.3.selPeople"), QString("10"));
}

// ---- The settings of a person -------------------------------------------------------------------

void TestPayroll::aPersonIsBoundToPayrollSettings_data()
{
    addDebugLevels();
}

void TestPayroll::aPersonIsBoundToPayrollSettings()
{
    QFETCH(int, debugLevel);
    insertPerson();
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] { QVERIFY(m_worker->dbAddPersonIntoPam(12342, 2)); });
    QCOMPARE(trace.statements,
             QStringList({"SELECT uid FROM people WHERE pid=12342",
                          "INSERT INTO people_pam (uid, id) VALUES(42, 2) ON DUPLICATE KEY UPDATE "
                          "id=VALUES(id)"}));
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{1, "D MHRWorker::dbAddPersonIntoPam(pid: 12342, pamSettingsID: 2)"}}));
    QCOMPARE(m_db.dump("people_pam"), QString("uid=42 id=2"));
}

void TestPayroll::aBoundPersonIsBoundAgain()
{
    insertPerson();
    m_db.run("INSERT INTO people_pam (uid, id) VALUES (41, 1), (42, 1)");
    observe([this] { QVERIFY(m_worker->dbAddPersonIntoPam(12342, 2)); });
    QCOMPARE(m_db.dump("people_pam"), QString("uid=41 id=1\nuid=42 id=2"));
}

void TestPayroll::bindingTheSameAgainFails()
{
    insertPerson();
    const Trace trace = observe([this] {
        QVERIFY(m_worker->dbAddPersonIntoPam(12342, 2));
        QVERIFY(!m_worker->dbAddPersonIntoPam(12342, 2));
    });
    QCOMPARE(trace.statements.size(), 4);
    QCOMPARE(trace.log, QStringList());
    QCOMPARE(m_db.dump("people_pam"), QString("uid=42 id=2"));
}

namespace {

QVector<LogLine> notFoundLines()
{
    return {{1, "D MHRWorker::dbAddPersonIntoPam(pid: 12342, pamSettingsID: 2)"},
            {1,
             "W MHRWorker::dbAddPersonIntoPam(pid: 12342, pamSettingsID: 2) - Unique person ID "
             "([people].uid) not found!"}};
}

} // namespace

void TestPayroll::anUnknownPersonIsNotBound_data()
{
    addDebugLevels();
}

void TestPayroll::anUnknownPersonIsNotBound()
{
    QFETCH(int, debugLevel);
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] { QVERIFY(!m_worker->dbAddPersonIntoPam(12342, 2)); });
    QCOMPARE(trace.statements, QStringList("SELECT uid FROM people WHERE pid=12342"));
    QCOMPARE(trace.log, linesAt(debugLevel, notFoundLines()));
}

void TestPayroll::aPersonOfUid0IsNotBound()
{
    insertPerson();
    m_db.run("UPDATE people SET uid = 0 WHERE pid = 12342");
    setDebugLevel(1);
    const Trace trace = observe([this] { QVERIFY(!m_worker->dbAddPersonIntoPam(12342, 2)); });
    QCOMPARE(trace.statements, QStringList("SELECT uid FROM people WHERE pid=12342"));
    QCOMPARE(trace.log, linesAt(1, notFoundLines()));
}

void TestPayroll::aFailedLookUpBindsNoPerson_data()
{
    addDebugLevels();
}

void TestPayroll::aFailedLookUpBindsNoPerson()
{
    QFETCH(int, debugLevel);
    insertPerson();
    m_db.hideTable("people");
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] { QVERIFY(!m_worker->dbAddPersonIntoPam(12342, 2)); });
    QCOMPARE(trace.statements, QStringList("SELECT uid FROM people WHERE pid=12342"));
    QCOMPARE(trace.log, linesAt(debugLevel, notFoundLines()));
}

void TestPayroll::aFailureToBindIsCritical_data()
{
    addDebugLevels();
}

void TestPayroll::aFailureToBindIsCritical()
{
    QFETCH(int, debugLevel);
    insertPerson();
    m_db.refuse("INSERT", "people_pam");
    setDebugLevel(debugLevel);
    const Trace trace = observe([this] { QVERIFY(!m_worker->dbAddPersonIntoPam(12342, 2)); });
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{1, "D MHRWorker::dbAddPersonIntoPam(pid: 12342, pamSettingsID: 2)"},
                      {0,
                       "C MHRWorker::dbAddPersonIntoPam(pid: 12342, pamSettingsID: 2) - SQL "
                       "ERROR: "
                           + SqlErrors::refusedText()}}));
    QCOMPARE(m_db.dump("people_pam"), QString());
}

void TestPayroll::testModeBindsNoPerson_data()
{
    addDebugLevels();
}

void TestPayroll::testModeBindsNoPerson()
{
    QFETCH(int, debugLevel);
    insertPerson();
    setDebugLevel(debugLevel);
    m_worker->setTestMode(true);
    const Trace trace = observe([this] { QVERIFY(m_worker->dbAddPersonIntoPam(12342, 2)); });
    QCOMPARE(trace.statements, QStringList());
    QCOMPARE(trace.log,
             linesAt(debugLevel,
                     {{1, "D MHRWorker::dbAddPersonIntoPam(pid: 12342, pamSettingsID: 2)"},
                      {1,
                       "W MHRWorker::dbAddPersonIntoPam(pid: 12342, pamSettingsID: 2) - "
                       "Testing mode is active, person not really add into PaM!"}}));
    QCOMPARE(m_db.dump("people_pam"), QString());
}

QTEST_GUILESS_MAIN(TestPayroll)
#include "tst_payroll.moc"
