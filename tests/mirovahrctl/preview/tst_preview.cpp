#include "tests/mirovahrctl/preview/previewbench.h"
#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/mirovahrctl/report/browser.h"
#include "tests/privatedb/privateservertest.h"
#include "tests/support/descendants.h"
#include "tests/support/patience.h"
#include "tests/support/programrun.h"
#include "tests/worker/support/sampleexport.h"

#include <QDir>
#include <QScopeGuard>
#include <QTest>

#include <algorithm>
#include <csignal>

namespace {

const QString kIni = QStringLiteral("/etc/yav/MirovaHR.ini");

QByteArray content(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return file.readAll();
}

} // namespace

/// The program mirovahrctl with its subcommand preview, from the command line to the files that it
/// writes and the traces that it leaves.
class TestPreview : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void thePluginItselfDoesWhatWasPredicted();
    void textsThatTheGateHasWrittenArriveAsHrMeantThem();
    void theExportStaysAndNoCommandIsRun();
    void aMissingExportCommandIsWarnedOfAsByThePlugin();
    void theReportNamesItsConfiguration();
    void thePageShowsTheDifferences();
    void aConfigurationThatPreventsSynchronisationIsReported();
    void aTableThatIsNotCopiedAtTheSameMomentIsReported();
    void aViewThatARoutineUsesIsReported();
    void aSiteOfAnotherVersionIsReported();
    void aStatementThatFailsIsReported();
    void namesThatCannotBeReadAreNoMissingPeople_data();
    void namesThatCannotBeReadAreNoMissingPeople();
    void theCopyIsGoneAfterASignal_data();
    void theCopyIsGoneAfterASignal();
    void aSynchronisationThatDoesNotTakePlaceIsNoResult();
    void aServerProgramThatIsNotInstalledIsNamed();
    void anOffsetOfTheSiteThatTheProgramDoesNotHaveIsRefused();
    void aServerThatIsNotThereIsReported();
    void whatCannotBeUsedIsRefusedAtOnce_data();
    void whatCannotBeUsedIsRefusedAtOnce();
    void progressIsShownOnATerminal();
    void everyRuleHasItsFixtures();

private:
    QStringList arguments(const QStringList &more = {});
    /// Runs the program with a folder for temporary files of its own.
    void run(ProgramRun &program, const QStringList &more = {});
    QString path(const QString &name) const { return m_bench.filePath(name); }
    QStringList leftBehind() const;

    PreviewBench m_bench;
    QTemporaryDir m_temporary;
};

void TestPreview::initTestCase()
{
    QVERIFY2(QFileInfo(QStringLiteral("/etc/.machine")).isDir(),
             "This test writes to /etc/yav: run it with scripts/private-view.");
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
}

void TestPreview::init()
{
    // The site's server needs a moment to notice that a preview was killed.
    const QString sessions =
        "SELECT COUNT(*) FROM information_schema.PROCESSLIST WHERE USER = 'mirovahrctl'";
    QTRY_COMPARE_WITH_TIMEOUT(m_bench.site().value(sessions).toInt(), 0, kPatienceMs);
    m_bench.site().reset();
    m_bench.writeIni();
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::prijmeni, "Malá"),
                         SampleExport::peter().with(&ExportRow::stredisko, 199)});
}

void TestPreview::cleanup()
{
    QCOMPARE(leftBehind(), QStringList());
}

