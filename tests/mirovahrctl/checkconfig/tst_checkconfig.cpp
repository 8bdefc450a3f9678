#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/mirovahrctl/program/toolrun.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A correct configuration, except for what a test adds. "%1" is a private folder.
const char kGood[] =
    "enabled=true\n"
    "timerInterval=60\n"
    "syncInterval=60\n"
    "importFile=\"%1/ron.data\"\n"
    "syncCommand=\"/usr/bin/nice mirovahrctl gate --from %1/hr --to %1/ron.data\"\n"
    "syncCommandRun=2\n"
    "departmentId=1\n";
const char kGoodMessages[] = "[MES]\n"
                             "21=\"materská dovolenka\"\n";

} // namespace

/// check-config: the findings for an INI file.
class TestCheckConfig : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aRuleTripsOnItsFixtureOnly_data();
    void aRuleTripsOnItsFixtureOnly();
    void everyRuleHasItsFixtures();
    void aMissingFileIsFoundAndEveryKeyHasItsDefault();
    void aFileThatOthersCanWriteIsFound();
    void theImportFolderIsLookedAt();
    void anExportThatIsNoFileOrOpenToAllIsFound();
    void aSoundConfigurationHasNoFindings();
    void theTableSaysWhatIsInForce();
    void whatIsInForceWithoutAnyKey();
    void noFileAtAllIsBadUsage();
    void thePluginsOwnPathIsTheDefault();
    void findingsNameTheLastLineOfTheirKey();

private:
    QString write(const QString &text);
    ToolRun check(const QString &text);
    QString inForce(const ToolRun &run, const QString &key);

    QScopedPointer<QTemporaryDir> m_dir;
    RuleFixtures m_fixtures;
};

void TestCheckConfig::init()
{
    m_dir.reset(new QTemporaryDir);
    QVERIFY(m_dir->isValid());
}

QString TestCheckConfig::write(const QString &text)
{
    const QString path = m_dir->filePath("MirovaHR.ini");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("%s cannot be written", qPrintable(path));
    file.write(text.toUtf8());
    return path;
}

ToolRun TestCheckConfig::check(const QString &text)
{
    return runTool({"check-config", "--json", write(text)});
}

QString TestCheckConfig::inForce(const ToolRun &run, const QString &key)
{
    const QJsonArray rows =
        run.json()["sections"].toArray()[0].toObject()["tables"].toObject()["keys"].toArray();
    for (const QJsonValue &row : rows) {
        if (row.toObject()["key"].toString() == key)
            return row.toObject()["inForce"].toString();
    }
    return {};
}

