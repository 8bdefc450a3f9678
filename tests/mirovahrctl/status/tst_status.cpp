#include "mirovahrctl/gatestate/gatestatus.h"
#include "mirovahrctl/report/wording.h"
#include "mirovahrctl/status/statusassessment.h"
#include "mirovahrctl/status/statusdata.h"
#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/accountrights.h"
#include "tests/support/localzone.h"
#include "tests/support/testdatabase.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

namespace {

/// The server's time for the account of the tool, so that ages are the same in every run.
constexpr qint64 kNow = 1800000000;

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// status: the state of the database and the gate, for people, for scripts and for monitoring.
class TestStatus : public QObject {
    Q_OBJECT

public:
    static void initMain() { qputenv("TZ", "UTC"); }

private Q_SLOTS:
    void initTestCase();
    void init();

    void theTextForPeopleIsPlain();
    void everythingIsCounted();
    void whatNeverHappenedIsLeftOut();
    void aChangeByAnAdministratorIsNotCaptured();
    void correctionsOfTodayAreCounted();
    void nothingIsWritten();

    void theNagiosLine_data();
    void theNagiosLine();
    void agesOfTheReport_data();
    void agesOfTheReport();

    void theGateIsReported();
    void everyTimeIsOfTheLocalZone();
    void aRefusedFileIsReported();
    void theGatesTimeCountsWhereItIsKnown_data();
    void theGatesTimeCountsWhereItIsKnown();
    void aStatusFileIsReadTolerantly_data();
    void aStatusFileIsReadTolerantly();
    void anUnreadableStatusFileIsReported_data();
    void anUnreadableStatusFileIsReported();
    void theLineForMonitoringStaysOneLine();
    void aLogWithAnInterruptionPointsToDrift_data();
    void aLogWithAnInterruptionPointsToDrift();
    void aLogThatIsMissingIsWrongUsage();

    void theSamplesForACollector();
    void theSamplesAreForEverybodyAndAlone();
    void theSamplesWithoutADatabase();
    void theSamplesWithoutTheGatesStatus();
    void theRecordsThatWaitAreASample_data();
    void theRecordsThatWaitAreASample();
    void theRecordsThatWaitAreReported();
    void samplesThatCannotBeWritten();
    void theExampleAlertsUseSamplesThatExist();

    void wrongUsage_data();
    void wrongUsage();
    void aServerThatIsNotThere();
    void aDatabaseThatCannotBeUsed();
    void helpForMonitoringIsTheHelp();

    void spansAreRoundedDown_data();
    void spansAreRoundedDown();
    void everyRuleHasItsFixtures();

private:
    QStringList connection();
    ToolRun status(const QStringList &more = {});
    ToolRun nagios(const QStringList &more = {});
    QJsonObject facts(const ToolRun &run) { return run.json().value("facts").toObject(); }
    QString write(const QString &name, const QByteArray &content);
    QString writeGate(const QByteArray &content) { return write("gate.json", content); }
    QString metricsPath() const { return m_folder.filePath("mirovahr.prom"); }

    const LocalZone m_zone{"UTC"};
    TestDatabase m_db;
    QTemporaryDir m_folder;
};

void TestStatus::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_db.run(QStringLiteral("ALTER USER mirovahrctl@localhost IDENTIFIED BY '%1' ACCOUNT UNLOCK")
                 .arg(m_db.server().password()));
    m_db.run(QStringLiteral("SET GLOBAL init_connect = 'SET timestamp = %1'").arg(kNow));
}

void TestStatus::init()
{
    m_db.reset();
    m_db.run(QStringLiteral("UPDATE people SET created = %1").arg(kNow - 3 * 86400));
    m_db.run(
        QStringLiteral("UPDATE people SET edited = %1, editor = 0 WHERE uid = 4").arg(kNow - 7200));
}

QStringList TestStatus::connection()
{
    return {"--socket",        m_db.server().socketPath(),
            "--database",      m_db.server().databaseName(),
            "--user",          "mirovahrctl",
            "--password-file", m_db.server().passwordFile()};
}

ToolRun TestStatus::status(const QStringList &more)
{
    return runTool(QStringList{"status", "--json"} + connection() + more);
}

ToolRun TestStatus::nagios(const QStringList &more)
{
    return runTool(QStringList{"status", "--nagios"} + connection() + more);
}

QString TestStatus::write(const QString &name, const QByteArray &content)
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    return file.fileName();
}