QStringList TestPreview::leftBehind() const
{
    return QDir(m_temporary.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

QStringList TestPreview::arguments(const QStringList &more)
{
    return QStringList{"preview", m_bench.exportFile().path()} + m_bench.arguments() + more;
}

void TestPreview::run(ProgramRun &program, const QStringList &more)
{
    program.setVariable("TMPDIR", m_temporary.path());
    program.run(MIROVAHRCTL, arguments(more));
}

void TestPreview::thePluginItselfDoesWhatWasPredicted()
{
    ProgramRun preview;
    preview.setVariable(PrivateMariaDb::kDataFolderVariable, QString()); // as at a site
    run(preview, {"--sql", path("preview.sql"), "--log", path("preview.log")});
    COMPARE_STATUS(preview, 1);
    QVERIFY2(preview.output().contains("1234.1 Jana Malá"), preview.report().constData());

    QFile::copy(m_bench.iniPath(), kIni);
    QFile ini(kIni);
    QVERIFY(ini.open(QIODevice::Append));
    ini.write("timerInterval=1\n");
    ini.close();
    m_bench.site().run("REPLACE INTO vars VALUES ('YAV.MHRWorker.forceSync', '1')");
    ProgramRun host;
    QVERIFY(host.run(YAVHOST,
                     QStringList{MIROVAHR_PLUGIN, "--once", "--debug-level", "3"}
                         + m_bench.arguments("yav").mid(0, 8)));
    COMPARE_STATUS(host, 0);
    ini.remove();
    const QString moments = "UPDATE people SET edited = 0; UPDATE term_sync SET created = 0";
    m_bench.site().run(moments);
    const DatabaseState happened = m_bench.site().dumpAll();

    m_bench.site().reset();
    QVERIFY2(m_bench.site().server().load(path("preview.sql")),
             qPrintable(m_bench.site().server().errorString()));
    m_bench.site().run(moments);
    QCOMPARE(TestDatabase::difference(happened, m_bench.site().dumpAll()), QString());

    const QString log = QString::fromUtf8(content(path("preview.log")));
    QVERIFY(log.contains("debug\tMHRWorker: BEGIN synchronization #1 (force: YES)\n"));
    QVERIFY(log.contains("warning\tMHRWorker: Branch '199' NOT FOUND for employee: '1002.1 "));
}

void TestPreview::textsThatTheGateHasWrittenArriveAsHrMeantThem()
{
    m_bench.site().run("UPDATE people SET surname = 'D''Arc' WHERE pid = 10021");
    m_bench.writeExport({SampleExport::jana().with(&ExportRow::prijmeni, "O''Brien"),
                         SampleExport::peter().with(&ExportRow::prijmeni, "D''Arc"),
                         SampleExport::newcomer(3901).with(&ExportRow::telefon, "100%' '1")});
    const PreviewResult result = m_bench.preview();
    QCOMPARE(result.warned(), QStringList());
    const QString lines = result.described().join('\n');
    QVERIFY2(lines.contains("1234.1 Jana O'Brien | surname | Nováková -> O'Brien"),
             qPrintable(lines));
    QVERIFY2(lines.contains("100%1"), qPrintable(lines));
    QVERIFY2(!lines.contains("''"), qPrintable(lines));
    // The plugin writes the row again, with the name that it has.
    const auto peter =
        std::find_if(result.rows.cbegin(), result.rows.cend(), [](const PreviewedRow &row) {
            return row.table == "people" && row.cell("pid") == "10021";
        });
    QVERIFY(peter != result.rows.cend());
    QVERIFY(peter->changes("edited") && !peter->changes("surname"));
}

void TestPreview::theExportStaysAndNoCommandIsRun()
{
    QFile ini(m_bench.iniPath());
    QVERIFY(ini.open(QIODevice::WriteOnly));
    ini.write(QStringLiteral("importFile=\"%1\"\ndeleteFile=true\nsyncCommandRun=2\nsyncCommand="
                             "\"touch %1\"\n")
                  .arg(path("written"))
                  .toUtf8());
    ini.close();
    const QByteArray before = content(m_bench.exportFile().path());
    ProgramRun preview;
    run(preview, {"--json"});
    COMPARE_STATUS(preview, 1);
    QCOMPARE(content(m_bench.exportFile().path()), before);
    QVERIFY(!QFileInfo::exists(path("written")));
    QVERIFY(preview.output().contains("It was not run: this is the preview of the file as it is."));
    QVERIFY(preview.output().contains("The plugin would remove the export after reading it."));
}

void TestPreview::aMissingExportCommandIsWarnedOfAsByThePlugin()
{
    m_bench.writeIni("syncCommandRun=1");
    m_bench.site().run("REPLACE INTO vars VALUES ('YAV.MHRWorker.forceSync', '1')");
    QCOMPARE(m_bench.synchroniseSite(), QString());
    const QString warning = "MHRWorker::runCommand() - NO command, aborted!";
    QVERIFY(m_bench.siteLog().contains("W " + warning));

    m_bench.site().reset();
    const ToolRun tool = runTool(arguments({"--json"}));
    COMPARE_EXIT(tool, ExitStatus::Findings);
    const QVector<QJsonObject> warnings = tool.findingsOf("plugin-warning");
    QVERIFY2(std::any_of(warnings.begin(), warnings.end(),
                         [&warning](const QJsonObject &finding) {
                             return finding.value("message") == warning;
                         }),
             tool.report().constData());
    QVERIFY(!tool.out.contains("The plugin would run its export command first."));
}

void TestPreview::theReportNamesItsConfiguration()
{
    const ToolRun named = runTool(arguments());
    QVERIFY2(named.out.contains("The configuration is that of " + m_bench.iniPath() + "."),
             named.report().constData());

    QStringList withoutIni = arguments();
    const int option = withoutIni.indexOf("--config");
    withoutIni.erase(withoutIni.begin() + option, withoutIni.begin() + option + 2);
    const ToolRun defaults = runTool(withoutIni);
    QVERIFY2(defaults.out.contains("There is no file /etc/yav/MirovaHR.ini here: this holds for a "
                                   "plugin with its defaults."),
             defaults.report().constData());
}

void TestPreview::thePageShowsTheDifferences()
{
    const ToolRun tool = runTool(arguments({"--json", "--html", path("preview.html")}));
    COMPARE_EXIT(tool, ExitStatus::Findings);
    const QJsonObject facts = tool.json().value("facts").toObject();
    QCOMPARE(facts.value("changed-people").toInt(), 2);
    QCOMPARE(facts.value("terminals").toInt(), 4);
    QCOMPARE(facts.value("new-people").toInt(), 0);
    QCOMPARE(facts.value("pluginWarnings").toInt(), 1);
    QCOMPARE(tool.rules().join(' '), QString("plugin-warning triggers-hidden"));
    QCOMPARE(tool.json().value("verdict").toString(),
             QString("A synchronisation would change 2 people. The plugin would warn 1 time."));

    Browser browser;
    const QString dom = browser.dom(path("preview.html"));
    QVERIFY2(dom.contains("<h2>Changed people</h2>"), qPrintable(dom));
    QVERIFY(dom.contains("<article><h3>1234.1 Jana Malá</h3>\n<ul><li>surname: Nováková → "
                         "Malá</li></ul><details><summary>Details</summary><ul><li>last "
                         "changed: none → now</li><li>is queued for terminal 1 (Sklad)</li></ul>"
                         "</details></article>"));
    QVERIFY(dom.contains("<h2>What is left out</h2>"));
    QVERIFY(dom.contains("NOT FOUND for employee"));
    const QImage phone = browser.picture(path("preview.html"), 500, 1800);
    QCOMPARE(phone.pixel(495, 900), qRgb(0xff, 0xff, 0xff));
}

void TestPreview::aConfigurationThatPreventsSynchronisationIsReported()
{
    m_bench.writeIni("testMode=1\nenabled=0");
    const ToolRun tool = runTool(arguments({"--json"}));
    COMPARE_EXIT(tool, ExitStatus::Findings);
    QCOMPARE(tool.findingsOf("test-mode").size(), 1);
    QCOMPARE(tool.findingsOf("disabled").size(), 1);
}

void TestPreview::aTableThatIsNotCopiedAtTheSameMomentIsReported()
{
    m_bench.site().run("ALTER TABLE vars ENGINE=MyISAM");
    const ToolRun tool = runTool(arguments({"--json"}));
    QCOMPARE(tool.findingsOf("no-snapshot").size(), 1);
}

void TestPreview::aViewThatARoutineUsesIsReported()
{
    m_bench.site().run("CREATE VIEW colours AS SELECT * FROM funds");
    m_bench.site().run("CREATE TRIGGER loud AFTER UPDATE ON people FOR EACH ROW "
                       "SET @n = (SELECT COUNT(*) FROM colours)");
    m_bench.site().run("GRANT TRIGGER, SHOW VIEW ON tepdb.* TO mirovahrctl@localhost");
    const ToolRun tool = runTool(arguments({"--json"}));
    m_bench.site().run("REVOKE TRIGGER, SHOW VIEW ON tepdb.* FROM mirovahrctl@localhost");
    m_bench.site().run("DROP VIEW colours");
    QVERIFY2(tool.findingsOf("view-not-copied").size() == 1, tool.report().constData());
}

void TestPreview::aSiteOfAnotherVersionIsReported()
{
    PreviewBench other;
    QVERIFY2(other.start({"--version=10.5.1-MariaDB"}), qPrintable(other.site().errorString()));
    other.writeExport({SampleExport::jana()});
    const ToolRun tool =
        runTool(QStringList{"preview", other.exportFile().path(), "--json"} + other.arguments());
    QVERIFY2(tool.findingsOf("other-server").size() == 1, tool.report().constData());
}

void TestPreview::aStatementThatFailsIsReported()
{
    m_bench.site().run("ALTER TABLE people ADD CONSTRAINT picky CHECK (surname <> 'Malá')");
    const ToolRun tool = runTool(arguments({"--json"}));
    COMPARE_EXIT(tool, ExitStatus::Findings);
    QVERIFY2(!tool.findingsOf("plugin-error").isEmpty(), tool.report().constData());
    QCOMPARE(tool.findingsOf("plugin-error").constFirst().value("advice").toString(),
             QString("The text is that of the plugin's log: docs/operations.md says what it means "
                     "and what to do."));
}

void TestPreview::namesThatCannotBeReadAreNoMissingPeople_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("report") << QStringList{};
    QTest::newRow("undo") << QStringList{"--undo", path("nameless.sql")};
}

/// After a statement that fails, no other name is read either.
void TestPreview::namesThatCannotBeReadAreNoMissingPeople()
{
    QFETCH(QStringList, options);
    m_bench.site().run("ALTER TABLE branches DROP COLUMN name");
    const ToolRun tool = runTool(arguments(options));
    COMPARE_EXIT(tool, ExitStatus::ContractBroken);
    QCOMPARE(tool.out, QString());
    QVERIFY2(tool.err.startsWith("mirovahrctl: preview: The names in the copy cannot be read: "
                                 "Unknown column 'name' "),
             tool.report().constData());
    QVERIFY(!QFileInfo::exists(path("nameless.sql")));
}

void TestPreview::theCopyIsGoneAfterASignal_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("interrupted") << SIGINT;
    QTest::newRow("terminated") << SIGTERM;
    QTest::newRow("killed") << SIGKILL;
}

