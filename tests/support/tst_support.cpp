#include "privatedb/boundprocess.h"
#include "tests/support/exportfile.h"
#include "tests/support/logcapture.h"
#include "tests/support/mysqlproxy.h"
#include "tests/support/testdatabase.h"
#include "tests/support/verifysql.h"

#include <QFile>
#include <QLoggingCategory>
#include <QThread>

#include <csignal>
#include <thread>

class TestSupport : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init() { m_db.reset(); }

    void resetUndoesWhatATestDid();
    void resetBringsBackTheNextAutomaticNumber();
    void resetBringsBackARoutineOfTheSameName();
    void resetKeepsOpenConnectionsUsable();
    void anEmptyDatabaseHasEveryTableAndNoRow();
    void statementsAreThoseOfTheHostAccountInTheirOrder();
    void preparedStatementsAreDistinguishedFromDirectOnes();
    void aFailedExecutionIsLoggedAsWell();
    void theServerLogsATextWithoutItsTrailingSemicolon();
    void aTextOfSeveralStatementsIsLoggedWhole();
    void theDriversOwnEventsAreLeftOut();
    void valuesOfRowsAreTextAndNullIsSpelledOut();
    void rowsAreShownOneALine();
    void differenceNamesTheRowsThatChanged();
    void aHiddenTableFailsEveryStatementOnIt();
    void aRefusedEventFailsForTheRowsOfItsCondition();
    void dataSurvivesARestartAndACrash();
    void theProxyLetsGoOfAClientWhoseSocketAProgramHasInherited();

    void linesCarryTheirLevel();
    void messagesKnowTheirThreadAndCategory();
    void waitingEndsWithTheLineOfAnotherThread();
    void waitingForALineThatNeverComesGivesUp();
    void anInnerCaptureHidesItsMessagesFromTheOuterOne();

    void anExportLineHas18FieldsInTheirOrder();
    void anExportFileIsWrittenWithLineFeedsAndGoesAway();

private:
    TestDatabase m_db;
};

void TestSupport::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
}

void TestSupport::resetUndoesWhatATestDid()
{
    const DatabaseState before = m_db.dumpAll();
    QVERIFY(before.value("people").size() > 5);
    m_db.run("DELETE FROM people");
    m_db.run("DROP TABLE vars");
    m_db.run("DROP PROCEDURE updateTermsSync");
    m_db.refuse("INSERT", "brape");
    m_db.reset();
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
    m_db.run("CALL updateTermsSync(1, 2)");
    m_db.run("INSERT INTO brape (bid, uid) VALUES (1, 77)");
}

void TestSupport::resetBringsBackTheNextAutomaticNumber()
{
    const auto newBranch = [this] {
        m_db.run("INSERT INTO branches (name) VALUES ('new')");
        return m_db.value("SELECT MAX(bid) FROM branches").toInt();
    };
    const int first = newBranch();
    QCOMPARE(newBranch(), first + 1);
    m_db.run("DELETE FROM branches WHERE name = 'new'");
    m_db.reset();
    QCOMPARE(newBranch(), first);
}

void TestSupport::resetBringsBackARoutineOfTheSameName()
{
    m_db.run("CREATE OR REPLACE FUNCTION midnightFromTs(p_ts BIGINT) RETURNS BIGINT RETURN 5");
    m_db.reset();
    QVERIFY(m_db.value("SELECT midnightFromTs(1700000000)").toLongLong() > 5);
}

void TestSupport::resetKeepsOpenConnectionsUsable()
{
    QSqlDatabase database = m_db.openPluginConnection();
    m_db.reset();
    QSqlQuery query(database);
    VERIFY_SQL(query, query.exec("SELECT COUNT(*) FROM people") && query.next());
    QCOMPARE(query.value(0).toInt(), 8);
}

