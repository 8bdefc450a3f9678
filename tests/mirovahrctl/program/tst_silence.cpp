#include "cli/database.h"
#include "cli/databaseoptions.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/exportfile.h"
#include "tests/support/mysqlproxy.h"
#include "tests/support/silentserver.h"
#include "tests/support/testdatabase.h"

#include <QCommandLineParser>
#include <QTest>

/// Database servers that neither answer nor close the connection, before the subcommands that use
/// one. All would wait for ever without --read-timeout.
class TestSilence : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void theTimeoutsStandInTheConnectOptions_data();
    void theTimeoutsStandInTheConnectOptions();

    void aServerThatDoesNotGreetIsNamed();
    void theMonitoringSystemHearsOfAServerThatDoesNotGreet();
    void aServerThatFallsSilentIsNamed_data();
    void aServerThatFallsSilentIsNamed();
    void aLossAtTheLastStatementIsNoFinding();
    void aFailureOfAServerThatAnswersKeepsItsReason();

private:
    QStringList account();
    ToolRun runUntilSilence(MySqlProxy &proxy, const QStringList &subcommand,
                            const QString &command);

    TestDatabase m_db;
    ExportFile m_export;
};

void TestSilence::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
}

void TestSilence::init()
{
    m_export.write({ExportRow().with(&ExportRow::osobniCislo, 4711)});
}

QStringList TestSilence::account()
{
    return {"--database", m_db.server().databaseName(), "--user", "root"};
}

void TestSilence::theTimeoutsStandInTheConnectOptions_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("options");
    QTest::newRow("by default") << QStringList()
                                << "MYSQL_OPT_CONNECT_TIMEOUT=30;MYSQL_OPT_READ_TIMEOUT=120;"
                                   "MYSQL_OPT_WRITE_TIMEOUT=120;UNIX_SOCKET=/s";
    QTest::newRow("longer") << QStringList{"--read-timeout", "600"}
                            << "MYSQL_OPT_CONNECT_TIMEOUT=30;MYSQL_OPT_READ_TIMEOUT=600;"
                               "MYSQL_OPT_WRITE_TIMEOUT=600;UNIX_SOCKET=/s";
    QTest::newRow("shorter than for connecting")
        << QStringList{"--read-timeout", "5"}
        << "MYSQL_OPT_CONNECT_TIMEOUT=5;MYSQL_OPT_READ_TIMEOUT=5;"
           "MYSQL_OPT_WRITE_TIMEOUT=5;UNIX_SOCKET=/s";
    QTest::newRow("none") << QStringList{"--read-timeout", "0"} << "UNIX_SOCKET=/s";
    // Of two the driver takes the last.
    QTest::newRow("with connect options")
        << QStringList{"--connect-options", "CLIENT_COMPRESS;MYSQL_OPT_READ_TIMEOUT=9"}
        << "MYSQL_OPT_CONNECT_TIMEOUT=30;MYSQL_OPT_READ_TIMEOUT=120;MYSQL_OPT_WRITE_TIMEOUT=120;"
           "UNIX_SOCKET=/s;CLIENT_COMPRESS;MYSQL_OPT_READ_TIMEOUT=9";
}

/// Those of yavhost reach the plugin, whose connection is a clone.
void TestSilence::theTimeoutsStandInTheConnectOptions()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, options);
    const DatabaseSources nothingElse{"NO_SUCH_VARIABLE", QString()};
    QCommandLineParser parser;
    addDatabaseOptions(parser, nothingElse);
    QVERIFY(parser.parse(QStringList{"program", "--socket", "/s", "--database", "d", "--user", "u"}
                         + arguments));
    DatabaseOptions read;
    QString warning;
    QCOMPARE(readDatabaseOptions(parser, nothingElse, read, warning), QString());
    QCOMPARE(Database(read, "timeouts").handle().connectOptions(), options);
}

/// The server behind the proxy falls silent at the first command that begins so.
ToolRun TestSilence::runUntilSilence(MySqlProxy &proxy, const QStringList &subcommand,
                                     const QString &command)
{
    Disturbance silence;
    silence.way = Disturbance::Way::Hush;
    proxy.disturb(command, silence);
    proxy.release();
    return runTool(subcommand
                   + QStringList{"--socket", proxy.socketPath(), "--read-timeout", "1",
                                 "--connect-options", "MYSQL_OPT_CONNECT_TIMEOUT=30"}
                   + account());
}

