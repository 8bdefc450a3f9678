#include "mirovahrctl/doctor/checkup.h"
#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/testdatabase.h"
#include "tests/worker/support/sampleexport.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <pwd.h>
#include <unistd.h>

namespace {

QString tomorrow()
{
    return QDate::currentDate().addDays(1).toString(Qt::ISODate);
}

} // namespace

/// doctor: every check at once, and what to do first. systemctl is a script of the test, which
/// prints what a file holds.
class TestDoctor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void aSoundSiteNeedsNothing();
    void everyCheckIsMade();
    void whatTheDatabaseLacksIsReported();
    void anExportThatThePluginIsAboutToReadIsNoLoss();
    void whatWasNotDoneBeforeThePluginCanBeLeftOut();
    void withoutAnAdmittedFileNothingIsCompared();
    void theWorstFindingComesFirst();
    void severalFindingsOfARuleAreCounted();
    void aCheckThatCannotBeMadeIsAFinding();
    void anAnswerThatIsNoReportIsAFailure();
    void aConfigurationThatIsNotThereIsRefused();
    void theExportOfHrIsCheckedWhenThePluginHasNone();
    void thePasswordOfTheEnvironmentServesEveryCheck();
    void thePluginsAccountIsCheckedForItsRights();
    void theService_data();
    void theService();
    void theServicesUserMustAlsoReachTheFolder();
    void theServiceMustSeeTheFiles_data();
    void theServiceMustSeeTheFiles();
    void aMachineWithoutTheServiceHasNoSection();
    void nothingIsWritten();
    void everyRuleHasItsFixtures();

private:
    QString path(const char *name) const { return m_folder->filePath(name); }
    void write(const char *name, const QByteArray &content) const;
    void writeConfiguration(const QByteArray &more = {}) const;
    /// The file that the gate has admitted last.
    void admit(const QVector<ExportRow> &lines) const;
    void setService(const QByteArray &properties) const { write("unit", properties); }
    QStringList connection(const QString &user = "mirovahrctl");
    ToolRun doctor(const QStringList &more = {});
    static QStringList sections(const ToolRun &run);

    TestDatabase m_db;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestDoctor::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_db.run(QStringLiteral("ALTER USER mirovahrctl@localhost IDENTIFIED BY '%1' ACCOUNT UNLOCK")
                 .arg(m_db.server().password()));
}

void TestDoctor::init()
{
    m_db.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    for (const char *const folder : {"import", "gate", "bin"})
        QVERIFY(QDir(m_folder->path()).mkdir(folder));
    write("bin/systemctl", "#!/bin/sh\ncat '" + QFile::encodeName(path("unit")) + "'\n");
    write("bin/mirovahrctl", "");
    for (const char *const program : {"bin/systemctl", "bin/mirovahrctl"})
        QVERIFY(QFile::setPermissions(path(program), QFile::ReadOwner | QFile::ExeOwner));
    qputenv("PATH", QFile::encodeName(path("bin")) + ":/usr/bin:/bin");
    setService("LoadState=not-found\nActiveState=inactive\nUnitFileState=\n");
    writeConfiguration();
}

void TestDoctor::write(const char *name, const QByteArray &content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(file.fileName()));
}

void TestDoctor::writeConfiguration(const QByteArray &more) const
{
    const QByteArray folder = QFile::encodeName(m_folder->path());
    write("MirovaHR.ini",
          "importFile=" + folder
              + "/import/ron.data\nsyncCommandRun=2\n"
                "syncCommand=\""
              + folder + "/bin/mirovahrctl gate --from " + folder + "/export.txt --to " + folder
              + "/import/ron.data --state " + folder + "/gate\"\n" + more);
    write("gate/status.json", R"({"result": "admitted"})");
}

void TestDoctor::admit(const QVector<ExportRow> &lines) const
{
    QByteArray content;
    for (const ExportRow &line : lines)
        content += line.text().toUtf8() + '\n';
    write("gate/admitted.data", content);
}

QStringList TestDoctor::connection(const QString &user)
{
    return {"--socket",        m_db.server().socketPath(),
            "--database",      m_db.server().databaseName(),
            "--user",          user,
            "--password-file", m_db.server().passwordFile()};
}

ToolRun TestDoctor::doctor(const QStringList &more)
{
    return runTool(QStringList{"doctor", "--json", "--config", path("MirovaHR.ini")} + connection()
                   + more);
}