void TestStatus::theTextForPeopleIsPlain()
{
    m_db.run("INSERT INTO term_sync (tid, type, ref, ref_col, ref_id, created, flags) VALUES"
             " (1, 'U', 'people', 'uid', 4, 1799990000, 2)");
    const ToolRun run = runTool(QStringList{"status"} + connection());
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.out,
             QString("Status of the plugin\n====================\n\n"
                     "Database\n--------\n"
                     "Forced synchronisation pending: no\n"
                     "Active people: 7\n"
                     "Last person created: 2027-01-12T08:00:00Z\n"
                     "Last person changed by the plugin: 2027-01-15T06:00:00Z\n"
                     "Vacation balances corrected today: 0\n"
                     "Entries in the terminal queue: 1\n"
                     "Oldest entry of the terminal queue: 2027-01-15T05:13:20Z\n\n"
                     "No findings.\n"));
}

void TestStatus::everythingIsCounted()
{
    m_db.run("UPDATE vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'");
    m_db.run("INSERT INTO term_sync (tid, type, ref, ref_col, ref_id, created, flags) VALUES"
             " (1, 'U', 'people', 'uid', 4, 1799990000, 2),"
             " (2, 'U', 'people', 'uid', 4, 1799980000, 2)");
    const ToolRun run = status();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(facts(run),
             QJsonObject({{"forced", true},
                          {"activePeople", 7},
                          {"created", "2027-01-12T08:00:00Z"},
                          {"edited", "2027-01-15T06:00:00Z"},
                          {"correctionsToday", 0},
                          {"queued", 2},
                          {"oldestQueued", "2027-01-15T02:26:40Z"}}));
}

void TestStatus::whatNeverHappenedIsLeftOut()
{
    m_db.resetEmpty();
    const ToolRun run = status({"--warning", "1"});
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(facts(run),
             QJsonObject(
                 {{"forced", false}, {"activePeople", 0}, {"correctionsToday", 0}, {"queued", 0}}));
    QCOMPARE(run.findingsOf("too-old").value(0).value("message").toString(),
             QString("There is no trace of the plugin yet."));
}

void TestStatus::aChangeByAnAdministratorIsNotCaptured()
{
    m_db.run(
        QStringLiteral("UPDATE people SET edited = %1, editor = 1 WHERE uid = 5").arg(kNow - 60));
    QCOMPARE(facts(status()).value("edited").toString(), QString("2027-01-15T06:00:00Z"));
}

void TestStatus::correctionsOfTodayAreCounted()
{
    m_db.run(QStringLiteral("INSERT INTO funds_move (type, day, month, value, fid, uid) VALUES"
                            " (3, midnightFromTs(%1), 202701, 5, 2, 1),"
                            " (3, midnightFromTs(%1), 202701, 5, 2, 4),"
                            " (1, midnightFromTs(%1), 202701, 5, 2, 5),"
                            " (3, midnightFromTs(%1 - 86400), 202701, 5, 2, 1)")
                 .arg(kNow));
    QCOMPARE(facts(status()).value("correctionsToday").toInt(), 2);
}

void TestStatus::nothingIsWritten()
{
    const DatabaseState before = m_db.dumpAll();
    m_db.run("TRUNCATE TABLE mysql.general_log");
    COMPARE_EXIT(status(), ExitStatus::Fine);
    const TableRows statements = m_db.rows(
        "SELECT CONVERT(argument USING utf8mb4) FROM mysql.general_log WHERE user_host LIKE"
        " 'mirovahrctl[%' AND command_type = 'Query' AND argument NOT LIKE 'SET NAMES %'"
        " AND argument NOT LIKE 'SET timestamp %'");
    QCOMPARE(statements.size(), 3);
    QCOMPARE(statements.at(0).first(), QString("SET SESSION TRANSACTION READ ONLY"));
    QVERIFY(statements.at(1).first().startsWith("SELECT UNIX_TIMESTAMP(), "));
    QCOMPARE(statements.at(2).first(),
             QString("SELECT value FROM vars WHERE name='YAV.MHRWorker.forceSync' LIMIT 1"));
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
}