void TestCheckConfig::aRuleTripsOnItsFixtureOnly_data()
{
    QTest::addColumn<QString>("keys"); // before the first group
    QTest::addColumn<QString>("messages"); // in group MES
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("field"); // empty: the rule must not trip

    const auto row = [](const char *name, const QString &keys, const QString &messages,
                        const QString &rule, const QString &field) {
        QTest::newRow(name) << keys << messages << rule << field;
    };
    const auto key = [&row](const char *name, const QString &line, const QString &rule,
                            const QString &field) {
        row(name, line, {}, rule, field);
    };
    const auto message = [&row](const char *name, const QString &line, const QString &rule,
                                const QString &field) {
        row(name, {}, line, rule, field);
    };

    key("a line that is no key", "nonsense", "file-format", QString(""));
    key("comments and groups only", "; x\n\n[General]\n", "file-format", QString());
    key("a key in another case", "Testmode=1", "unknown-key", "Testmode");
    key("a remark that is no comment", "# timerInterval=60", "unknown-key", "# timerInterval");
    key("a key in another group", "[plugin]\nsyncCommandRun=0", "unknown-key",
        "plugin/syncCommandRun");
    key("a key that is known", "testMode=false", "unknown-key", QString());
    key("a key under [General]", "[General]\ntestMode=false", "unknown-key", QString());
    key("a key that stands there twice", "testMode=1\ntestMode=0", "key-twice", "testMode");
    key("a key that stands there once", "testMode=0", "key-twice", QString());
    key("a semicolon that cuts a value", "syncCommand=/bin/true; x", "unquoted-semicolon",
        "syncCommand");
    key("a semicolon behind quotation marks", "syncCommand=\"/bin/true\"; x", "unquoted-semicolon",
        "syncCommand");
    key("a semicolon in quotation marks", "syncCommand=\"/bin/true ; x\"", "unquoted-semicolon",
        QString());
    key("a comment", "; testMode=1;x", "unquoted-semicolon", QString());

    key("a number with a unit", "timerInterval=60s", "number-reads-as-0", "timerInterval");
    key("a negative number", "syncInterval=-1", "number-reads-as-0", "syncInterval");
    key("an empty number", "departmentId=", "number-reads-as-0", "departmentId");
    key("a number with a comma", "syncCommandRun=1,5", "number-reads-as-0", "syncCommandRun");
    key("a number", "departmentId=12", "number-reads-as-0", QString());
    key("a number that is 0", "departmentId=0", "number-reads-as-0", QString());
    key("a number of 33 bits", "departmentId=4294967297", "number-wraps", "departmentId");
    key("a number of 32 bits", "departmentId=4294967295", "number-wraps", QString());

    key("a flag that is no", "testMode=no", "flag-reads-as-true", "testMode");
    key("a flag that is off", "deleteFile=off", "flag-reads-as-true", "deleteFile");
    key("a flag that is false", "deleteFile=False", "flag-reads-as-true", QString());
    key("a flag that is yes", "deleteFile=yes", "flag-reads-as-true", QString());
    key("an empty flag", "enabled=", "flag-empty", "enabled");
    key("a flag that is 0", "enabled=0", "flag-empty", QString());

    key("a comma in the import file", "importFile=/srv/a,b", "unquoted-comma", "importFile");
    key("a comma in the command", "syncCommand=/bin/true a,b", "unquoted-comma", "syncCommand");
    key("a comma in quotation marks", "syncCommand=\"/bin/true a,b\"", "unquoted-comma", QString());

    key("switched off", "enabled=false", "disabled", "enabled");
    key("switched on", "enabled=true", "disabled", QString());
    key("test mode on", "testMode=true", "test-mode", "testMode");
    key("test mode off", "testMode=false", "test-mode", QString());
    key("no department", "departmentId=0", "no-department", "departmentId");
    key("a department", "departmentId=7", "no-department", QString());
    key("a department that not every column holds", "departmentId=128", "department-id-large",
        "departmentId");
    key("a department that every column holds", "departmentId=127", "department-id-large",
        QString());

    key("a tick of 0 s", "timerInterval=0", "tick-too-short", "timerInterval");
    key("a tick of 1 s", "timerInterval=1", "tick-too-short", QString());
    key("a tick that is too long for a timer", "timerInterval=2147484", "tick-too-long",
        "timerInterval");
    key("the longest tick", "timerInterval=2147483", "tick-too-long", QString());
    key("a tick that overflows", "timerInterval=4294968", "tick-overflows", "timerInterval");
    key("a tick just below", "timerInterval=4294967", "tick-overflows", QString());
    key("a synchronisation every 0 ticks", "syncInterval=0", "sync-interval-zero", "syncInterval");
    key("a synchronisation every tick", "syncInterval=1", "sync-interval-zero", QString());

    key("a relative path", "importFile=ron.data", "import-file-relative", "importFile");
    key("an absolute path", "importFile=/srv/ron.data", "import-file-relative", QString());
    key("a folder that is not there", "importFile=/nowhere/ron.data", "import-folder-missing",
        "importFile");
    key("a folder that is there", "importFile=/srv/ron.data", "import-folder-missing", QString());
    key("a folder that is open to all", "importFile=/tmp/ron.data", "import-folder-world-writable",
        "importFile");
    key("the default", "importFile=", "import-folder-world-writable", "importFile");
    key("a folder of one's own", "importFile=/srv/ron.data", "import-folder-world-writable",
        QString());

    key("a run condition of 257", "syncCommandRun=257", "sync-command-run-wraps", "syncCommandRun");
    key("a run condition of 255", "syncCommandRun=255", "sync-command-run-wraps", QString());
    key("a run condition without a command", "syncCommandRun=2", "sync-command-missing",
        "syncCommand");
    key("neither a run condition nor a command", "syncCommandRun=0", "sync-command-missing",
        QString());
    key("a command that never runs", "syncCommand=/bin/true", "sync-command-never-runs",
        "syncCommand");
    key("a command that runs", "syncCommand=/bin/true\nsyncCommandRun=1", "sync-command-never-runs",
        QString());
    key("a command that is not there", "syncCommand=/bin/nothing\nsyncCommandRun=1",
        "sync-command-not-found", "syncCommand");
    key("a command with quotation marks", "syncCommand=\"\\\"/bin/true\\\" x\"\nsyncCommandRun=1",
        "sync-command-not-found", QString());

    key("a command that is no gate", "syncCommand=/bin/true\nsyncCommandRun=2", "no-gate",
        "syncCommand");
    key("a gate",
        "importFile=/srv/in\nsyncCommand=mirovahrctl gate --from /srv/hr --to /srv/in\n"
        "syncCommandRun=2",
        "no-gate", QString());
    key("a gate with the language before the subcommand",
        "importFile=/srv/in\nsyncCommand=mirovahrctl --language sk gate --from /srv/hr --to "
        "/srv/in\nsyncCommandRun=2",
        "no-gate", QString());
    key("a gate that publishes elsewhere",
        "importFile=/srv/in\nsyncCommand=mirovahrctl gate --from /srv/hr --to /srv/out\n"
        "syncCommandRun=2",
        "gate-elsewhere", "syncCommand");
    key("a gate that publishes where the plugin reads",
        "importFile=/srv/in\nsyncCommand=mirovahrctl gate --from /srv/hr --to /srv//in\n"
        "syncCommandRun=2",
        "gate-elsewhere", QString());
    key("a gate that admits every file",
        "importFile=/srv/in\nsyncCommand=mirovahrctl gate --from /srv/hr --to /srv/in --accept\n"
        "syncCommandRun=2",
        "gate-accepts", "syncCommand");
    key("a gate that admits only what it examined",
        "importFile=/srv/in\nsyncCommand=mirovahrctl gate --from /srv/hr --to /srv/in\n"
        "syncCommandRun=2",
        "gate-accepts", QString());
    key("a gate without HR's file",
        "importFile=/srv/in\nsyncCommand=mirovahrctl gate --to /srv/in\nsyncCommandRun=2",
        "gate-options", "syncCommand");
    key("a gate in a language that there is not",
        "importFile=/srv/in\nsyncCommand=mirovahrctl --language de gate --from /srv/hr --to "
        "/srv/in\nsyncCommandRun=2",
        "gate-options", "syncCommand");
    key("a gate with its options",
        "importFile=/srv/in\nsyncCommand=mirovahrctl gate --from /srv/hr --to /srv/in\n"
        "syncCommandRun=2",
        "gate-options", QString());
    key("a gate that leaves the texts alone",
        "importFile=/srv/in\nsyncCommand=mirovahrctl gate --from /srv/hr --to /srv/in --texts "
        "as-is\nsyncCommandRun=2",
        "gate-texts", "syncCommand");
    key("a gate that writes the texts",
        "importFile=/srv/in\nsyncCommand=mirovahrctl gate --from /srv/hr --to /srv/in --texts "
        "no-backslash-escapes\nsyncCommandRun=2",
        "gate-texts", QString());

    message("no message", "", "no-messages", "MES");
    message("one message", "21=\"x\"", "no-messages", QString());
    message("a key that is a word", "abc=\"x\"", "mes-key-no-number", "MES/abc");
    message("a negative key", "-1=\"x\"", "mes-key-no-number", "MES/-1");
    message("a key that is a number", "007=\"x\"", "mes-key-no-number", QString());
    message("a key of 17 bits", "65557=\"x\"", "mes-key-wraps", "MES/65557");
    message("a key of 16 bits", "65535=\"x\"", "mes-key-wraps", QString());
    message("two keys of one code", "007=\"a\"\n7=\"b\"", "mes-keys-collide", "MES/007");
    message("two keys of two codes", "007=\"a\"\n8=\"b\"", "mes-keys-collide", QString());
    message("a comma in a message", "21=a, b", "unquoted-comma", "MES/21");
    message("a comma in a quoted message", "21=\"a, b\"", "unquoted-comma", QString());
    message("an apostrophe in a message", "21=\"d'Arc\"", "mes-text-breaks-sql", "MES/21");
    message("a placeholder in a message", "21=\"100 %1\"", "mes-text-breaks-sql", "MES/21");
    message("an emoji in a message", "21=\"👤\"", "mes-text-breaks-sql", "MES/21");
    message("a plain message", "21=\"100 %\"", "mes-text-breaks-sql", QString());
    message("a long message", "21=\"" + QString(121, u'á') + '"', "mes-text-too-long", "MES/21");
    message("the longest message", "21=\"" + QString(120, u'á') + '"', "mes-text-too-long",
            QString());
}