void TestPreview::theCopyIsGoneAfterASignal()
{
    QFETCH(int, signal);
    Descendants descendants;
    m_bench.site().run("LOCK TABLES people WRITE");
    const auto unlock = qScopeGuard([this] { m_bench.site().run("UNLOCK TABLES"); });
    ProgramRun preview;
    preview.setVariable("TMPDIR", m_temporary.path());
    preview.start(MIROVAHRCTL, arguments({"--undo", path("interrupted.sql")}));
    // The copy's server runs when the first table is read.
    const QString waiting = "SELECT COUNT(*) FROM information_schema.PROCESSLIST WHERE USER = "
                            "'mirovahrctl' AND INFO LIKE 'SELECT % FROM `people`' AND STATE LIKE "
                            "'Waiting for table%'";
    QTRY_VERIFY_WITH_TIMEOUT(m_bench.site().value(waiting).toInt() > 0, kPatienceMs);
    const QStringList folders = leftBehind();
    QCOMPARE(folders.size(), 1);
    const TemporaryTable table(m_temporary.filePath(folders.first() + "/s"), "table");
    QCOMPARE(table.error(), QString());
    preview.sendSignal(signal);
    QVERIFY(preview.waitForEnd());
    COMPARE_STATUS(preview, 128 + signal);
    QVERIFY(descendants.waitForEnd());
    QVERIFY(!QFileInfo::exists(path("interrupted.sql")));
}