void TestStatus::theNagiosLine_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("exitStatus");
    QTest::addColumn<QString>("line");

    QTest::newRow("fine") << "DO 0" << QStringList() << 0
                          << "MIROVAHR OK - last trace of the plugin 2 hours ago, 7 active people, "
                             "0 entries in the terminal queue | age=7200s;;;0 people=7;;;0 "
                             "queue=0;;;0 corrections=0;;;0 force=0;;;0;1";
    QTest::newRow("within the limits")
        << "DO 0" << QStringList{"--warning", "3", "--critical", "26.5"} << 0
        << "MIROVAHR OK - last trace of the plugin 2 hours ago, 7 active people, 0 entries in the "
           "terminal queue | age=7200s;10800;95400;0 people=7;;;0 queue=0;;;0 corrections=0;;;0 "
           "force=0;;;0;1";
    QTest::newRow("old") << "DO 0" << QStringList{"--warning", "2", "--critical", "4"} << 1
                         << "MIROVAHR WARNING - The last trace of the plugin was 2 hours ago. | "
                            "age=7200s;7200;14400;0 people=7;;;0 queue=0;;;0 corrections=0;;;0 "
                            "force=0;;;0;1";
    QTest::newRow("too old") << "DO 0" << QStringList{"--warning", "0.5", "--critical", "1"} << 2
                             << "MIROVAHR CRITICAL - The last trace of the plugin was 2 hours ago. "
                                "| age=7200s;1800;3600;0 people=7;;;0 queue=0;;;0 "
                                "corrections=0;;;0 force=0;;;0;1";
    QTest::newRow("only critical") << "DO 0" << QStringList{"--critical", "1"} << 2
                                   << "MIROVAHR CRITICAL - The last trace of the plugin was 2 "
                                      "hours ago. | age=7200s;;3600;0 people=7;;;0 queue=0;;;0 "
                                      "corrections=0;;;0 force=0;;;0;1";
    QTest::newRow("never, without limits")
        << "DELETE FROM people" << QStringList() << 0
        << "MIROVAHR OK - no trace of the plugin yet, 0 active people, 0 entries in the terminal "
           "queue | people=0;;;0 queue=0;;;0 corrections=0;;;0 force=0;;;0;1";
    QTest::newRow("never") << "DELETE FROM people" << QStringList{"--critical", "1"} << 2
                           << "MIROVAHR CRITICAL - There is no trace of the plugin yet. | "
                              "people=0;;;0 queue=0;;;0 corrections=0;;;0 force=0;;;0;1";
    QTest::newRow("a clock that is behind")
        << "UPDATE people SET created = 1800000100" << QStringList{"--critical", "1"} << 0
        << "MIROVAHR OK - last trace of the plugin 0 seconds ago, 7 active people, 0 entries in "
           "the terminal queue | age=0s;;3600;0 people=7;;;0 queue=0;;;0 corrections=0;;;0 "
           "force=0;;;0;1";
    QTest::newRow("one of each, and pending")
        << "UPDATE people SET status = 0 WHERE uid > 1;"
           "INSERT INTO term_sync (tid, type, ref, ref_col, ref_id, created, flags)"
           " VALUES (1, 'U', 'people', 'uid', 4, 1799990000, 2);"
           "UPDATE vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'"
        << QStringList() << 0
        << "MIROVAHR OK - last trace of the plugin 2 hours ago, 1 active person, 1 entry in the "
           "terminal queue | age=7200s;;;0 people=1;;;0 queue=1;;;0 corrections=0;;;0 "
           "force=1;;;0;1";
}

void TestStatus::theNagiosLine()
{
    QFETCH(QString, change);
    QFETCH(QStringList, options);
    QFETCH(int, exitStatus);
    QFETCH(QString, line);
    const QStringList statements = change.split(';');
    for (const QString &statement : statements)
        m_db.run(statement);
    const ToolRun run = nagios(options);
    QCOMPARE(run.out, line + '\n');
    QCOMPARE(static_cast<int>(run.status), exitStatus);
    QCOMPARE(run.err, QString());
}

void TestStatus::agesOfTheReport_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("severity");
    QTest::newRow("a warning") << QStringList{"--warning", "2"} << "warning";
    QTest::newRow("an error") << QStringList{"--warning", "1", "--critical", "2"} << "error";
    QTest::newRow("nothing") << QStringList{"--warning", "2.001"} << "";
}

void TestStatus::agesOfTheReport()
{
    QFETCH(QStringList, options);
    QFETCH(QString, severity);
    const ToolRun run = status(options);
    COMPARE_EXIT(run, severity.isEmpty() ? ExitStatus::Fine : ExitStatus::Findings);
    const QJsonObject finding = run.findingsOf("too-old").value(0);
    QCOMPARE(finding.value("severity").toString(), severity);
    QCOMPARE(finding.value("message").toString(),
             severity.isEmpty() ? QString()
                                : QString("The last trace of the plugin was 2 hours ago."));
}