void TestCheckConfig::aRuleTripsOnItsFixtureOnly()
{
    QFETCH(QString, keys);
    QFETCH(QString, messages);
    QFETCH(QString, rule);
    QFETCH(QString, field);

    const ToolRun run = check(keys + "\n[MES]\n" + messages + "\n");

    const QVector<QJsonObject> found = run.findingsOf(rule);
    (field.isNull() ? m_fixtures.passed : m_fixtures.tripped) << rule;
    if (field.isNull()) {
        QVERIFY2(found.isEmpty(), run.report().constData());
        return;
    }
    QVERIFY2(found.size() == 1, run.report().constData());
    QCOMPARE(found[0]["field"].toString(), field);
    QVERIFY(!found[0]["message"].toString().isEmpty());
    const bool serious = found[0]["severity"].toString() != "note";
    QVERIFY(!serious || !found[0]["advice"].toString().isEmpty());
    if (serious)
        COMPARE_EXIT(run, ExitStatus::Findings);
}

void TestCheckConfig::everyRuleHasItsFixtures()
{
    // These take more than a text, and have test functions of their own.
    const QSet<QString> others{"file-missing", "file-world-writable", "import-file-no-file",
                               "import-file-world-writable"};
    QCOMPARE(m_fixtures.missing("check-config", others), QStringList());
}

