#include "tests/support/programrun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace {

const QString kPrivateView = QStringLiteral(PRIVATE_VIEW);

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(file.errorString()));
    file.write(content);
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

} // namespace

/// scripts/private-view. The test runs in such a view itself: it is "the machine" for the view that
/// it opens in turn.
class TestPrivateView : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void whatTheMachineHasIsHidden();
    void nothingIsMadeOnTheMachine();
    void whatTheCommandWritesThereStaysInTheView();
    void everythingElseStaysReachable();
    void aFileInAFolderBelowTmpIsTheMachines();
    void aFolderWithAnOddNameIsTheMachinesToo();
    void aFolderThatIsGoneOnTheMachineIsNoObstacle();
    void theCommandStartsInTheWorkingFolder();
    void theCommandKeepsItsUserAndGroup();
    void theIniFileOfTheEnvironmentIsThere();
    void anIniFileThatCannotBeReadIsAFailure();
    void theExitStatusIsThatOfTheCommand_data();
    void theExitStatusIsThatOfTheCommand();
    void aSignalReachesTheCommandItself();
    void withoutNamespacesTheCommandIsNotRun();

private:
    ProgramRun &runShell(const QString &command);

    std::unique_ptr<ProgramRun> m_run;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestPrivateView::initTestCase()
{
    QVERIFY2(QFileInfo(QStringLiteral("/etc/.machine")).isDir(),
             "This test writes to /etc/yav: run it with scripts/private-view.");
}

void TestPrivateView::init()
{
    m_run = std::make_unique<ProgramRun>();
    m_folder = std::make_unique<QTemporaryDir>(QStringLiteral("/tmp/view-XXXXXX"));
    QVERIFY(m_folder->isValid());
}

void TestPrivateView::cleanup()
{
    QDir(QStringLiteral("/etc/yav")).removeRecursively();
    QVERIFY(QDir().mkdir(QStringLiteral("/etc/yav")));
    QFile::remove(QStringLiteral("/tmp/ron.data"));
}

ProgramRun &TestPrivateView::runShell(const QString &command)
{
    m_run->run(kPrivateView, {"sh", "-c", command});
    return *m_run;
}

void TestPrivateView::whatTheMachineHasIsHidden()
{
    writeFile("/etc/yav/MirovaHR.ini", "enabled=true\n");
    writeFile("/tmp/ron.data", "1|2|3\n");
    const ProgramRun &run =
        runShell("ls -A /etc/yav; ls -d /etc/yav; ls -A /tmp | grep -x ron.data");
    COMPARE_STATUS(run, 1); // grep's: no such name
    QCOMPARE(run.output(), QStringLiteral("/etc/yav\n"));
}

void TestPrivateView::nothingIsMadeOnTheMachine()
{
    QVERIFY(QDir().rmdir(QStringLiteral("/etc/yav")));
    const QStringList etc = QDir("/etc").entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    const QStringList tmp = QDir("/tmp").entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    COMPARE_STATUS(runShell("ls -d /etc/yav"), 0);
    QCOMPARE(QDir("/etc").entryList(QDir::AllEntries | QDir::Hidden | QDir::System), etc);
    QCOMPARE(QDir("/tmp").entryList(QDir::AllEntries | QDir::Hidden | QDir::System), tmp);
    QVERIFY(QDir().mkdir(QStringLiteral("/etc/yav")));
}

void TestPrivateView::whatTheCommandWritesThereStaysInTheView()
{
    writeFile("/etc/yav/MirovaHR.ini", "the machine's\n");
    const ProgramRun &run =
        runShell("echo mine | tee /etc/yav/MirovaHR.ini /tmp/ron.data /tmp/new-file >/dev/null;"
                 "cat /etc/yav/MirovaHR.ini /tmp/ron.data /tmp/new-file");
    COMPARE_STATUS(run, 0);
    QCOMPARE(run.output(), QStringLiteral("mine\nmine\nmine\n"));
    QCOMPARE(readFile("/etc/yav/MirovaHR.ini"), QByteArray("the machine's\n"));
    QVERIFY(!QFile::exists("/tmp/ron.data"));
    QVERIFY(!QFile::exists("/tmp/new-file"));
}

void TestPrivateView::everythingElseStaysReachable()
{
    writeFile("/tmp/a file", "in /tmp\n");
    QVERIFY(QFile::link("a file", "/tmp/a-link"));
    writeFile(m_folder->filePath("inside"), "in a folder\n");
    const ProgramRun &run = runShell(QStringLiteral("cat '/tmp/a file' /tmp/a-link '%1'; "
                                                    "cmp /etc/passwd /etc/.machine/passwd; "
                                                    "test -e /etc/alternatives; ls /etc | wc -l")
                                         .arg(m_folder->filePath("inside")));
    QFile::remove("/tmp/a file");
    QFile::remove("/tmp/a-link");
    COMPARE_STATUS(run, 0);
    const int entries =
        QDir("/etc").entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
    QCOMPARE(run.output(), QStringLiteral("in /tmp\nin /tmp\nin a folder\n%1\n").arg(entries));
}