void TestStatus::theGateIsReported()
{
    const QString file = writeGate(R"({"result": "admitted", "time": "2027-01-15T08:00:00+01:00",
        "lastAdmitted": {"time": "2027-01-15T07:59:58+01:00", "file": "/var/lib/yav/hr/a.data",
                         "lines": 1200}})");
    const ToolRun run = status({"--gate-status", file});
    COMPARE_EXIT(run, ExitStatus::Fine);
    const QJsonObject all = facts(run);
    QCOMPARE(all.value("gateResult").toString(), QString("admitted"));
    QCOMPARE(all.value("gateTime").toString(), QString("2027-01-15T07:00:00Z"));
    QCOMPARE(all.value("admittedTime").toString(), QString("2027-01-15T06:59:58Z"));
    QCOMPARE(all.value("admittedFile").toString(), QString("/var/lib/yav/hr/a.data"));
    QCOMPARE(all.value("admittedLines").toInt(), 1200);
}

void TestStatus::everyTimeIsOfTheLocalZone()
{
    const LocalZone zone("Europe/Bratislava");
    const QString file = writeGate(R"({"result": "admitted", "time": "2027-01-15T07:00:00Z",
        "lastAdmitted": {"time": "2026-07-15T02:59:58-04:00"}})");
    const QJsonObject all = facts(status({"--gate-status", file}));
    QCOMPARE(all.value("created").toString(), QString("2027-01-12T09:00:00+01:00"));
    QCOMPARE(all.value("gateTime").toString(), QString("2027-01-15T08:00:00+01:00"));
    // In summer.
    QCOMPARE(all.value("admittedTime").toString(), QString("2026-07-15T08:59:58+02:00"));
}

void TestStatus::aRefusedFileIsReported()
{
    const QString file = writeGate(R"({"result": "refused", "reasons":
        ["40 lines fewer", "12 leavers"]})");
    const ToolRun run = status({"--gate-status", file});
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.findingsOf("gate-refused").value(0).value("message").toString(),
             QString("The gate has refused the last file: 40 lines fewer; 12 leavers."));
    const ToolRun line = nagios({"--gate-status", file});
    QCOMPARE(line.out,
             QString("MIROVAHR WARNING - The gate has refused the last file: 40 lines fewer; 12 "
                     "leavers. | age=7200s;;;0 people=7;;;0 queue=0;;;0 "
                     "corrections=0;;;0 force=0;;;0;1\n"));
    QCOMPARE(static_cast<int>(line.status), 1);
}

void TestStatus::theGatesTimeCountsWhereItIsKnown_data()
{
    QTest::addColumn<bool>("known");
    QTest::addColumn<QString>("message");
    QTest::newRow("known") << true << "The last admission of a file was 5 hours ago.";
    QTest::newRow("not known") << false << "The last trace of the plugin was 3 hours ago.";
}

void TestStatus::theGatesTimeCountsWhereItIsKnown()
{
    QFETCH(bool, known);
    QFETCH(QString, message);
    StatusData data;
    data.now = kNow;
    data.created = kNow - 3 * 3600 - 5;
    const QDateTime admitted = QDateTime::fromSecsSinceEpoch(kNow - 1000 - 5 * 3600, Qt::UTC);
    const auto gate = GateStatus::parse(known ? R"({"lastAdmitted": {"time": ")"
                                                + admitted.toString(Qt::ISODate).toUtf8() + "\"}}"
                                              : QByteArray("{}"));
    const StatusAssessment assessment =
        StatusAssessment::of(data, &*gate, {3600, std::nullopt}, kNow - 1000);
    QCOMPARE(assessment.findings.size(), 1);
    QCOMPARE(assessment.findings.first().message, message);
}

void TestStatus::aStatusFileIsReadTolerantly_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray("{}");
    QTest::newRow("other kinds of values")
        << QByteArray(R"({"result": 1, "time": [], "reasons": "x", "lastAdmitted": "y"})");
    QTest::newRow("other kinds deeper down")
        << QByteArray(R"({"reasons": [1, {}], "lastAdmitted": {"time": "soon", "file": 3,
                          "lines": "many"}})");
    QTest::newRow("further members") << QByteArray(R"({"version": 7, "more": {"a": []}})");
}

void TestStatus::aStatusFileIsReadTolerantly()
{
    QFETCH(QByteArray, content);
    const ToolRun run = status({"--gate-status", writeGate(content)});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(facts(run).keys().filter("admitted"), QStringList());
}