QStringList TestDoctor::sections(const ToolRun &run)
{
    QStringList ids;
    const QJsonArray all = run.json().value("sections").toArray();
    for (const QJsonValue &section : all)
        ids << section.toObject().value("id").toString();
    return ids;
}

void TestDoctor::aSoundSiteNeedsNothing()
{
    const ToolRun run = doctor();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.json().value("verdict").toString(), QString("Nothing needs to be done."));
}

void TestDoctor::everyCheckIsMade()
{
    setService("LoadState=loaded\nActiveState=active\nUnitFileState=enabled\n");
    admit({SampleExport::tomas()});
    const ToolRun run = doctor({"--since", tomorrow()});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(sections(run),
             QStringList({"configuration", "database", "export", "service", "status", "drift"}));
}

void TestDoctor::whatTheDatabaseLacksIsReported()
{
    admit({SampleExport::newcomer(4711), SampleExport::newcomer(4712)});
    const ToolRun run = doctor();
    COMPARE_EXIT(run, ExitStatus::Findings);
    const auto missing = run.findingsOf("person-missing");
    QCOMPARE(missing.size(), 1);
    QVERIFY2(
        missing.first().value("message").toString().endsWith(" And 1 more finding of this rule."),
        run.report().constData());
}

void TestDoctor::anExportThatThePluginIsAboutToReadIsNoLoss()
{
    admit({SampleExport::newcomer(4711)});
    write("import/ron.data", SampleExport::newcomer(4711).text().toUtf8() + '\n');
    const ToolRun pending = doctor();
    QVERIFY2(sections(pending).contains("drift"), pending.report().constData());
    QVERIFY2(pending.findingsOf("person-missing").isEmpty(), pending.report().constData());
    // One that the plugin does not remove is always there.
    writeConfiguration("deleteFile=0\n");
    QCOMPARE(doctor().findingsOf("person-missing").size(), 1);
}

/// Nobody has put him into the payroll export.
void TestDoctor::whatWasNotDoneBeforeThePluginCanBeLeftOut()
{
    admit({SampleExport::tomas()});
    QCOMPARE(doctor().findingsOf("payroll-selection").size(), 1);
    COMPARE_EXIT(doctor({"--since", tomorrow()}), ExitStatus::Fine);
}

void TestDoctor::withoutAnAdmittedFileNothingIsCompared()
{
    write("import/ron.data", SampleExport::newcomer(4711).text().toUtf8() + '\n');
    QVERIFY(!sections(doctor()).contains("drift"));
}

void TestDoctor::theWorstFindingComesFirst()
{
    // A warning of the configuration, and after it an error of the database.
    writeConfiguration("syncInterval=0\n");
    m_db.run("DROP TABLE groups_month");
    const ToolRun run = doctor();
    COMPARE_EXIT(run, ExitStatus::Findings);
    QStringList severities;
    const QJsonArray all = run.findings();
    for (const QJsonValue &finding : all)
        severities << finding.toObject().value("severity").toString();
    QCOMPARE(severities.first(), QString("warning"));
    QVERIFY2(severities.contains("error"), run.report().constData());
    const QJsonObject error = all.at(severities.indexOf("error")).toObject();
    const QString verdict = run.json().value("verdict").toString();
    QVERIFY2(verdict.startsWith("Do this first: " + error.value("message").toString()),
             run.report().constData());
}

void TestDoctor::severalFindingsOfARuleAreCounted()
{
    write("import/ron.data", "one\ntwo\nthree\n");
    const ToolRun run = doctor();
    COMPARE_EXIT(run, ExitStatus::Findings);
    const auto findings = run.findingsOf("field-count");
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings.first().value("line").toInt(), 1);
    QVERIFY2(
        findings.first().value("message").toString().endsWith(" And 2 more findings of this rule."),
        run.report().constData());
}

void TestDoctor::aCheckThatCannotBeMadeIsAFinding()
{
    const ToolRun run = runTool({"doctor", "--json", "--config", path("MirovaHR.ini"), "--socket",
                                 "/nowhere/s", "--database", "tepdb", "--user", "yav"});
    COMPARE_EXIT(run, ExitStatus::Findings);
    const auto failed = run.findingsOf("check-failed");
    QCOMPARE(failed.size(), 2);
    QVERIFY2(failed.at(0).value("message").toString().startsWith(
                 "check-db: The database cannot be opened: "),
             run.report().constData());
    QVERIFY2(failed.at(1).value("message").toString().startsWith(
                 "status: The database cannot be opened: "),
             run.report().constData());
}

