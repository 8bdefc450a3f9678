#include "mirovahrctl/subcommand.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/programrun.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// What all subcommands have in common, and the program itself.
class TestCommandLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theOverviewNamesEverySubcommandAndStatus();
    void helpIsAWordToo();
    void helpIsThatOfTheSubcommand_data();
    void helpIsThatOfTheSubcommand();
    void helpTakesOneSubcommand();
    void theVersionIsPrinted_data();
    void theVersionIsPrinted();
    void withoutASubcommandTheQuestionsAreShown();
    void anUnknownSubcommandIsRefused();
    void everySubcommandExplainsItself_data();
    void everySubcommandExplainsItself();
    void everySubcommandRefusesAnOptionThatIsNone_data();
    void everySubcommandRefusesAnOptionThatIsNone();
    void wrongUsageIsReportedInJson_data();
    void wrongUsageIsReportedInJson();
    void anUnknownSubcommandIsReportedInJson();
    void noSubcommandTakesAPasswordOnItsCommandLine_data();
    void noSubcommandTakesAPasswordOnItsCommandLine();
    void theProgramEndsWithTheStatus();
    void outputThatCannotBeWrittenIsAFailure();
    void linesAreNoWiderThanAHundredColumns();
    void linesAreNoWiderThanTheTerminal();
    void reportsAreColouredOnATerminalOnly_data();
    void reportsAreColouredOnATerminalOnly();

private:
    void addSubcommands();
};

namespace {

const char kStatuses[] =
    "Exit status:\n"
    "  0  No findings\n"
    "  1  There are findings that need attention\n"
    "  2  The command line, a file that it names, or the configuration cannot be used\n"
    "  3  The database cannot be reached or used\n"
    "  4  The database violates what the plugin relies on\n"
    "  5  A safeguard refused the request; nothing was changed\n";

} // namespace

void TestCommandLine::addSubcommands()
{
    QTest::addColumn<QString>("name");
    for (const Subcommand &subcommand : subcommands())
        QTest::newRow(subcommand.name) << subcommand.name;
}

void TestCommandLine::theOverviewNamesEverySubcommandAndStatus()
{
    for (const char *option : {"--help", "-h"}) {
        const ToolRun run = runTool({option});
        COMPARE_EXIT(run, ExitStatus::Fine);
        QVERIFY(run.out.startsWith("Usage: mirovahrctl SUBCOMMAND [OPTION...] [ARGUMENT...]\n"));
        for (const Subcommand &subcommand : subcommands())
            QVERIFY(run.out.contains(QString("\n  %1 ").arg(subcommand.name)));
        QVERIFY(run.out.endsWith(kStatuses));
    }
}

void TestCommandLine::helpIsAWordToo()
{
    const ToolRun run = runTool({"help"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.out, runTool({"--help"}).out);
}

void TestCommandLine::helpIsThatOfTheSubcommand_data()
{
    addSubcommands();
}

void TestCommandLine::helpIsThatOfTheSubcommand()
{
    QFETCH(QString, name);
    const ToolRun run = runTool({"help", name});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.out, runTool({name, "--help"}).out);
}

void TestCommandLine::helpTakesOneSubcommand()
{
    const ToolRun unknown = runTool({"help", "chek-file"});
    COMPARE_EXIT(unknown, ExitStatus::Usage);
    QCOMPARE(unknown.err,
             QString("mirovahrctl: Unknown subcommand 'chek-file'; --help lists them.\n"));
    COMPARE_EXIT(runTool({"help", "gate", "force"}), ExitStatus::Usage);
}

void TestCommandLine::theVersionIsPrinted_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("--version") << QStringList{"--version"};
    QTest::newRow("-v") << QStringList{"-v"};
    for (const Subcommand &subcommand : subcommands())
        QTest::newRow(subcommand.name) << QStringList{subcommand.name, "--version"};
}