void TestStatus::anUnreadableStatusFileIsReported_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no file") << QByteArray()
                             << "The gate's status file '%1' cannot be read: No such file or "
                                "directory";
    QTest::newRow("no JSON") << QByteArray("admitted") << "'%1' is not a status file of the gate";
    QTest::newRow("cut off") << QByteArray(R"({"result": "admi)")
                             << "'%1' is not a status file of the gate";
    QTest::newRow("no object") << QByteArray("[]") << "'%1' is not a status file of the gate";
}

void TestStatus::anUnreadableStatusFileIsReported()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    const QString file = content.isEmpty() ? m_folder.filePath("none") : writeGate(content);
    const ToolRun run = status({"--gate-status", file});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, "mirovahrctl: status: " + reason.arg(file) + ".\n");
    const ToolRun line = nagios({"--gate-status", file});
    QCOMPARE(line.out, "MIROVAHR UNKNOWN - " + reason.arg(file) + ".\n");
    QCOMPARE(static_cast<int>(line.status), 3);
}

void TestStatus::theLineForMonitoringStaysOneLine()
{
    const QString file = writeGate(R"({"result": "refused", "reasons": ["a|b\nc\u001bd"]})");
    QCOMPARE(nagios({"--gate-status", file}).out,
             QString("MIROVAHR WARNING - The gate has refused the last file: a/b c\\x1bd. | "
                     "age=7200s;;;0 people=7;;;0 queue=0;;;0 corrections=0;;;0 force=0;;;0;1\n"));
}

void TestStatus::theSamplesForACollector()
{
    m_db.run("INSERT INTO term_sync (tid, type, ref, ref_col, ref_id, created, flags) VALUES"
             " (1, 'U', 'people', 'uid', 4, 1799990000, 2)");
    const QString gate = writeGate(R"({"result": "refused", "time": "2027-01-15T07:00:00Z",
        "linesWithErrors": 3, "linesWithWarnings": 5,
        "lastAdmitted": {"time": "2027-01-15T06:59:58Z", "lines": 1200}})");
    const ToolRun run = status({"--gate-status", gate, "--metrics", metricsPath()});
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(facts(run).value("activePeople").toInt(), 7);
    QCOMPARE(QString(readFile(metricsPath())), QString(R"(# TYPE mirovahr_status_success gauge
# HELP mirovahr_status_success Whether the database, and the gate's status and the log where they are named, could be read.
mirovahr_status_success 1
# TYPE mirovahr_force_pending gauge
# HELP mirovahr_force_pending Whether a forced synchronisation is pending.
mirovahr_force_pending 0
# TYPE mirovahr_active_people gauge
# HELP mirovahr_active_people People who are switched on.
mirovahr_active_people 7
# TYPE mirovahr_person_created_timestamp_seconds gauge
# HELP mirovahr_person_created_timestamp_seconds When a person was created last.
mirovahr_person_created_timestamp_seconds 1799740800
# TYPE mirovahr_person_edited_timestamp_seconds gauge
# HELP mirovahr_person_edited_timestamp_seconds When the plugin last changed a person.
mirovahr_person_edited_timestamp_seconds 1799992800
# TYPE mirovahr_balance_corrections_today gauge
# HELP mirovahr_balance_corrections_today Vacation balances corrected today.
mirovahr_balance_corrections_today 0
# TYPE mirovahr_terminal_queue_entries gauge
# HELP mirovahr_terminal_queue_entries Entries in the terminal queue.
mirovahr_terminal_queue_entries 1
# TYPE mirovahr_terminal_queue_oldest_timestamp_seconds gauge
# HELP mirovahr_terminal_queue_oldest_timestamp_seconds When the oldest entry of the terminal queue was made.
mirovahr_terminal_queue_oldest_timestamp_seconds 1799990000
# TYPE mirovahr_gate_refused gauge
# HELP mirovahr_gate_refused Whether the gate refused the last file.
mirovahr_gate_refused 1
# TYPE mirovahr_gate_run_timestamp_seconds gauge
# HELP mirovahr_gate_run_timestamp_seconds When the gate ran last.
mirovahr_gate_run_timestamp_seconds 1799996400
# TYPE mirovahr_gate_admitted_timestamp_seconds gauge
# HELP mirovahr_gate_admitted_timestamp_seconds When the gate last admitted a file.
mirovahr_gate_admitted_timestamp_seconds 1799996398
# TYPE mirovahr_gate_admitted_lines gauge
# HELP mirovahr_gate_admitted_lines Lines in the file that was admitted last.
mirovahr_gate_admitted_lines 1200
# TYPE mirovahr_gate_lines_with_errors gauge
# HELP mirovahr_gate_lines_with_errors Lines with errors in the last file.
mirovahr_gate_lines_with_errors 3
# TYPE mirovahr_gate_lines_with_warnings gauge
# HELP mirovahr_gate_lines_with_warnings Lines with warnings and no errors in the last file.
mirovahr_gate_lines_with_warnings 5
# TYPE mirovahr_findings gauge
# HELP mirovahr_findings Findings of the status.
mirovahr_findings{severity="warning"} 1
mirovahr_findings{severity="error"} 0
# EOF
)"));
}