void TestPreview::aSynchronisationThatDoesNotTakePlaceIsNoResult()
{
    m_bench.site().run("ALTER TABLE people DROP COLUMN title2");
    const ToolRun tool =
        runTool(arguments({"--sql", path("nothing.sql"), "--undo", path("nothing-undo.sql")}));
    COMPARE_EXIT(tool, ExitStatus::ContractBroken);
    QCOMPARE(tool.out, QString());
    QVERIFY2(tool.err.startsWith("mirovahrctl: preview: The plugin cannot load the people of this "
                                 "database and would synchronise nobody. It logs "),
             tool.report().constData());
    QVERIFY(!QFileInfo::exists(path("nothing.sql")));
    QVERIFY(!QFileInfo::exists(path("nothing-undo.sql")));
}

void TestPreview::aServerProgramThatIsNotInstalledIsNamed()
{
    ProgramRun preview;
    preview.setVariable("PATH", "/nonexistent");
    run(preview);
    COMPARE_STATUS(preview, 3);
    QVERIFY2(preview.errors().endsWith("is missing: install the package mariadb-server-core.\n"),
             preview.report().constData());
    QCOMPARE(preview.output(), QString());
}

/// The copy's server takes over a zone that is an offset, so it agrees with the site's.
void TestPreview::anOffsetOfTheSiteThatTheProgramDoesNotHaveIsRefused()
{
    m_bench.site().run("SET GLOBAL time_zone = '-11:30'");
    ProgramRun preview;
    run(preview);
    m_bench.site().run("SET GLOBAL time_zone = DEFAULT");
    COMPARE_STATUS(preview, 2);
    QCOMPARE(
        preview.errors(),
        QString("mirovahrctl: preview: The site's server (time zone -11:30) and this program "
                "disagree about when days begin. Run this program with the TZ of the attendance "
                "server.\n"));
}