void TestSupport::anEmptyDatabaseHasEveryTableAndNoRow()
{
    const QStringList tables = m_db.dumpAll().keys();
    m_db.resetEmpty();
    const DatabaseState state = m_db.dumpAll();
    QCOMPARE(state.keys(), tables);
    for (const TableRows &rows : state)
        QVERIFY(rows.isEmpty());
}

void TestSupport::statementsAreThoseOfTheHostAccountInTheirOrder()
{
    QSqlDatabase first = m_db.openPluginConnection();
    QSqlDatabase second = m_db.openPluginConnection();
    m_db.clearStatements();
    QSqlQuery query(first);
    VERIFY_SQL(query, query.exec("SELECT 1"));
    m_db.run("SELECT 2");
    QSqlQuery other(second);
    VERIFY_SQL(other, other.exec("SELECT 'Ľubica'"));
    QVERIFY(!query.exec("SELECT nothing FROM nowhere"));
    QCOMPARE(m_db.statements(),
             QStringList({"SELECT 1", "SELECT 'Ľubica'", "SELECT nothing FROM nowhere"}));
    m_db.clearStatements();
    QCOMPARE(m_db.statements(), QStringList());
}

void TestSupport::preparedStatementsAreDistinguishedFromDirectOnes()
{
    QSqlDatabase database = m_db.openPluginConnection();
    m_db.clearStatements();
    {
        QSqlQuery query(database);
        VERIFY_SQL(query, query.prepare("INSERT INTO vars (name, value) VALUES(:name, :value)"));
        query.bindValue(":name", "a");
        query.bindValue(":value", 1);
        VERIFY_SQL(query, query.exec());
    }
    QCOMPARE(m_db.statements(),
             QStringList({"PREPARE: INSERT INTO vars (name, value) VALUES(?, ?)",
                          "EXECUTE: INSERT INTO vars (name, value) VALUES('a', 1)"}));
}

void TestSupport::aFailedExecutionIsLoggedAsWell()
{
    QSqlQuery query(m_db.openPluginConnection());
    m_db.clearStatements();
    VERIFY_SQL(query, query.prepare("INSERT INTO people_pam (uid, id) VALUES(1, ?)"));
    query.bindValue(0, 1);
    QVERIFY(!query.exec());
    QCOMPARE(m_db.statements(),
             QStringList({"PREPARE: INSERT INTO people_pam (uid, id) VALUES(1, ?)",
                          "EXECUTE: INSERT INTO people_pam (uid, id) VALUES(1, 1)"}));
}

void TestSupport::theServerLogsATextWithoutItsTrailingSemicolon()
{
    QSqlQuery query(m_db.openPluginConnection());
    m_db.clearStatements();
    VERIFY_SQL(query, query.exec("SELECT  1 ; "));
    QCOMPARE(m_db.statements(), QStringList("SELECT  1"));
}

void TestSupport::aTextOfSeveralStatementsIsLoggedWhole()
{
    QSqlQuery query(m_db.openPluginConnection());
    m_db.clearStatements();
    VERIFY_SQL(query, query.exec("SELECT 1;SELECT 2;SELECT 3;"));
    while (query.nextResult()) { }
    QCOMPARE(m_db.statements(), QStringList({"SELECT 1;SELECT 2;SELECT 3"}));
}

void TestSupport::theDriversOwnEventsAreLeftOut()
{
    m_db.clearStatements();
    {
        QSqlDatabase database = m_db.openPluginConnection();
        QVERIFY(database.transaction());
        QVERIFY(database.rollback());
        database.close();
    }
    QCOMPARE(m_db.statements(), QStringList({"BEGIN WORK", "ROLLBACK"}));
    const QVector<ServerEvent> events = m_db.events();
    QCOMPARE(events.first().command, QString("Connect"));
}