void TestCommandLine::theVersionIsPrinted()
{
    QFETCH(QStringList, arguments);
    const ToolRun run = runTool(arguments);
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.out, QString("mirovahrctl 1.5.3\n"));
}

void TestCommandLine::withoutASubcommandTheQuestionsAreShown()
{
    const ToolRun run = runTool({});
    COMPARE_EXIT(run, ExitStatus::Usage);
    for (const char *const subcommand : {"doctor", "check-file", "explain", "preview", "log"})
        QVERIFY2(run.out.contains(QString("mirovahrctl ") + subcommand), run.report().constData());
}

void TestCommandLine::anUnknownSubcommandIsRefused()
{
    const ToolRun run = runTool({"chek-file"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, QString("mirovahrctl: Unknown subcommand 'chek-file'; --help lists them.\n"));
}

void TestCommandLine::everySubcommandExplainsItself_data()
{
    addSubcommands();
}

void TestCommandLine::everySubcommandExplainsItself()
{
    QFETCH(QString, name);
    const ToolRun run = runTool({name, "--help"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY(run.out.startsWith(QString("Usage: mirovahrctl %1 [OPTION...]").arg(name)));
    QVERIFY(run.out.contains("\n  -h, --help "));
    QVERIFY(run.out.endsWith(kStatuses));
    QCOMPARE(run.err, QString());
    for (const QString &line : run.out.split('\n'))
        QVERIFY2(line.size() <= 90, qPrintable(line));
}

void TestCommandLine::everySubcommandRefusesAnOptionThatIsNone_data()
{
    addSubcommands();
}

void TestCommandLine::everySubcommandRefusesAnOptionThatIsNone()
{
    QFETCH(QString, name);
    const ToolRun run = runTool({name, "--no-such-option"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, QString("mirovahrctl: %1: Unknown option 'no-such-option'.\n").arg(name));
    QCOMPARE(run.out, QString());
}

void TestCommandLine::wrongUsageIsReportedInJson_data()
{
    addSubcommands();
}

void TestCommandLine::wrongUsageIsReportedInJson()
{
    QFETCH(QString, name);
    const ToolRun run = runTool({name, "--json", "--no-such-option"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, QString("mirovahrctl: %1: Unknown option 'no-such-option'.\n").arg(name));
    QCOMPARE(run.failure(), QString("Unknown option 'no-such-option'."));
    QCOMPARE(run.json()["status"].toInt(), 2);
    QCOMPARE(run.json()["result"].toString(), QString("usage"));
    QCOMPARE(run.json()["subcommand"].toString(), name);
}

void TestCommandLine::anUnknownSubcommandIsReportedInJson()
{
    for (const QStringList &arguments : {QStringList{"chek-file", "--json"}, {"--json"}}) {
        const ToolRun run = runTool(arguments);
        COMPARE_EXIT(run, ExitStatus::Usage);
        QCOMPARE(run.err, "mirovahrctl: " + run.failure() + "\n");
        QVERIFY2(!run.failure().isEmpty(), run.report().constData());
    }
}

void TestCommandLine::noSubcommandTakesAPasswordOnItsCommandLine_data()
{
    addSubcommands();
}

void TestCommandLine::noSubcommandTakesAPasswordOnItsCommandLine()
{
    QFETCH(QString, name);
    COMPARE_EXIT(runTool({name, "--password=x"}), ExitStatus::Usage);
}

void TestCommandLine::theProgramEndsWithTheStatus()
{
    ProgramRun fine;
    QVERIFY(fine.run(MIROVAHRCTL, {"--version"}));
    COMPARE_STATUS(fine, 0);
    QCOMPARE(fine.output(), QString("mirovahrctl 1.5.3\n"));

    ProgramRun findings;
    QVERIFY(findings.run(MIROVAHRCTL, {"check-file", "/dev/null"}));
    COMPARE_STATUS(findings, 2);

    ProgramRun missing;
    QVERIFY(missing.run(MIROVAHRCTL, {"check-config", "/nowhere/MirovaHR.ini"}));
    COMPARE_STATUS(missing, 1);
    QCOMPARE(missing.errors(), QString());
}

void TestCommandLine::outputThatCannotBeWrittenIsAFailure()
{
    ProgramRun run;
    QVERIFY(run.run("/bin/sh", {"-c", QString("'%1' --help > /dev/full").arg(MIROVAHRCTL)}));
    COMPARE_STATUS(run, 2);
    QVERIFY2(run.errors().startsWith("mirovahrctl: The output cannot be written: "),
             run.report().constData());
}

/// An INI file with a text of 300 characters.
static QString wideIni(const QTemporaryDir &folder)
{
    QFile file(folder.filePath("MirovaHR.ini"));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    file.write("syncCommandRun=2\nsyncCommand=/bin/true" + QByteArray(" --accept").repeated(30));
    file.write("\nunknown=1\n");
    return file.fileName();
}

/// Of the lines, in characters that are seen.
static int widest(const QString &output)
{
    static const QRegularExpression unseen("\r|\x1b\\[[0-9]*m");
    int width = 0;
    for (const QString &line : QString(output).remove(unseen).split('\n'))
        width = qMax(width, line.size());
    return width;
}

void TestCommandLine::linesAreNoWiderThanAHundredColumns()
{
    const QTemporaryDir folder;
    ProgramRun run;
    QVERIFY(run.run(MIROVAHRCTL, {"check-config", wideIni(folder)}));
    COMPARE_STATUS(run, 1);
    QVERIFY(run.output().contains("--accept"));
    QVERIFY2(widest(run.output()) <= 100, run.report().constData());
}

void TestCommandLine::linesAreNoWiderThanTheTerminal()
{
    const QTemporaryDir folder;
    const QString command =
        QString("stty cols 72; exec '%1' check-config '%2'").arg(MIROVAHRCTL, wideIni(folder));
    ProgramRun run;
    run.setVariable("TERM", "xterm");
    QVERIFY(run.run("script", {"--quiet", "--return", "--command", command, "/dev/null"}));
    COMPARE_STATUS(run, 1);
    QVERIFY(run.output().contains("--accept"));
    const int width = widest(run.output());
    QVERIFY2(width > 60 && width <= 72, run.report().constData());
}

void TestCommandLine::reportsAreColouredOnATerminalOnly_data()
{
    QTest::addColumn<QString>("environment");
    QTest::addColumn<QString>("redirection");
    QTest::addColumn<bool>("isColoured");
    QTest::newRow("a terminal") << "TERM=xterm NO_COLOR="
                                << "" << true;
    QTest::newRow("a terminal for a reader who wants none") << "TERM=xterm NO_COLOR=1"
                                                            << "" << false;
    QTest::newRow("a terminal that cannot show any") << "TERM=dumb NO_COLOR="
                                                     << "" << false;
    QTest::newRow("an unknown terminal") << "TERM= NO_COLOR="
                                         << "" << false;
    QTest::newRow("a pipe") << "TERM=xterm NO_COLOR="
                            << "| cat" << false;
    QTest::newRow("JSON") << "TERM=xterm NO_COLOR="
                          << "--json" << false;
}

void TestCommandLine::reportsAreColouredOnATerminalOnly()
{
    QFETCH(QString, environment);
    QFETCH(QString, redirection);
    QFETCH(bool, isColoured);
    const QString command =
        QString("%1 '%2' rules field-count %3").arg(environment, MIROVAHRCTL, redirection);
    ProgramRun run;
    QVERIFY(run.run("script", {"--quiet", "--return", "--command", command, "/dev/null"}));
    COMPARE_STATUS(run, 0);
    QVERIFY2(run.output().contains("field-count"), run.report().constData());
    QVERIFY2(run.output().contains("\x1b[") == isColoured, run.report().constData());
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
