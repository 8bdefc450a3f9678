#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/exportfile.h"
#include "tests/support/testdatabase.h"
#include "worker/mhrworker.h"

#include <QTemporaryDir>
#include <QTest>

/// force: the flag, and when the plugin will read it.
class TestForce : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void theFlagIsSetAndConfirmed();
    void theFlagIsTakenBackAndConfirmed();
    void aFlagThatIsAlreadySetIsReported();
    void thePluginObeysTheFlag();
    void onlyTheFlagIsWritten();

    void theTickPeriodIsTheConfiguredOne_data();
    void theTickPeriodIsTheConfiguredOne();
    void aConfigurationThatKeepsThePluginFromActingIsReported_data();
    void aConfigurationThatKeepsThePluginFromActingIsReported();
    void withoutConfigurationThePluginHasItsDefaults();
    void aConfigurationThatIsNamedAndMissingEndsItBeforeTheFlagIsSet();
    void aMissingExportIsReported();
    void anExportCommandExcusesAMissingExport();

    void aFlagThatIsResetAtOnceIsReported();
    void aFlagThatIsSetAgainAtOnceIsReported();
    void anAccountThatMayNotWriteIsReported();
    void aDatabaseWithoutSettingsIsReported();
    void aServerThatIsNotThereIsNoDatabase();
    void theTextForPeopleIsPlain();
    void everyRuleHasItsFixtures();

private:
    QStringList connection();
    ToolRun force(const QStringList &more = {});
    void configure(const QByteArray &content);
    QString flag();
    QStringList messages(const ToolRun &run, const QString &rule);
    QStringList sentences(const ToolRun &run);

    TestDatabase m_db;
    ExportFile m_export;
    QTemporaryDir m_folder;
    QString m_ini;
};

void TestForce::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_ini = m_folder.filePath("MirovaHR.ini");
}

void TestForce::init()
{
    m_db.reset();
    m_export.write(QStringList{"anything"});
    configure({});
}

void TestForce::configure(const QByteArray &content)
{
    QFile file(m_ini);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("importFile=" + m_export.path().toUtf8() + '\n' + content);
}

QStringList TestForce::connection()
{
    return {
        "--socket", m_db.server().socketPath(), "--database",      m_db.server().databaseName(),
        "--user",   m_db.server().userName(),   "--password-file", m_db.server().passwordFile()};
}

ToolRun TestForce::force(const QStringList &more)
{
    return runTool(QStringList{"force", "--json", "--config", m_ini} + connection() + more);
}

QString TestForce::flag()
{
    return m_db.value("SELECT value FROM vars WHERE name = 'YAV.MHRWorker.forceSync'").toString();
}

QStringList TestForce::messages(const ToolRun &run, const QString &rule)
{
    QStringList messages;
    const QVector<QJsonObject> findings = run.findingsOf(rule);
    for (const QJsonObject &finding : findings)
        messages += finding.value("message").toString();
    return messages;
}

QStringList TestForce::sentences(const ToolRun &run)
{
    QStringList sentences;
    const QJsonArray sections = run.json().value("sections").toArray();
    for (const QJsonValue &section : sections) {
        const QJsonArray texts = section.toObject().value("sentences").toArray();
        for (const QJsonValue &text : texts)
            sentences += text.toString();
    }
    return sentences;
}

void TestForce::theFlagIsSetAndConfirmed()
{
    const ToolRun run = force();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(flag(), QString("1"));
    QCOMPARE(run.json().value("facts").toObject(),
             QJsonObject({{"before", false}, {"now", true}, {"tickSeconds", 60}}));
    QCOMPARE(run.json().value("verdict").toString(),
             QString("A forced synchronisation is pending."));
}

void TestForce::theFlagIsTakenBackAndConfirmed()
{
    m_db.run("UPDATE vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'");
    const ToolRun run = force({"--clear"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(flag(), QString("0"));
    QCOMPARE(run.json().value("facts").toObject(), QJsonObject({{"before", true}, {"now", false}}));
    QCOMPARE(run.json().value("verdict").toString(),
             QString("No forced synchronisation is pending."));
}

void TestForce::aFlagThatIsAlreadySetIsReported()
{
    COMPARE_EXIT(force(), ExitStatus::Fine);
    const ToolRun run = force();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(sentences(run).first(),
             QString("The flag was already set: the plugin has not acted on it yet, or is "
                     "synchronising now."));
}

void TestForce::thePluginObeysTheFlag()
{
    m_db.run("DELETE FROM vars WHERE name = 'YAV.MHRWorker.forceSync'");
    MHRWorker worker;
    worker.setDebugLevel(1);
    worker.setImportFile(m_export.path());
    worker.setTepDb(m_db.pluginConnection());
    worker.init();
    worker.checkSync(); // the first tick synchronises in any case
    COMPARE_EXIT(force(), ExitStatus::Fine);
    QTest::ignoreMessage(QtDebugMsg, "MHRWorker: BEGIN synchronization #2 (force: YES)");
    worker.checkSync();
    QCOMPARE(flag(), QString("0"));
}

void TestForce::onlyTheFlagIsWritten()
{
    const DatabaseState before = m_db.dumpAll();
    COMPARE_EXIT(force(), ExitStatus::Fine);
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()),
             QString("- vars: name=YAV.MHRWorker.forceSync value=0\n"
                     "+ vars: name=YAV.MHRWorker.forceSync value=1"));
}

void TestForce::theTickPeriodIsTheConfiguredOne_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("period");
    QTest::newRow("default") << QByteArray() << "60 seconds";
    QTest::newRow("another one") << QByteArray("timerInterval=5\n") << "5 seconds";
    QTest::newRow("too short a one") << QByteArray("timerInterval=0\n") << "1 second";
    QTest::newRow("too long a one") << QByteArray("timerInterval=4000000\n") << "2147483 seconds";
}