void TestDoctor::anAnswerThatIsNoReportIsAFailure()
{
    const Checkup checkup = Checkup::run({"check-config", "--help"});
    QVERIFY(checkup.failed);
    QCOMPARE(checkup.verdict, QString("Its report cannot be read here"));
    QVERIFY(!Checkup::run({"check-config", path("MirovaHR.ini")}).failed);
}

void TestDoctor::aConfigurationThatIsNotThereIsRefused()
{
    const ToolRun run = runTool({"doctor", "--config", "/nowhere/MirovaHR.ini"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, QString("mirovahrctl: doctor: There is no file '/nowhere/MirovaHR.ini'.\n"));
}

void TestDoctor::theExportOfHrIsCheckedWhenThePluginHasNone()
{
    write("export.txt", "one\n");
    QCOMPARE(doctor().findingsOf("field-count").size(), 1);
    write("import/ron.data", "");
    QCOMPARE(doctor().findingsOf("field-count").size(), 0);
}

void TestDoctor::thePasswordOfTheEnvironmentServesEveryCheck()
{
    qputenv("MIROVAHRCTL_PASSWORD", m_db.server().password().toUtf8());
    const ToolRun run = runTool({"doctor", "--json", "--config", path("MirovaHR.ini"), "--socket",
                                 m_db.server().socketPath(), "--database",
                                 m_db.server().databaseName(), "--user", "mirovahrctl"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY(!qEnvironmentVariableIsSet("MIROVAHRCTL_PASSWORD"));
}

void TestDoctor::thePluginsAccountIsCheckedForItsRights()
{
    const ToolRun run = doctor({"--plugin-account"});
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.findingsOf("right-missing").size(), 1);
}

void TestDoctor::theService_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QStringList>("rules");
    QTest::addColumn<QString>("message");

    const QByteArray user = getpwuid(geteuid())->pw_name;
    const QByteArray loaded = "LoadState=loaded\n";
    const QByteArray running = loaded + "ActiveState=active\nUnitFileState=enabled\n";
    QTest::newRow("runs") << running << QStringList() << "";
    QTest::newRow("never wanted") << loaded + "ActiveState=inactive\nUnitFileState=disabled\n"
                                  << QStringList() << "";
    QTest::newRow("enabled, but stopped")
        << loaded + "ActiveState=inactive\nUnitFileState=enabled\n"
        << QStringList{"service-not-running"}
        << "yavhost.service does not run; its state is inactive.";
    QTest::newRow("has ended") << loaded + "ActiveState=failed\nUnitFileState=disabled\n"
                               << QStringList{"service-not-running"}
                               << "yavhost.service does not run; its state is failed.";
    QTest::newRow("may write") << running + "User=" + user + "\n" << QStringList() << "";
    QTest::newRow("no such user")
        << running + "User=nobody-of-this-name\n"
        << QStringList{"service-cannot-write", "service-cannot-write"}
        << "There is no user nobody-of-this-name, as which yavhost.service would run.";
    QTest::newRow("another user") << running + "User=nobody\n"
                                  << QStringList{"service-cannot-write", "service-cannot-write"}
                                  << "The user nobody, as which yavhost.service runs, may not "
                                     "write to %1/import.";
    QTest::newRow("confined") << running + "ProtectSystem=strict\nReadWritePaths=-%1/imp -%1/gate\n"
                              << QStringList{"service-cannot-write"}
                              << "ReadWritePaths of yavhost.service does not name %1/import.";
    QTest::newRow("confined to both")
        << running + "ProtectSystem=strict\nReadWritePaths=-%1/import %1/gate\n"
        << QStringList() << "";
    QTest::newRow("confined to their folder")
        << running + "ProtectSystem=strict\nReadWritePaths=%1\n"
        << QStringList() << "";
    QTest::newRow("not confined") << running + "ProtectSystem=full\nReadWritePaths=\n"
                                  << QStringList() << "";
}

void TestDoctor::theService()
{
    QFETCH(QByteArray, properties);
    QFETCH(QStringList, rules);
    QFETCH(QString, message);
    setService(properties.replace("%1", QFile::encodeName(m_folder->path())));
    const ToolRun run = doctor();
    QStringList reported;
    const QJsonArray all = run.findings();
    for (const QJsonValue &finding : all)
        reported << finding.toObject().value("rule").toString();
    QCOMPARE(reported, rules);
    QCOMPARE(all.first().toObject().value("message").toString(),
             message.replace("%1", m_folder->path()));
}

void TestDoctor::theServicesUserMustAlsoReachTheFolder()
{
    setService("LoadState=loaded\nActiveState=active\nUnitFileState=enabled\nUser=nobody\n");
    for (const char *const folder : {"import", "gate"})
        QVERIFY(QFile::setPermissions(path(folder), QFileDevice::Permissions(0x7777)));
    QCOMPARE(doctor().findingsOf("service-cannot-write").size(), 2);
    QVERIFY(QFile::setPermissions(m_folder->path(), QFileDevice::Permissions(0x7711)));
    QCOMPARE(doctor().findingsOf("service-cannot-write").size(), 0);
}

void TestDoctor::theServiceMustSeeTheFiles_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QStringList>("messages");

    const QByteArray confined = "ProtectSystem=strict\nReadWritePaths=/tmp /root\n";
    const QString import = "yavhost.service has a /tmp of its own (PrivateTmp) and does not see "
                           "/tmp.";
    const QString state = "yavhost.service sees nothing in /root (ProtectHome), and so not "
                          "/root/gate.";
    const QString delivery = "yavhost.service sees nothing in /home (ProtectHome), and so not "
                             "/home/hr/export.txt.";
    QTest::newRow("not confined") << QByteArray() << QStringList();
    QTest::newRow("may write there, and sees another folder") << confined
            + "PrivateTmp=yes\nProtectHome=no\n" << QStringList{import};
    QTest::newRow("no homes") << confined + "PrivateTmp=no\nProtectHome=yes\n"
                              << QStringList{delivery, state};
    QTest::newRow("may not write to homes") << confined + "PrivateTmp=no\nProtectHome=read-only\n"
                                            << QStringList();
    QTest::newRow("a folder in place of its own")
        << confined + "PrivateTmp=yes\nBindPaths=/srv/import:/tmp:rbind /srv/a:/a:rbind\n"
        << QStringList();
    QTest::newRow("HR's folder in the homes")
        << confined + "ProtectHome=yes\nBindReadOnlyPaths=/srv/hr:/home/hr:rbind\n"
        << QStringList{state};
}

