#include "tests/worker/support/loghook.h"
#include "tests/worker/support/workertest.h"

#include <QRegularExpression>
#include <QTest>

class TestDatabaseLoss : public WorkerTest {
    Q_OBJECT

private Q_SLOTS:
    void whileTheDatabaseIsDownOnlyTheTickCounterAdvances();
    void aFailedFirstTickIsNotRepeated();
    void withoutVerboseLogEachFailingTickHasTwoLines();
    void aServerRestartBetweenTicksGoesUnnoticed();
    void aServerLostBeforePeopleAreLoadedEndsTheSynchronisation();
    void aServerLostWhileWritingFailsTheWritesAndTheNextTickWorks();
    void aMissingSettingsTableLeavesRegularTicksWorking();
    void aMissingPeopleTableIsForgottenByTheNextTick();

private:
    QString openError();
};

/// What the connection itself reports while the server is down.
QString TestDatabaseLoss::openError()
{
    return QString("C MHRWorker::dbCheckOpen() - SQL ERROR: Can't connect to local server through "
                   "socket '%1' (2) QMYSQL: Unable to connect")
        .arg(m_db.server().socketPath());
}

void TestDatabaseLoss::whileTheDatabaseIsDownOnlyTheTickCounterAdvances()
{
    startWorker().setSyncInterval(1);
    tick();
    m_db.stopServer();
    for (int number = 2; number <= 3; ++number) {
        QCOMPARE(tick(),
                 QStringList({QString("D MHRWorker::checkSync(): #%1").arg(number),
                              "D MHRWorker::dbCheckOpen()", openError(),
                              "W MHRWorker::checkSync() - database not open!"}));
    }
    m_db.startServer();
    const QStringList lines = tick();
    QCOMPARE(lines.first(), QString("D MHRWorker::checkSync(): #4"));
    QVERIFY(lines.contains("D MHRWorker: BEGIN synchronization #2 (force: NO)"));
}

void TestDatabaseLoss::aFailedFirstTickIsNotRepeated()
{
    startWorker(1).setSyncInterval(3);
    m_db.stopServer();
    tick();
    m_db.startServer();
    QCOMPARE(tick(), QStringList());
    QVERIFY(tick().contains("D MHRWorker: BEGIN synchronization #1 (force: NO)"));
}

void TestDatabaseLoss::withoutVerboseLogEachFailingTickHasTwoLines()
{
    startWorker(0);
    m_db.stopServer();
    QCOMPARE(tick(), QStringList({openError(), "W MHRWorker::checkSync() - database not open!"}));
    m_db.startServer();
    QCOMPARE(tick(), QStringList());
}

void TestDatabaseLoss::aServerRestartBetweenTicksGoesUnnoticed()
{
    startWorker(1).setSyncInterval(1);
    tick();
    m_db.killServer();
    m_db.startServer();
    m_export->write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    const QStringList lines = tick();
    QCOMPARE(lines.filter(QRegularExpression("^[WC] ")), QStringList());
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), 1);
}

void TestDatabaseLoss::aServerLostBeforePeopleAreLoadedEndsTheSynchronisation()
{
    startWorker(1).setSyncInterval(1);
    force();
    m_export->write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    {
        const LogHook hook("MHRWorker: BEGIN synchronization #1 (force: YES)",
                           [this] { m_db.killServer(); });
        const QStringList lines = tick();
        QCOMPARE(lines.size(), 5);
        QVERIFY(lines.at(1).startsWith("C MHRWorker::dbLoadPeople() - SQL ERROR [20"));
        QCOMPARE(lines.at(2),
                 QString("C MHRWorker: load people from TEPDB failed - synchronization "
                         "terminated!"));
        QCOMPARE(lines.at(3), QString("D MHRWorker: END synchronization #1 (waiting records: 0)"));
        QVERIFY(lines.at(4).startsWith("C variableSet ERROR: \""));
    }
    m_db.startServer();
    m_export->write({ExportRow().with(&ExportRow::osobniCislo, 8888)});
    // The flag could not be reset, so this one is forced as well.
    QVERIFY(tick().contains("D MHRWorker: BEGIN synchronization #2 (force: YES)"));
    QCOMPARE(forceFlag(), QString("0"));
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), 0);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 88881").toInt(), 1);
}

void TestDatabaseLoss::aServerLostWhileWritingFailsTheWritesAndTheNextTickWorks()
{
    startWorker(1).setSyncInterval(1);
    const ExportRow first = ExportRow().with(&ExportRow::osobniCislo, 7777);
    const ExportRow second = ExportRow().with(&ExportRow::osobniCislo, 8888);
    m_export->write({first, second});
    {
        const LogHook hook("MHRWorker::dbAddPerson(8888.1)", [this] { m_db.killServer(); });
        const QStringList lines = tick();
        QVERIFY(!lines.filter("C MHRWorker::dbAddPerson(8888.1) - SQL ERROR: ").isEmpty());
        QVERIFY(lines.last().startsWith("D MHRWorker: END synchronization #1 "));
    }
    m_db.startServer();
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), 1);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 88881").toInt(), 0);

    force();
    m_export->write({first, second});
    const QStringList lines = tick();
    QCOMPARE(lines.filter(QRegularExpression("^[WC] ")), QStringList());
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 88881").toInt(), 1);
}

void TestDatabaseLoss::aMissingSettingsTableLeavesRegularTicksWorking()
{
    startWorker(1).setSyncInterval(2);
    m_db.hideTable("vars");
    const QString error = "C TepDbSettings::variableGet - SQL ERROR: Table 'tepdb.vars' doesn't "
                          "exist QMYSQL: Unable to execute query";
    QCOMPARE(tick(),
             QStringList({error, "D MHRWorker: BEGIN synchronization #1 (force: NO)",
                          "D MHRWorker: END synchronization #1 (waiting records: 0)"}));
    tick();
    QCOMPARE(tick(), QStringList(error));
    m_db.restoreTable("vars");
    force();
    tick();
    QCOMPARE(tick(), QStringList());
    QCOMPARE(forceFlag(), QString("0"));
}

void TestDatabaseLoss::aMissingPeopleTableIsForgottenByTheNextTick()
{
    startWorker(1).setSyncInterval(1);
    m_export->write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    m_db.hideTable("people");
    QVERIFY(tick().contains("C MHRWorker: load people from TEPDB failed - synchronization "
                            "terminated!"));
    m_db.restoreTable("people");
    m_export->write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    QCOMPARE(tick().filter(QRegularExpression("^[WC] ")), QStringList());
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), 1);
}

QTEST_GUILESS_MAIN(TestDatabaseLoss)
#include "tst_databaseloss.moc"