void TestSupport::valuesOfRowsAreTextAndNullIsSpelledOut()
{
    m_db.resetEmpty();
    m_db.run("INSERT INTO admins (aid, personalNumber) VALUES (2, 7), (1, NULL)");
    QCOMPARE(m_db.rows("SELECT * FROM admins ORDER BY aid"),
             TableRows({{"1", "NULL"}, {"2", "7"}}));
    QCOMPARE(m_db.value("SELECT personalNumber FROM admins WHERE aid = 2").toUInt(), 7u);
    QCOMPARE(m_db.value("SELECT 1 FROM admins WHERE aid = 3"), QVariant());
    QCOMPARE(m_db.dump("admins"), QString("aid=1 personalNumber=NULL\naid=2 personalNumber=7"));
}

void TestSupport::rowsAreShownOneALine()
{
    const QScopedArrayPointer<char> shown(QTest::toString(TableRows({{"1", "NULL"}, {"2", "ž"}})));
    QCOMPARE(shown.data(), "1 | NULL\n2 | ž");
}

void TestSupport::differenceNamesTheRowsThatChanged()
{
    m_db.resetEmpty();
    m_db.run("INSERT INTO pzt (zid, tid) VALUES (1, 1), (1, 1)");
    const DatabaseState before = m_db.dumpAll({"vars"});
    m_db.run("INSERT INTO vars (name, value) VALUES ('a', 'b')");
    m_db.run("DELETE FROM pzt LIMIT 1");
    m_db.run("INSERT INTO inters (iid) VALUES (4)");
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll({"vars"})),
             QString("+ inters: iid=4\n- pzt: zid=1 tid=1"));
}

void TestSupport::aHiddenTableFailsEveryStatementOnIt()
{
    QSqlQuery query(m_db.openPluginConnection());
    m_db.hideTable("people");
    QVERIFY(!query.exec("SELECT uid FROM people"));
    m_db.restoreTable("people");
    VERIFY_SQL(query, query.exec("SELECT uid FROM people"));
}

void TestSupport::aRefusedEventFailsForTheRowsOfItsCondition()
{
    QSqlQuery query(m_db.openPluginConnection());
    m_db.refuse("INSERT", "brape", "no room", "NEW.bid = 2");
    QVERIFY(!query.exec("INSERT INTO brape (bid, uid) VALUES (2, 9)"));
    QVERIFY(query.lastError().databaseText().contains("no room"));
    VERIFY_SQL(query, query.exec("INSERT INTO brape (bid, uid) VALUES (1, 9)"));
    m_db.allow("INSERT", "brape");
    VERIFY_SQL(query, query.exec("INSERT INTO brape (bid, uid) VALUES (2, 9)"));
}