void TestDoctor::theServiceMustSeeTheFiles()
{
    QFETCH(QByteArray, properties);
    QFETCH(QStringList, messages);
    write("MirovaHR.ini",
          "importFile=/tmp/ron.data\nsyncCommandRun=2\n"
          "syncCommand=\"mirovahrctl gate --from /home/hr/export.txt --to /tmp/ron.data "
          "--state /root/gate\"\n");
    setService("LoadState=loaded\nActiveState=active\nUnitFileState=enabled\n" + properties);
    const ToolRun run = doctor();
    QStringList reported;
    const auto findings = run.findingsOf("service-cannot-see");
    for (const QJsonObject &finding : findings)
        reported << finding.value("message").toString();
    QCOMPARE(reported, messages);
}

void TestDoctor::aMachineWithoutTheServiceHasNoSection()
{
    QVERIFY(!sections(doctor()).contains("service"));
    QVERIFY(QFile::remove(path("bin/systemctl")));
    qputenv("PATH", QFile::encodeName(path("bin")));
    const ToolRun run = doctor();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY(!sections(run).contains("service"));
}

void TestDoctor::nothingIsWritten()
{
    const DatabaseState before = m_db.dumpAll();
    write("import/ron.data", "one\n");
    COMPARE_EXIT(doctor(), ExitStatus::Findings);
    QCOMPARE(TestDatabase::difference(before, m_db.dumpAll()), QString());
    QVERIFY(QFile::exists(path("import/ron.data")));
}

void TestDoctor::everyRuleHasItsFixtures()
{
    QCOMPARE(RuleFixtures::ofReports("doctor").missing("doctor", {}), QStringList());
}

QTEST_GUILESS_MAIN(TestDoctor)
#include "tst_doctor.moc"
