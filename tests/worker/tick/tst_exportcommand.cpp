#include "tests/worker/support/commandgate.h"
#include "tests/worker/support/workertest.h"

#include <QFile>
#include <QTest>
#include <QTextCodec>

#include <thread>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// A file, executable or not, in the folder of \a neighbour.
QString writeScript(const QString &neighbour, const QByteArray &content,
                    QFile::Permissions permissions)
{
    QFile file(neighbour + ".script");
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()
        || !file.setPermissions(permissions))
        qFatal("%s could not be written", qPrintable(file.fileName()));
    return file.fileName();
}

constexpr QFile::Permissions kExecutable = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

/// Counts what is written to a standard channel of this program, until it is put back.
class CountedChannel {
public:
    explicit CountedChannel(int channel)
        : m_channel(channel)
        , m_original(::dup(channel))
    {
        int ends[2] = {};
        if (::pipe2(ends, O_CLOEXEC) != 0)
            qFatal("There is no pipe");
        ::dup2(ends[1], channel);
        ::close(ends[1]);
        m_reader = std::thread([this, end = ends[0]] { read(end); });
    }
    ~CountedChannel() { putBack(); }
    CountedChannel(const CountedChannel &) = delete;
    CountedChannel &operator=(const CountedChannel &) = delete;

    qint64 putBack()
    {
        if (m_reader.joinable()) {
            ::dup2(m_original, m_channel);
            ::close(m_original);
            m_reader.join();
        }
        return m_count;
    }

private:
    void read(int end)
    {
        char buffer[4096];
        ssize_t count = 0;
        do {
            if (!waitUntilReadable(end))
                qFatal("The channel stays open.");
            count = ::read(end, buffer, sizeof(buffer));
            m_count += count;
        } while (count > 0);
        ::close(end);
    }

    const int m_channel;
    const int m_original;
    qint64 m_count = 0;
    std::thread m_reader;
};

} // namespace

class TestExportCommand : public WorkerTest {
    Q_OBJECT

private Q_SLOTS:
    void theRunConditionDecides_data();
    void theRunConditionDecides();
    void theFileThatTheCommandWritesIsReadInTheSameTick();
    void theResultOfTheCommandIsLogged_data();
    void theResultOfTheCommandIsLogged();
    void theCommandLineIsLoggedOnlyWhenVerbose_data();
    void theCommandLineIsLoggedOnlyWhenVerbose();
    void theCommandLineIsLoggedInTheLocal8BitEncoding();
    void theCommandLineIsSplitWithoutAShell();
    void aFailingCommandDoesNotKeepTheFileFromBeingRead_data();
    void aFailingCommandDoesNotKeepTheFileFromBeingRead();
    void theCommandHasTheStandardChannelsOfTheProcess();
    void whatIsNoProgramCannotStart_data();
    void whatIsNoProgramCannotStart();
    void aScriptGetsItsArgumentsAsTheyAreQuoted();
    void aCommandMayPrintMegabytes_data();
    void aCommandMayPrintMegabytes();
    void aProcessThatTheCommandLeavesBehindIsNotWaitedFor();
};

void TestExportCommand::theRunConditionDecides_data()
{
    QTest::addColumn<int>("condition");
    QTest::addColumn<bool>("forced");
    QTest::addColumn<bool>("runs");
    QTest::newRow("0: never") << 0 << false << false;
    QTest::newRow("0: not when forced either") << 0 << true << false;
    QTest::newRow("1: not on a regular synchronisation") << 1 << false << false;
    QTest::newRow("1: when forced") << 1 << true << true;
    QTest::newRow("2: always") << 2 << false << true;
    QTest::newRow("2: when forced too") << 2 << true << true;
    QTest::newRow("255: always") << 255 << false << true;
}

void TestExportCommand::theRunConditionDecides()
{
    QFETCH(int, condition);
    QFETCH(bool, forced);
    QFETCH(bool, runs);
    MHRWorker &worker = startWorker();
    worker.setSyncCommand("/bin/true");
    worker.setSyncCommandRunCondition(static_cast<unsigned char>(condition));
    force(forced ? "1" : "0");
    QCOMPARE(tick().contains("D MHRWorker::runCommand(): '/bin/true'"), runs);
    // No command where nothing is synchronised.
    QVERIFY(!tick().contains("D MHRWorker::runCommand(): '/bin/true'"));
}

void TestExportCommand::theFileThatTheCommandWritesIsReadInTheSameTick()
{
    ExportFile source;
    source.write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    MHRWorker &worker = startWorker();
    worker.setSyncCommand("/bin/cp " + source.path() + ' ' + m_export->path());
    worker.setSyncCommandRunCondition(2);
    tick();
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), 1);
}