void TestCheckConfig::aMissingFileIsFoundAndEveryKeyHasItsDefault()
{
    const ToolRun run = runTool({"check-config", "--json", m_dir->filePath("none.ini")});
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.findingsOf("file-missing").size(), 1);
    QCOMPARE(inForce(run, "timerInterval"), QString("a tick every 60 s"));
}

void TestCheckConfig::aFileThatOthersCanWriteIsFound()
{
    const QString path = write(kGoodMessages);
    QVERIFY(runTool({"check-config", "--json", path}).findingsOf("file-world-writable").isEmpty());

    QVERIFY(QFile::setPermissions(path, QFile::permissions(path) | QFile::WriteOther));
    QCOMPARE(runTool({"check-config", "--json", path}).findingsOf("file-world-writable").size(), 1);
}

void TestCheckConfig::theImportFolderIsLookedAt()
{
    const QString rule = "import-folder-world-writable";
    const QString text = QString(kGood).arg(m_dir->path());
    QVERIFY(check(text).findingsOf(rule).isEmpty());

    // Whoever can rename the folder can put another one in its place.
    const QString outer = m_dir->filePath("outer");
    QVERIFY(QDir().mkpath(outer + "/inner"));
    QVERIFY(QFile::setPermissions(outer, QFile::permissions(outer) | QFile::WriteOther));
    QCOMPARE(check(QString(kGood).arg(outer + "/inner")).findingsOf(rule).size(), 1);

    QVERIFY(QFile::setPermissions(m_dir->path(),
                                  QFile::permissions(m_dir->path()) | QFile::WriteOther));
    QCOMPARE(check(text).findingsOf(rule).size(), 1);
}

