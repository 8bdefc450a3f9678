#include "tests/cycle/cycletest.h"

#include <QFile>
#include <QTextCodec>
#include <QtTest>

#include <unistd.h>

class TestExportCommand : public CycleTest {
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
    setForce(forced ? "1" : "0");
    QCOMPARE(tick().contains("D MHRWorker::runCommand(): '/bin/true'"), runs);
    // No command where nothing is synchronised.
    QVERIFY(!tick().contains("D MHRWorker::runCommand(): '/bin/true'"));
}

void TestExportCommand::theFileThatTheCommandWritesIsReadInTheSameTick()
{
    ExportFile source;
    source.write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    MHRWorker &worker = startWorker();
    worker.setSyncCommand("/bin/cp " + source.path() + ' ' + m_file->path());
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
    MHRWorker &worker = startWorker(static_cast<unsigned char>(debugLevel));
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
    const QString target = m_file->path();
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
    m_file->write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    tick();
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), 1);
}

void TestExportCommand::theCommandHasTheStandardChannelsOfTheProcess()
{
    MHRWorker &worker = startWorker(0);
    worker.setSyncCommand("/bin/echo from the command");

    QFile output(m_file->path());
    QVERIFY(output.open(QIODevice::ReadWrite));
    const int standardOutput = ::dup(STDOUT_FILENO);
    ::dup2(output.handle(), STDOUT_FILENO);
    worker.runCommand();
    ::dup2(standardOutput, STDOUT_FILENO);
    ::close(standardOutput);

    QVERIFY(output.seek(0));
    QCOMPARE(output.readAll(), QByteArray("from the command\n"));
}

QTEST_GUILESS_MAIN(TestExportCommand)
#include "tst_exportcommand.moc"