void TestExportCommand::theResultOfTheCommandIsLogged_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QStringList>("expected");
    const QString exit = "W MHRWorker::runCommand() - command: '%1' exit with code: %2";
    const auto row = [&exit](const char *name, const QString &command, int code) {
        QTest::newRow(name) << command << QStringList(exit.arg(command).arg(code));
    };
    QTest::newRow("success is silent") << "/bin/true" << QStringList();
    row("exit code 1", "/bin/false", 1);
    row("exit code 7", "/bin/sh -c \"exit 7\"", 7);
    row("exit code 255", "/bin/sh -c \"exit 255\"", 255);
    row("a crash is -1", "/bin/sh -c \"kill -SEGV $$\"", -1);
    row("killed is -1", "/bin/sh -c \"kill -KILL $$\"", -1);
    row("ended by a signal is -1", "/bin/sh -c \"kill -TERM $$\"", -1);
    row("a child's crash is the shell's code", "/bin/sh -c \"/bin/sh -c 'kill -KILL $$'; exit $?\"",
        137);
    row("a program that cannot start is -2", "/nowhere/at/all", -2);
    row("only blanks cannot start", " ", -2);
    QTest::newRow("no command") << ""
                                << QStringList("W MHRWorker::runCommand() - NO command, aborted!");
}

void TestExportCommand::theResultOfTheCommandIsLogged()
{
    QFETCH(QString, command);
    QFETCH(QStringList, expected);
    MHRWorker &worker = startWorker(0);
    worker.setSyncCommand(command);
    worker.runCommand();
    QCOMPARE(m_log->lines(), expected);
}

void TestExportCommand::theCommandLineIsLoggedOnlyWhenVerbose_data()
{
    QTest::addColumn<int>("debugLevel");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("level 1") << 1 << "/bin/true" << QStringList();
    QTest::newRow("level 2") << 2 << "/bin/true"
                             << QStringList("D MHRWorker::runCommand(): '/bin/true'");
    QTest::newRow("no command") << 2 << ""
                                << QStringList(
                                       {"D MHRWorker::runCommand(): ''",
                                        "W MHRWorker::runCommand() - NO command, aborted!"});
}

void TestExportCommand::theCommandLineIsLoggedOnlyWhenVerbose()
{
    QFETCH(int, debugLevel);
    QFETCH(QString, command);
    QFETCH(QStringList, expected);
    MHRWorker &worker = startWorker(debugLevel);
    worker.setSyncCommand(command);
    worker.runCommand();
    QCOMPARE(m_log->lines(), expected);
}

void TestExportCommand::theCommandLineIsLoggedInTheLocal8BitEncoding()
{
    MHRWorker &worker = startWorker();
    worker.setSyncCommand("/nowhere/é");
    QTextCodec *const codec = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    worker.runCommand();
    QTextCodec::setCodecForLocale(codec);
    // One byte, which is no UTF-8.
    QCOMPARE(m_log->lines(),
             QStringList({"D MHRWorker::runCommand(): '/nowhere/\uFFFD'",
                          "W MHRWorker::runCommand() - command: '/nowhere/\uFFFD' exit with "
                          "code: -2"}));
}

void TestExportCommand::theCommandLineIsSplitWithoutAShell()
{
    MHRWorker &worker = startWorker(0);
    const QString target = m_export->path();
    const QString other = target + " two $HOME";
    worker.setSyncCommand("/usr/bin/touch  \"" + other + "\"   " + target + ';');
    worker.runCommand();
    QVERIFY(QFile::exists(other));
    QVERIFY(QFile::exists(target + ';'));
    QVERIFY(!QFile::exists(target));
}

void TestExportCommand::aFailingCommandDoesNotKeepTheFileFromBeingRead_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("none") << "";
    QTest::newRow("not there") << "/nowhere/at/all";
    QTest::newRow("failing") << "/bin/false";
}

void TestExportCommand::aFailingCommandDoesNotKeepTheFileFromBeingRead()
{
    QFETCH(QString, command);
    MHRWorker &worker = startWorker(0);
    worker.setSyncCommand(command);
    worker.setSyncCommandRunCondition(2);
    m_export->write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    tick();
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), 1);
}