void TestStatus::theSamplesAreForEverybodyAndAlone()
{
    QVERIFY(QDir(m_folder.path()).removeRecursively() && QDir().mkpath(m_folder.path()));
    COMPARE_EXIT(status({"--metrics", metricsPath()}), ExitStatus::Fine);
    COMPARE_EXIT(nagios({"--metrics", metricsPath()}), ExitStatus::Fine);
    QCOMPARE(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{"mirovahr.prom"});
    QVERIFY(QFile::permissions(metricsPath()).testFlag(QFile::ReadOther));
}

void TestStatus::theSamplesWithoutADatabase()
{
    const QString gate = writeGate(R"({"result": "admitted"})");
    const ToolRun run =
        runTool({"status", "--socket", "/nowhere/s", "--database", "tepdb", "--user", "yav",
                 "--gate-status", gate, "--metrics", metricsPath()});
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    const QByteArray text = readFile(metricsPath());
    QVERIFY(text.contains("\nmirovahr_status_success 0\n"));
    QVERIFY(text.contains("\nmirovahr_gate_refused 0\n"));
    QVERIFY(!text.contains("people"));
    QVERIFY(!text.contains("findings"));
}

void TestStatus::theSamplesWithoutTheGatesStatus()
{
    COMPARE_EXIT(status({"--gate-status", "/nowhere/status.json", "--metrics", metricsPath()}),
                 ExitStatus::Usage);
    const QByteArray text = readFile(metricsPath());
    QVERIFY(text.contains("\nmirovahr_status_success 0\n"));
    QVERIFY(!text.contains("mirovahr_gate"));
}

void TestStatus::theRecordsThatWaitAreASample_data()
{
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QByteArray>("sample");
    const QByteArray two = "Nov 22 05:10:00 host yav[7]: MHRWorker: END synchronization #7 "
                           "(waiting records: 2)\n";
    const QByteArray none = "MHRWorker: END synchronization #8 (waiting records: 0)\n";
    QTest::newRow("one synchronisation") << two << QByteArray("2");
    QTest::newRow("the last one counts") << two + none << QByteArray("0");
    QTest::newRow("of CR LF") << QByteArray(two).replace("\n", "\r\n") << QByteArray("2");
    QTest::newRow("the next one runs") << two + "MHRWorker: BEGIN synchronization #8 (force: NO)\n"
                                       << QByteArray("2");
    QTest::newRow("no synchronisation")
        << QByteArray("MHRWorker::checkSync() - database not open!\n") << QByteArray();
    QTest::newRow("the plugin was loaded since")
        << two + "Nov 22 05:20:00 host yav[8]: MirovaHR::init()\n"
        << QByteArray();
    QTest::newRow("it was stopped and started since") << two + "Stop MirovaHR..\nStart MirovaHR..\n"
                                                      << QByteArray("2");
    QTest::newRow("a line of the export that says so")
        << two + "MHRWorker::parseLine('MHRWorker: END synchronization #9 (waiting records: 5)')\n"
            + "MHRWorker::parseLine('MirovaHR::init()')\n"
        << QByteArray("2");
    QTest::newRow("a line that is cut") << two + "MHRWorker: END synchronization #9 (waiting rec\n"
                                        << QByteArray("2");
}

void TestStatus::theRecordsThatWaitAreASample()
{
    QFETCH(QByteArray, log);
    QFETCH(QByteArray, sample);
    const QString path = write("server.log", log);
    COMPARE_EXIT(status({"--log", path, "--metrics", metricsPath()}), ExitStatus::Fine);
    const QByteArray text = readFile(metricsPath());
    QCOMPARE(text.contains("waiting_records"), !sample.isEmpty());
    QCOMPARE(text.contains("\nmirovahr_waiting_records " + sample + "\n"), !sample.isEmpty());

    // It needs no database.
    COMPARE_EXIT(runTool({"status", "--socket", "/nowhere/s", "--database", "tepdb", "--user",
                          "yav", "--log", path, "--metrics", metricsPath()}),
                 ExitStatus::NoDatabase);
    QCOMPARE(readFile(metricsPath()).contains("\nmirovahr_waiting_records " + sample + "\n"),
             !sample.isEmpty());
}