void TestCheckConfig::anExportThatIsNoFileOrOpenToAllIsFound()
{
    const QString path = m_dir->filePath("ron.data");
    const QString text = QString(kGood).arg(m_dir->path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(check(text).findingsOf("import-file-world-writable").isEmpty());
    QVERIFY(check(text).findingsOf("import-file-no-file").isEmpty());

    QVERIFY(file.setPermissions(file.permissions() | QFile::WriteOther));
    QCOMPARE(check(text).findingsOf("import-file-world-writable").size(), 1);

    QVERIFY(file.remove());
    QVERIFY(QDir().mkdir(path));
    QCOMPARE(check(text).findingsOf("import-file-no-file").size(), 1);
}

void TestCheckConfig::aSoundConfigurationHasNoFindings()
{
    const QString path = write(QString(kGood).arg(m_dir->path()) + kGoodMessages);
    const ToolRun run = runTool({"check-config", path});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY(run.out.endsWith("\nNothing is wrong with the configuration.\n"));
    QVERIFY(!run.out.contains("Findings"));
}

void TestCheckConfig::theTableSaysWhatIsInForce()
{
    const ToolRun run = check("enabled=no\n"
                              "timerInterval=4294968\n"
                              "syncInterval=0\n"
                              "testMode=on\n"
                              "importFile=/srv/hr/ron.data\n"
                              "deleteFile=0\n"
                              "syncCommand=\"/bin/tool, x\"\n"
                              "syncCommandRun=257\n"
                              "departmentId=0\n"
                              "[MES]\n"
                              "7=\"á\"\n"
                              "007=b, c\n");
    QCOMPARE(inForce(run, "enabled"), QString("the plugin works"));
    QCOMPARE(inForce(run, "timerInterval"), QString("a tick every 1 s"));
    QCOMPARE(inForce(run, "syncInterval"),
             QString("a synchronisation at the first tick, then every 1 tick, which is 1 s"));
    QCOMPARE(inForce(run, "testMode"), QString("people are only logged, not written"));
    QCOMPARE(inForce(run, "importFile"), QString("the export is read from /srv/hr/ron.data"));
    QCOMPARE(inForce(run, "deleteFile"), QString("the export stays and is read again"));
    QCOMPARE(inForce(run, "syncCommand"), QString("/bin/tool, x"));
    QCOMPARE(inForce(run, "syncCommandRun"),
             QString("the command is run before a forced synchronisation only"));
    QCOMPARE(inForce(run, "departmentId"), QString("people have no department"));
    QCOMPARE(inForce(run, "MES/007"), QString("register state 7 is \"á\""));
    QCOMPARE(inForce(run, "MES/7"), QString("register state 7 is \"á\""));
}

void TestCheckConfig::whatIsInForceWithoutAnyKey()
{
    const ToolRun run = check("");
    QCOMPARE(inForce(run, "enabled"), QString("the plugin works"));
    QCOMPARE(inForce(run, "timerInterval"), QString("a tick every 60 s"));
    QCOMPARE(inForce(run, "syncInterval"),
             QString("a synchronisation at the first tick, then every 60 ticks, which is 3600 s "
                     "(1 h 0 min)"));
    QCOMPARE(inForce(run, "testMode"), QString("people are written"));
    QCOMPARE(inForce(run, "importFile"), QString("the export is read from /tmp/ron.data"));
    QCOMPARE(inForce(run, "deleteFile"), QString("the export is removed after it was read"));
    QCOMPARE(inForce(run, "syncCommand"), QString("no command"));
    QCOMPARE(inForce(run, "syncCommandRun"), QString("the command is never run"));
    QCOMPARE(inForce(run, "departmentId"), QString("people are in department 1"));
}

void TestCheckConfig::noFileAtAllIsBadUsage()
{
    const ToolRun run = runTool({"check-config", m_dir->path()});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(
        run.err,
        QString("mirovahrctl: check-config: '%1' is not a readable file.\n").arg(m_dir->path()));
}

void TestCheckConfig::thePluginsOwnPathIsTheDefault()
{
    const ToolRun run = runTool({"check-config"});
    QVERIFY(run.out.startsWith("Configuration /etc/yav/MirovaHR.ini\n"));
}

void TestCheckConfig::findingsNameTheLastLineOfTheirKey()
{
    const ToolRun run = check("; a comment\n\ntestMode=0\ntestMode=1\n");
    QCOMPARE(run.findingsOf("test-mode").value(0)["line"].toInt(), 4);
}

QTEST_GUILESS_MAIN(TestCheckConfig)
#include "tst_checkconfig.moc"