void TestPrivateView::aFileInAFolderBelowTmpIsTheMachines()
{
    const QString path = m_folder->filePath("result");
    COMPARE_STATUS(runShell(QStringLiteral("echo built >'%1'").arg(path)), 0);
    QCOMPARE(readFile(path), QByteArray("built\n"));
}

void TestPrivateView::aFolderWithAnOddNameIsTheMachinesToo()
{
    const QTemporaryDir odd(QStringLiteral("/tmp/# a\\b\tc\nd-XXXXXX"));
    QVERIFY(odd.isValid());
    COMPARE_STATUS(runShell(QStringLiteral("echo built >'%1'").arg(odd.filePath("result"))), 0);
    QCOMPARE(readFile(odd.filePath("result")), QByteArray("built\n"));
}

void TestPrivateView::aFolderThatIsGoneOnTheMachineIsNoObstacle()
{
    // In the view, the folder is removed where it really is; a mount of it stays behind.
    const QString original = m_folder->path().replace("/tmp/", "/tmp/.machine/");
    COMPARE_STATUS(runShell(QStringLiteral("rmdir '%1' && ls -d '%2' && exec '%3' true")
                                .arg(original, m_folder->path(), kPrivateView)),
                   0);
}

void TestPrivateView::theCommandStartsInTheWorkingFolder()
{
    // sh -c "cd; private-view": the folder that is entered is one that gets covered.
    m_run->run("sh",
               {"-c",
                QStringLiteral("cd '%1' && exec '%2' sh -c 'pwd; touch here'")
                    .arg(m_folder->path(), kPrivateView)});
    COMPARE_STATUS(*m_run, 0);
    QCOMPARE(m_run->output(), m_folder->path() + "\n");
    QVERIFY(QFile::exists(m_folder->filePath("here")));
}

void TestPrivateView::theCommandKeepsItsUserAndGroup()
{
    ProgramRun outside;
    QVERIFY(outside.run("id", {"-u"}));
    QCOMPARE(runShell("id -u").output(), outside.output());
}

void TestPrivateView::theIniFileOfTheEnvironmentIsThere()
{
    const QString ini = m_folder->filePath("my.ini");
    writeFile(ini, "timerInterval=1\n");
    m_run->setVariable("MIROVAHR_INI", ini);
    const ProgramRun &run = runShell("cat /etc/yav/MirovaHR.ini; ls -A /etc/yav");
    COMPARE_STATUS(run, 0);
    QCOMPARE(run.output(), QStringLiteral("timerInterval=1\nMirovaHR.ini\n"));
}

void TestPrivateView::anIniFileThatCannotBeReadIsAFailure()
{
    m_run->setVariable("MIROVAHR_INI", "/nowhere.ini");
    const ProgramRun &run = runShell("echo ran");
    COMPARE_STATUS(run, 125);
    QVERIFY(run.errors().endsWith("private-view: cannot read /nowhere.ini\n"));
    QCOMPARE(run.output(), QString());
}

void TestPrivateView::theExitStatusIsThatOfTheCommand_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<int>("status");
    QTest::newRow("success") << QStringList{"true"} << 0;
    QTest::newRow("failure") << QStringList{"sh", "-c", "exit 7"} << 7;
    QTest::newRow("ended by a signal") << QStringList{"sh", "-c", "kill -KILL $$"} << 128 + SIGKILL;
    QTest::newRow("no such command") << QStringList{"/nowhere/command"} << 127;
    QTest::newRow("no command at all") << QStringList() << 2;
}

void TestPrivateView::theExitStatusIsThatOfTheCommand()
{
    QFETCH(QStringList, command);
    QFETCH(int, status);
    QVERIFY(m_run->run(kPrivateView, command));
    COMPARE_STATUS(*m_run, status);
}

void TestPrivateView::aSignalReachesTheCommandItself()
{
    m_run->start(kPrivateView,
                 {"sh", "-c", "trap 'echo caught; exit 3' USR1; echo ready; read line"});
    QVERIFY2(m_run->waitForText("ready\n"), m_run->report().constData());
    m_run->sendSignal(SIGUSR1);
    QVERIFY(m_run->waitForEnd());
    COMPARE_STATUS(*m_run, 3);
    QCOMPARE(m_run->output(), QStringLiteral("ready\ncaught\n"));
}

void TestPrivateView::withoutNamespacesTheCommandIsNotRun()
{
    const QString forbid = QStringLiteral("echo 0 >/proc/sys/user/max_mnt_namespaces && "
                                          "echo 0 >/proc/sys/user/max_user_namespaces && "
                                          "exec '%1' echo ran")
                               .arg(kPrivateView);
    QVERIFY(m_run->run("unshare", {"--user", "--map-root-user", "sh", "-c", forbid}));
    COMPARE_STATUS(*m_run, 125);
    QCOMPARE(
        m_run->errors(),
        QStringLiteral("private-view: this machine allows neither a mount namespace nor a user "
                       "namespace; nothing was run\n"));
    QCOMPARE(m_run->output(), QString());
}

QTEST_GUILESS_MAIN(TestPrivateView)
#include "tst_privateview.moc"