void TestSupport::dataSurvivesARestartAndACrash()
{
    const DatabaseState before = m_db.dumpAll();
    m_db.stopServer();
    QVERIFY(!m_db.pluginConnection("stopped").open());
    m_db.startServer();
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
    m_db.killServer();
    QVERIFY(!m_db.pluginConnection("killed").open());
    m_db.startServer();
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestSupport::theProxyLetsGoOfAClientWhoseSocketAProgramHasInherited()
{
    MySqlProxy proxy(m_db.server().socketPath());
    QSqlDatabase database = m_db.pluginConnection();
    database.setConnectOptions("UNIX_SOCKET=" + proxy.socketPath());
    QVERIFY(database.open());
    BoundProcess program(SIGKILL, BoundProcess::Group::OfItsOwn);
    program.start("sleep", {"infinity"});
    QVERIFY(program.waitForStarted(-1));
    database.close();
    const bool isIdle = proxy.waitUntilIdle();
    program.kill();
    program.waitForFinished(-1);
    QVERIFY(isIdle);
}

void TestSupport::linesCarryTheirLevel()
{
    LogCapture log;
    qDebug("a %d", 1);
    qInfo("b");
    qWarning("c");
    qCritical("d");
    QCOMPARE(log.lines(), QStringList({"D a 1", "I b", "W c", "C d"}));
    QCOMPARE(log.count("I b"), 1);
    QVERIFY(!log.contains("I"));
    log.clear();
    QCOMPARE(log.lines(), QStringList());
}

void TestSupport::messagesKnowTheirThreadAndCategory()
{
    LogCapture log;
    qDebug("here");
    const QLoggingCategory category("other");
    std::thread([&category] { qCWarning(category, "there"); }).join();
    const QVector<LogMessage> messages = log.messages();
    QCOMPARE(messages.size(), 2);
    QCOMPARE(messages[0].category, QString("default"));
    QCOMPARE(messages[0].threadId, QThread::currentThreadId());
    QCOMPARE(messages[1].category, QString("other"));
    QVERIFY(messages[1].threadId != QThread::currentThreadId());
}

void TestSupport::waitingEndsWithTheLineOfAnotherThread()
{
    LogCapture log;
    std::thread thread([] {
        for (int i = 0; i < 100; ++i)
            qDebug("line %d", i % 50);
    });
    QVERIFY(log.waitForText("49"));
    QVERIFY(log.waitForCount("D line 49", 2));
    thread.join();
    QVERIFY(log.waitForLine("D line 0"));
    QCOMPARE(log.lines().size(), 100);
}

void TestSupport::waitingForALineThatNeverComesGivesUp()
{
    LogCapture log;
    qDebug("something");
    QVERIFY(!log.waitForLine("D some", 1));
    QVERIFY(!log.waitForCount("D something", 2, 1));
    QVERIFY(!log.waitForText("nothing", 1));
}

void TestSupport::anInnerCaptureHidesItsMessagesFromTheOuterOne()
{
    LogCapture outer;
    {
        LogCapture inner;
        qInfo("inside");
        QCOMPARE(inner.lines(), QStringList("I inside"));
    }
    qInfo("outside");
    QCOMPARE(outer.lines(), QStringList("I outside"));
}

void TestSupport::anExportLineHas18FieldsInTheirOrder()
{
    QCOMPARE(ExportRow()
                 .with(&ExportRow::osobniCislo, 1)
                 .with(&ExportRow::poradoveCisloPP, 2)
                 .with(&ExportRow::titul, "c")
                 .with(&ExportRow::jmeno, "d")
                 .with(&ExportRow::prijmeni, "e")
                 .with(&ExportRow::titulZa, "f")
                 .with(&ExportRow::telefon, "g")
                 .with(&ExportRow::datumNastupu, QDate(2024, 2, 1))
                 .with(&ExportRow::datumVystupu, QDate())
                 .with(&ExportRow::stredisko, 10)
                 .with(&ExportRow::strediskoPopis, "k")
                 .with(&ExportRow::kalendar, 12)
                 .with(&ExportRow::kalendarPlatnostOd, "m")
                 .with(&ExportRow::typPracovnihoPomeru, 14)
                 .with(&ExportRow::stavPracovnihoPomeru, 15)
                 .with(&ExportRow::evidencniStav, 16)
                 .with(&ExportRow::dovolenaZustatek, "17.5")
                 .with(&ExportRow::nadrizenyOsobniCislo, 18)
                 .text(),
             QString("1|2|c|d|e|f|g|2024-02-01 00:00:00.000||10|k|12|m|14|15|16|17.5|18"));
}

void TestSupport::anExportFileIsWrittenWithLineFeedsAndGoesAway()
{
    QString path;
    {
        ExportFile file;
        path = file.path();
        QVERIFY(!file.exists());
        file.write(QStringList({"ž", "b"}));
        QFile written(path);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll(), QByteArray("ž\nb\n"));
        file.remove();
        QVERIFY(!file.exists());
        file.write(QVector<ExportRow>({ExportRow(), ExportRow()}));
        QVERIFY(file.exists());
    }
    QVERIFY(!QFile::exists(path));
}

QTEST_GUILESS_MAIN(TestSupport)
#include "tst_support.moc"