void TestSilence::aServerThatDoesNotGreetIsNamed()
{
    const SilentServer server;
    const QString port = QString::number(server.port());
    const ToolRun run =
        runTool(QStringList{"status", "--host", "127.0.0.1", "--port", port, "--read-timeout", "1"}
                + account());
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QVERIFY2(run.err.startsWith("mirovahrctl: status: The database cannot be opened: "),
             run.report().constData());
    QVERIFY2(run.err.endsWith(" (server 127.0.0.1:" + port + ").\n"), run.report().constData());
}

void TestSilence::theMonitoringSystemHearsOfAServerThatDoesNotGreet()
{
    const SilentServer server;
    const QString port = QString::number(server.port());
    const ToolRun run = runTool(QStringList{"status", "--nagios", "--host", "127.0.0.1", "--port",
                                            port, "--read-timeout", "1"}
                                + account());
    QCOMPARE(int(run.status), 2);
    QVERIFY2(run.out.startsWith("MIROVAHR CRITICAL - The database cannot be opened: "),
             run.report().constData());
    QVERIFY2(run.out.contains(" (server 127.0.0.1:" + port + ")"), run.report().constData());
}

void TestSilence::aServerThatFallsSilentIsNamed_data()
{
    QTest::addColumn<QStringList>("subcommand");
    QTest::addColumn<QString>("command");
    const QString file = m_export.path();
    QTest::newRow("status") << QStringList{"status"} << "SELECT UNIX_TIMESTAMP(), ";
    QTest::newRow("status, at the force flag") << QStringList{"status"} << "SELECT value FROM vars";
    QTest::newRow("check-db") << QStringList{"check-db"} << "SELECT CURRENT_USER()";
    QTest::newRow("force") << QStringList{"force"} << "EXECUTE INSERT INTO vars ";
    QTest::newRow("explain") << QStringList{"explain", "1001.1"} << "SELECT @@SESSION.sql_mode";
    QTest::newRow("check-file") << QStringList{"check-file", file} << "SELECT COLUMN_NAME, ";
    QTest::newRow("preview, at the list of tables")
        << QStringList{"preview", file} << "SELECT t.TABLE_NAME";
    QTest::newRow("preview, in the rows") << QStringList{"preview", file} << "SELECT CAST(t.";
}

void TestSilence::aServerThatFallsSilentIsNamed()
{
    QFETCH(QStringList, subcommand);
    QFETCH(QString, command);
    MySqlProxy proxy(m_db.server().socketPath());
    const ToolRun run = runUntilSilence(proxy, subcommand, command);
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QCOMPARE(run.err,
             QStringLiteral("mirovahrctl: %1: The database server %2 has closed the connection or "
                            "did not answer in time (see --read-timeout).\n")
                 .arg(subcommand.first(), proxy.socketPath()));
}

/// Without one of the tables check-db ends with the routines, whose calls may fail.
void TestSilence::aLossAtTheLastStatementIsNoFinding()
{
    MySqlProxy proxy(m_db.server().socketPath());
    m_db.hideTable("term");
    const ToolRun run = runUntilSilence(proxy, {"check-db"}, "CALL updateTermsSync");
    m_db.restoreTable("term");
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QCOMPARE(run.out, QString());
}

/// A node that has lost its cluster refuses the question whether it answers.
void TestSilence::aFailureOfAServerThatAnswersKeepsItsReason()
{
    MySqlProxy proxy(m_db.server().socketPath());
    Disturbance refusal;
    refusal.way = Disturbance::Way::Refuse;
    refusal.errorNumber = 1047;
    refusal.sqlState = "08S01";
    refusal.errorText = "WSREP has not yet prepared node for application use";
    proxy.disturb("SELECT 1", refusal);
    proxy.release();
    m_db.hideTable("people");
    const ToolRun run = runTool(QStringList{"status", "--socket", proxy.socketPath()} + account());
    m_db.restoreTable("people");
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QVERIFY2(run.err.startsWith("mirovahrctl: status: The database cannot be used: Table"),
             run.report().constData());
}

QTEST_GUILESS_MAIN(TestSilence)
#include "tst_silence.moc"