void TestForce::theTickPeriodIsTheConfiguredOne()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, period);
    configure(content);
    QCOMPARE(sentences(force()).value(1),
             "The plugin sees the flag at its next tick, within " + period
                 + " when it is not busy.");
}

void TestForce::aConfigurationThatKeepsThePluginFromActingIsReported_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("message");
    QTest::newRow("disabled") << QByteArray("enabled=0\n") << "disabled"
                              << "The configuration disables the plugin: it does not tick.";
    QTest::newRow("test mode") << QByteArray("testMode=1\n") << "test-mode"
                               << "Test mode is on: people are only logged, not written.";
}

void TestForce::aConfigurationThatKeepsThePluginFromActingIsReported()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, rule);
    QFETCH(QString, message);
    configure(content);
    const ToolRun run = force();
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.rules(), QStringList(rule));
    QCOMPARE(messages(run, rule), QStringList(message));
    QCOMPARE(flag(), QString("1"));
}

void TestForce::withoutConfigurationThePluginHasItsDefaults()
{
    const ToolRun run = runTool(QStringList{"force", "--json"} + connection());
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(sentences(run).first(),
             QString("There is no file /etc/yav/MirovaHR.ini here: this holds for a plugin with "
                     "its defaults."));
}

void TestForce::aConfigurationThatIsNamedAndMissingEndsItBeforeTheFlagIsSet()
{
    QVERIFY(QFile::remove(m_ini));
    const ToolRun run = force();
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.failure(), QStringLiteral("There is no file '%1'.").arg(m_ini));
    QCOMPARE(flag(), QString("0"));
    COMPARE_EXIT(force({"--clear"}), ExitStatus::Fine);
}

void TestForce::aMissingExportIsReported()
{
    m_export.remove();
    const ToolRun run = force();
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(messages(run, "no-export"),
             QStringList(
                 QStringLiteral("There is no export %1 now. Unless HR delivers one before that "
                                "tick, nothing is synchronised, and the flag is cleared even so.")
                     .arg(m_export.path())));
}

void TestForce::anExportCommandExcusesAMissingExport()
{
    m_export.remove();
    configure("syncCommand=\"/usr/bin/export\"\nsyncCommandRun=1\n");
    const ToolRun run = force();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(sentences(run).last(), QString("The plugin runs the export command first."));
}

void TestForce::aFlagThatIsResetAtOnceIsReported()
{
    m_db.run("CREATE TRIGGER meanwhile BEFORE UPDATE ON vars FOR EACH ROW SET NEW.value = '0'");
    const ToolRun run = force();
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(messages(run, "changed-meanwhile"),
             QStringList("The flag was set and is cleared again: a synchronisation that was "
                         "already running has just ended and cleared it."));
    QCOMPARE(run.json().value("verdict").toString(),
             QString("No forced synchronisation is pending."));
}

void TestForce::aFlagThatIsSetAgainAtOnceIsReported()
{
    m_db.run("CREATE TRIGGER meanwhile BEFORE UPDATE ON vars FOR EACH ROW SET NEW.value = '1'");
    const ToolRun run = force({"--clear"});
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(messages(run, "changed-meanwhile"),
             QStringList("The flag was cleared and is set again: somebody else has just set it."));
}

void TestForce::anAccountThatMayNotWriteIsReported()
{
    m_db.run("REVOKE INSERT (value) ON vars FROM yav@localhost");
    const ToolRun run = force();
    m_db.run("GRANT INSERT (value) ON vars TO yav@localhost");
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QVERIFY2(run.failure().startsWith("The force flag cannot be written: "),
             run.report().constData());
    QVERIFY2(run.err.startsWith(
                 "mirovahrctl: force: The force flag cannot be written: variableSet ERROR:"
                 " \"INSERT command denied to user 'yav'@'localhost'"),
             run.report().constData());
    QCOMPARE(flag(), QString("0"));
}

void TestForce::aDatabaseWithoutSettingsIsReported()
{
    m_db.run("DROP TABLE vars");
    const ToolRun run = force();
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QVERIFY2(run.err.startsWith("mirovahrctl: force: The force flag cannot be read:"
                                " TepDbSettings::variableGet - SQL ERROR: Table 'tepdb.vars'"
                                " doesn't exist"),
             run.report().constData());
}

void TestForce::aServerThatIsNotThereIsNoDatabase()
{
    const ToolRun run =
        runTool({"force", "--socket", "/nowhere/s", "--database", "tepdb", "--user", "yav"});
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QVERIFY2(run.err.startsWith("mirovahrctl: force: The database cannot be opened: "),
             run.report().constData());
}

void TestForce::theTextForPeopleIsPlain()
{
    const ToolRun run = runTool(QStringList{"force", "--config", m_ini} + connection());
    QCOMPARE(run.out,
             QStringLiteral("Forced synchronisation\n======================\n\n"
                            "Flag\n----\nSet before: no\nSet now: yes\n\n"
                            "Plugin\n------\nThe configuration is that of %1.\n"
                            "Seconds between ticks: 60\n"
                            "The plugin sees the flag at its next tick, within 60 seconds when it "
                            "is not busy.\n\n"
                            "A forced synchronisation is pending.\n")
                 .arg(m_ini));
}

void TestForce::everyRuleHasItsFixtures()
{
    QCOMPARE(RuleFixtures::ofReports("force").missing("force", {}), QStringList());
}

QTEST_GUILESS_MAIN(TestForce)
#include "tst_force.moc"