void TestExportCommand::theCommandHasTheStandardChannelsOfTheProcess()
{
    MHRWorker &worker = startWorker(0);
    worker.setSyncCommand("/bin/echo from the command");

    QFile output(m_export->path());
    QVERIFY(output.open(QIODevice::ReadWrite));
    const int standardOutput = ::dup(STDOUT_FILENO);
    ::dup2(output.handle(), STDOUT_FILENO);
    worker.runCommand();
    ::dup2(standardOutput, STDOUT_FILENO);
    ::close(standardOutput);

    QVERIFY(output.seek(0));
    QCOMPARE(output.readAll(), QByteArray("from the command\n"));
}

void TestExportCommand::whatIsNoProgramCannotStart_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("executable");
    QTest::newRow("a script that is not executable") << QByteArray("#!/bin/sh\n") << false;
    QTest::newRow("a script without its first line") << QByteArray("exit 0\n") << true;
    QTest::newRow("a script of a shell that is not there")
        << QByteArray("#!/nowhere/sh\nexit 0\n") << true;
    QTest::newRow("an empty file") << QByteArray() << true;
}

void TestExportCommand::whatIsNoProgramCannotStart()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, executable);
    const QString command = writeScript(
        m_export->path(), content, executable ? kExecutable : QFile::ReadOwner | QFile::WriteOwner);
    MHRWorker &worker = startWorker(0);
    worker.setSyncCommand(command);
    worker.setSyncCommandRunCondition(2);
    m_export->write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    QCOMPARE(
        tick(),
        QStringList("W MHRWorker::runCommand() - command: '" + command + "' exit with code: -2"));
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), 1);
}

void TestExportCommand::aScriptGetsItsArgumentsAsTheyAreQuoted()
{
    const QString output = m_export->path() + ".arguments";
    const QString script = writeScript(m_export->path(),
                                       "#!/bin/sh\nfor a in \"$@\"; do echo \"[$a]\"; done > '"
                                           + output.toUtf8() + "'\nexit 3\n",
                                       kExecutable);
    MHRWorker &worker = startWorker(0);
    const QString command = script
        + R"( plain  "two  words" a"b c"d """"quoted"""" 'single quotes' $HOME * "" ; > x | y)";
    worker.setSyncCommand(command);
    worker.runCommand();
    QCOMPARE(
        m_log->lines(),
        QStringList("W MHRWorker::runCommand() - command: '" + command + "' exit with code: 3"));
    QFile file(output);
    QVERIFY(file.open(QIODevice::ReadOnly));
    // Quotes join, three of them are one; everything else is text.
    QCOMPARE(QString(file.readAll()).split('\n', Qt::SkipEmptyParts),
             QStringList({"[plain]", "[two  words]", "[ab cd]", "[\"quoted\"]", "['single]",
                          "[quotes']", "[$HOME]", "[*]", "[;]", "[>]", "[x]", "[|]", "[y]"}));
}

void TestExportCommand::aCommandMayPrintMegabytes_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<qint64>("output");
    QTest::addColumn<qint64>("errors");
    constexpr qint64 kMany = 8000000;
    const QString print = "/bin/sh -c \"head -c 8000000 /dev/zero %1\"";
    QTest::newRow("to standard output") << print.arg("") << kMany << qint64(0);
    QTest::newRow("to standard error") << print.arg(">&2") << qint64(0) << kMany;
    QTest::newRow("to one after the other")
        << print.arg("; head -c 8000000 /dev/zero >&2") << kMany << kMany;
    QTest::newRow("to both at once")
        << print.arg("& head -c 8000000 /dev/zero >&2; wait") << kMany << kMany;
}

void TestExportCommand::aCommandMayPrintMegabytes()
{
    QFETCH(QString, command);
    QFETCH(qint64, output);
    QFETCH(qint64, errors);
    MHRWorker &worker = startWorker(0);
    worker.setSyncCommand(command);
    worker.setSyncCommandRunCondition(2);
    m_export->write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    // Pipes that are much smaller, as those to a log daemon.
    CountedChannel standardOutput(STDOUT_FILENO);
    CountedChannel standardError(STDERR_FILENO);
    const QStringList log = tick();
    const qint64 printed = standardOutput.putBack();
    const qint64 complained = standardError.putBack();
    QCOMPARE(log, QStringList());
    QCOMPARE(printed, output);
    QCOMPARE(complained, errors);
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), 1);
}

void TestExportCommand::aProcessThatTheCommandLeavesBehindIsNotWaitedFor()
{
    CommandGate gate;
    MHRWorker &worker = startWorker(0);
    worker.setSyncCommand("/bin/sh -c \"" + gate.command() + " & exit 0\"");
    worker.runCommand();
    QCOMPARE(m_log->lines(), QStringList());
    gate.waitForCommand();
}

QTEST_GUILESS_MAIN(TestExportCommand)
#include "tst_exportcommand.moc"