void TestStatus::theRecordsThatWaitAreReported()
{
    const QString path =
        write("server.log", "MHRWorker: END synchronization #7 (waiting records: 2)\n");
    QCOMPARE(facts(status({"--log", path})).value("waiting").toInt(), 2);
    QVERIFY(!facts(status({"--log", write("server.log", "done\n")})).contains("waiting"));
}

void TestStatus::samplesThatCannotBeWritten()
{
    const QString path = m_folder.filePath("nowhere/mirovahr.prom");
    const QString reason =
        QString("'%1' cannot be written: No such file or directory.\n").arg(path);
    const ToolRun run = status({"--metrics", path});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, "mirovahrctl: status: " + reason);
    QCOMPARE(nagios({"--metrics", path}).out, "MIROVAHR UNKNOWN - " + reason);

    // The first failure stays the one that counts.
    const ToolRun both = runTool({"status", "--socket", "/nowhere/s", "--database", "tepdb",
                                  "--user", "yav", "--metrics", path});
    COMPARE_EXIT(both, ExitStatus::NoDatabase);
    QVERIFY2(both.err.endsWith(reason), both.report().constData());
}

void TestStatus::theExampleAlertsUseSamplesThatExist()
{
    m_db.run("INSERT INTO term_sync (tid, type, ref, ref_col, ref_id, created, flags) VALUES"
             " (1, 'U', 'people', 'uid', 4, 1799990000, 2)");
    const QString gate = writeGate(R"({"linesWithErrors": 0,
        "lastAdmitted": {"time": "2027-01-15T06:59:58Z"}})");
    const QString log =
        write("server.log", "MHRWorker: END synchronization #7 (waiting records: 2)\n");
    COMPARE_EXIT(status({"--gate-status", gate, "--log", log, "--metrics", metricsPath()}),
                 ExitStatus::Fine);
    const QString samples = readFile(metricsPath());
    const QString alerts = readFile(MIROVAHR_ALERTS);
    auto names = QRegularExpression("\\bmirovahr_\\w+").globalMatch(alerts);
    QVERIFY(names.hasNext());
    while (names.hasNext()) {
        const QString name = names.next().captured();
        QVERIFY2(samples.contains('\n' + name + ' '), qPrintable(name));
    }
}

void TestStatus::wrongUsage_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("reason");
    QTest::newRow("an unknown option") << QStringList{"--no-such"} << "Unknown option 'no-such'";
    QTest::newRow("an unknown language")
        << QStringList{"--language", "de"} << "Unknown language 'de'; there are cs, en, sk";
    QTest::newRow("an argument") << QStringList{"now"} << "Unexpected argument 'now'";
    QTest::newRow("two servers") << QStringList{"--host", "h"}
                                 << "Name the database server with either --host or --socket, not "
                                    "both";
    QTest::newRow("no number") << QStringList{"--warning", "x"}
                               << "--warning takes a number of hours above 0";
    QTest::newRow("zero") << QStringList{"--critical", "0"}
                          << "--critical takes a number of hours above 0";
    QTest::newRow("no finite number")
        << QStringList{"--critical", "inf"} << "--critical takes a number of hours above 0";
}

void TestStatus::wrongUsage()
{
    QFETCH(QStringList, options);
    QFETCH(QString, reason);
    const ToolRun run = status(options);
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, "mirovahrctl: status: " + reason + ".\n");
    const ToolRun monitored = nagios(options);
    QCOMPARE(monitored.out, "MIROVAHR UNKNOWN - " + reason + ".\n");
    QCOMPARE(static_cast<int>(monitored.status), 3);
    QCOMPARE(run.failure(), reason + '.');
    const ToolRun both = nagios({"--json"});
    QCOMPARE(both.out, QString("MIROVAHR UNKNOWN - Give --nagios or --json, not both.\n"));
}