void TestPreview::aServerThatIsNotThereIsReported()
{
    const ToolRun tool = runTool(arguments({"--socket", m_bench.filePath("nobody")}));
    COMPARE_EXIT(tool, ExitStatus::NoDatabase);
    QVERIFY2(tool.err.startsWith("mirovahrctl: preview: The database cannot be opened: "),
             tool.report().constData());
}

void TestPreview::whatCannotBeUsedIsRefusedAtOnce_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("complaint");
    const QString ending = m_bench.filePath("nothing/there");
    QTest::newRow("no export") << QStringList{"preview", ending}
                               << "There is no file '" + ending + "'.\n";
    QTest::newRow("no INI file") << arguments({"--config", ending})
                                 << "There is no file '" + ending + "'.\n";
    QTest::newRow("no folder for the SQL")
        << arguments({"--sql", ending})
        << "'" + ending + "' cannot be written: No such file or directory.\n";
    QTest::newRow("the SQL over the export")
        << arguments({"--sql", m_bench.exportFile().path()})
        << "The result would overwrite the export; name another file.\n";
    QTest::newRow("no folder for the undo")
        << arguments({"--undo", ending})
        << "'" + ending + "' cannot be written: No such file or directory.\n";
    QTest::newRow("the undo over the export")
        << arguments({"--undo", m_bench.exportFile().path()})
        << "The result would overwrite the export; name another file.\n";
    QTest::newRow("the undo over the SQL")
        << arguments({"--sql", path("one"), "--undo", m_bench.filePath("./one")})
        << "Two results would be written to '" + m_bench.filePath("./one")
            + "'; name another file.\n";
    QTest::newRow("a partial undo without one")
        << arguments({"--partial"}) << "--partial belongs to --undo.\n";
    QTest::newRow("the log over the export")
        << arguments({"--log", m_bench.exportFile().path()})
        << "The result would overwrite the export; name another file.\n";
}

void TestPreview::whatCannotBeUsedIsRefusedAtOnce()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, complaint);
    if (!arguments.contains("--socket"))
        arguments += m_bench.arguments();
    const ToolRun tool = runTool(arguments);
    COMPARE_EXIT(tool, ExitStatus::Usage);
    QCOMPARE(tool.err, "mirovahrctl: preview: " + complaint);
    QCOMPARE(tool.out, QString());
}

void TestPreview::progressIsShownOnATerminal()
{
    const ToolRun tool = runTool(arguments(), true);
    QVERIFY(tool.err.contains("Copying the database: "));
    QVERIFY(tool.err.contains("Synchronising the copy: "));
    QVERIFY(tool.err.endsWith("\r\x1b[K"));
}

void TestPreview::everyRuleHasItsFixtures()
{
    QCOMPARE(RuleFixtures::ofReports("preview").missing("preview", {}), QStringList());
}

QTEST_GUILESS_MAIN(TestPreview)
#include "tst_preview.moc"