void TestStatus::aServerThatIsNotThere()
{
    const QStringList nowhere{"--socket", "/nowhere/s", "--database", "tepdb", "--user", "yav"};
    const ToolRun run = runTool(QStringList{"status"} + nowhere);
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QVERIFY2(run.err.startsWith("mirovahrctl: status: The database cannot be opened: "),
             run.report().constData());
    const ToolRun line = runTool(QStringList{"status", "--nagios"} + nowhere);
    QVERIFY2(line.out.startsWith("MIROVAHR CRITICAL - The database cannot be opened: "),
             line.report().constData());
    QCOMPARE(line.out.count('\n'), 1);
    QCOMPARE(static_cast<int>(line.status), 2);
}

void TestStatus::aDatabaseThatCannotBeUsed()
{
    m_db.run("DROP TABLE vars");
    const ToolRun run = status();
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QVERIFY2(run.err.startsWith("mirovahrctl: status: The force flag cannot be read: "),
             run.report().constData());
    m_db.run("DROP TABLE term_sync");
    const ToolRun line = nagios();
    QVERIFY2(line.out.startsWith("MIROVAHR CRITICAL - The database cannot be used: Table"
                                 " 'tepdb.term_sync' doesn't exist"),
             line.report().constData());
}

void TestStatus::helpForMonitoringIsTheHelp()
{
    const ToolRun run = runTool({"status", "--nagios", "--help"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY(run.out.contains("follows that convention: 0 OK, 1 WARNING, 2 CRITICAL"));
}

void TestStatus::spansAreRoundedDown_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << qint64(0) << "0 seconds";
    QTest::newRow("one") << qint64(1) << "1 second";
    QTest::newRow("below two minutes") << qint64(119) << "119 seconds";
    QTest::newRow("two minutes") << qint64(120) << "2 minutes";
    QTest::newRow("below two hours") << qint64(7199) << "119 minutes";
    QTest::newRow("two hours") << qint64(7200) << "2 hours";
    QTest::newRow("below two days") << qint64(172799) << "47 hours";
    QTest::newRow("two days") << qint64(172800) << "2 days";
}

void TestStatus::spansAreRoundedDown()
{
    QFETCH(qint64, seconds);
    QFETCH(QString, text);
    QCOMPARE(Wording::span(seconds), text);
}

void TestStatus::aLogWithAnInterruptionPointsToDrift_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("isInterruption");

    const QByteArray deadlock = "Deadlock found when trying to get lock";
    QTest::newRow("a deadlock of the plugin")
        << "Nov 22 05:10:00 host yav[7]: MHRWorker::dbSetAdminPeopleRequest() - SQL ERROR [1213]: "
            + deadlock
        << true;
    QTest::newRow("a lost connection of the plugin")
        << QByteArray("BranchesRepository::addPeopleToBranch - ERROR: Lost connection to server")
        << true;
    QTest::newRow("another error of the plugin")
        << QByteArray("MHRWorker::dbLoadBranches() - SQL ERROR [1146]: no such table") << false;
    QTest::newRow("a deadlock of others")
        << "Nov 22 05:10:00 host other[7]: ERROR [1213]: " + deadlock << false;
    QTest::newRow("somebody with such a name")
        << "MHRWorker: Branch '7' NOT FOUND for employee: '1.1 " + deadlock + "'" << false;
}

void TestStatus::aLogWithAnInterruptionPointsToDrift()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, isInterruption);
    QTemporaryFile log;
    QVERIFY(log.open());
    log.write("Nov 22 05:09:59 host yav[7]: MHRWorker: BEGIN synchronization #1 (force: NO)\n"
              + line + "\n");
    log.close();
    const ToolRun run = status({"--log", log.fileName()});
    COMPARE_EXIT(run, isInterruption ? ExitStatus::Findings : ExitStatus::Fine);
    const QJsonObject finding = run.findingsOf("interrupted").value(0);
    QCOMPARE(finding.value("message").toString(),
             isInterruption
                 ? QString("1 statement failed through a deadlock, the timeout of a lock, a lost "
                           "connection or a cluster node that was not ready.")
                 : QString());
    QCOMPARE(finding.value("advice").toString().contains("mirovahrctl drift"), isInterruption);
}

void TestStatus::aLogThatIsMissingIsWrongUsage()
{
    const ToolRun run = status({"--log", "/nowhere/log"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QVERIFY2(run.failure().contains("/nowhere/log"), run.report().constData());
}

void TestStatus::everyRuleHasItsFixtures()
{
    QCOMPARE(RuleFixtures::ofReports("status").missing("status", {}), QStringList());
}

QTEST_GUILESS_MAIN(TestStatus)
#include "tst_status.moc"
