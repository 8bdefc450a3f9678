#include "tests/privatedb/privateservertest.h"
#include "tests/support/descendants.h"
#include "tests/support/madedata.h"
#include "tests/support/patience.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

/// A bare connection to a server's socket, to see the server go.
class Peer {
public:
    explicit Peer(const QByteArray &socketPath)
        : m_socket(::socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, socketPath.constData(), sizeof address.sun_path - 1);
        m_connected =
            ::connect(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0;
    }
    ~Peer() { ::close(m_socket); }
    Peer(const Peer &) = delete;
    Peer &operator=(const Peer &) = delete;

    bool isConnected() const { return m_connected; }
    bool waitUntilGone() const
    {
        char bytes[256];
        while (waitUntilReadable(m_socket)) {
            if (::read(m_socket, bytes, sizeof bytes) <= 0) // past the greeting: the end
                return true;
        }
        return false;
    }

private:
    const int m_socket;
    bool m_connected;
};

} // namespace

class TestPrivateMariaDb : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();

    void aStartedServerAnswersBothAccounts();
    void theHostAccountHasNoRightsOnOtherDatabases();
    void theHostAccountHasOnlyWhatIsGranted();
    void theServerListensOnItsSocketOnly();
    void theFolderGoesAwayWithTheServer();
    void theFolderStaysWhenAskedFor();
    void aRestartKeepsDataSocketAndAccounts();
    void aKilledServerComesBackWithItsData();
    void furtherOptionsReachTheServer();
    void aSocketPathThatIsTooLongFailsEarlyAndIsNamed();
    void aFolderThatCannotBeCreatedIsNamed();
    void aDataFolderThatCannotBeCopiedIsNamed();
    void aServerThatCannotStartShowsTheEndOfItsLog();
    void aFileWithDelimitersIsLoaded();
    void aLoadErrorShowsTheFileAndTheDatabasesMessage();
    void aMissingProgramNamesThePackage();

    void theCommandFindsTheServerInItsEnvironment();
    void theCommandIsNotLedToAnotherServer();
    void theAccountOfTheProgramCanBeWithoutRights();
    void theExitStatusIsTheCommands_data();
    void theExitStatusIsTheCommands();
    void aFailedLoadRunsNoCommand();
    void aMissingCommandIsAUsageError();
    void theCommandsOwnOptionsAreLeftAlone();
    void keepNamesTheFolderAndLeavesIt();
    void aSignalEndsTheCommandAndCleansUp_data();
    void aSignalEndsTheCommandAndCleansUp();
    void serverCommandAndFolderGoWithAKilledProgram();
    void aProgramThatIsKilledWhileItStartsLeavesNothingBehind();
    void aKilledProgramLeavesAFolderThatIsToBeKept();
    void aMachineNeedNotResolveItsOwnName();
    void aMissingDriverNamesThePackage();

private:
    void startProgram(QProcess &program, const QStringList &arguments);
    void runProgram(QProcess &program, const QStringList &arguments);

    QScopedPointer<QTemporaryDir> m_temp;
};

void TestPrivateMariaDb::initTestCase()
{
    MadeData::use();
}

void TestPrivateMariaDb::init()
{
    m_temp.reset(new QTemporaryDir);
    QVERIFY(m_temp->isValid());
}

/// Starts private-mariadb with this test's folder as its temporary folder.
void TestPrivateMariaDb::startProgram(QProcess &program, const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", m_temp->path());
    program.setProcessEnvironment(environment);
    program.start(PRIVATE_MARIADB_PROGRAM, arguments);
}

void TestPrivateMariaDb::runProgram(QProcess &program, const QStringList &arguments)
{
    startProgram(program, arguments);
    QVERIFY(program.waitForFinished(kPatienceMs));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
}

void TestPrivateMariaDb::aStartedServerAnswersBothAccounts()
{
    const OwnInstallation installation;
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(server.isRunning());
    QVERIFY(server.pid() > 0);
    QCOMPARE(answer(server, "SELECT CONCAT(CURRENT_USER(), ' ', DATABASE())"),
             QString("yav@localhost tepdb"));
    QCOMPARE(answer(server, "SELECT CURRENT_USER()", PrivateMariaDb::Account::Administrator),
             QString("root@localhost"));
    QCOMPARE(QString::fromUtf8(readFile(server.passwordFile())), server.password());
    QCOMPARE(QFile::permissions(server.passwordFile())
                 & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
             QFile::Permissions());
}

void TestPrivateMariaDb::theHostAccountHasNoRightsOnOtherDatabases()
{
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(answer(server, "SELECT COUNT(*) FROM mysql.user").contains("denied"));
}

void TestPrivateMariaDb::theHostAccountHasOnlyWhatIsGranted()
{
    writeFile(m_temp->filePath("a.sql"),
              "CREATE TABLE a (n INT);\nGRANT SELECT ON a TO yav@localhost;\n");
    PrivateMariaDb server;
    server.setHostRights(PrivateMariaDb::HostRights::None);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY2(server.load(m_temp->filePath("a.sql")), qPrintable(server.errorString()));
    QCOMPARE(answer(server, "SELECT COUNT(*) FROM a"), QString("0"));
    QVERIFY(answer(server, "INSERT INTO a VALUES (1)").contains("denied"));
}

void TestPrivateMariaDb::theServerListensOnItsSocketOnly()
{
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QCOMPARE(answer(server, "SELECT @@skip_networking"), QString("1"));
    QCOMPARE(answer(server, "SELECT @@socket"), server.socketPath());
    QVERIFY(server.socketPath().startsWith(server.folder() + '/'));
}

void TestPrivateMariaDb::theFolderGoesAwayWithTheServer()
{
    {
        PrivateMariaDb server;
        server.setBaseDir(m_temp->path());
        QVERIFY(server.folder().isEmpty());
        QVERIFY2(server.start(), qPrintable(server.errorString()));
        QCOMPARE(entries(m_temp->path()).size(), 1);
    }
    QCOMPARE(entries(m_temp->path()), QStringList());
}

void TestPrivateMariaDb::theFolderStaysWhenAskedFor()
{
    QString errorLog;
    {
        PrivateMariaDb server;
        server.setBaseDir(m_temp->path());
        server.setKeepFiles(true);
        QVERIFY2(server.start(), qPrintable(server.errorString()));
        errorLog = server.errorLogPath();
    }
    QVERIFY(readFile(errorLog).contains("Shutdown complete"));
}

void TestPrivateMariaDb::aRestartKeepsDataSocketAndAccounts()
{
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    const QString socket = server.socketPath();
    const qint64 pid = server.pid();
    answer(server, "CREATE TABLE a AS SELECT 'kept' t");
    QVERIFY2(server.restart(), qPrintable(server.errorString()));
    QVERIFY(server.pid() != pid);
    QCOMPARE(server.socketPath(), socket);
    QCOMPARE(answer(server, "SELECT t FROM a"), QString("kept"));
    QVERIFY(server.stop());
    QVERIFY(!server.isRunning());
    QCOMPARE(server.pid(), 0);
    QVERIFY(server.stop());
}

void TestPrivateMariaDb::aKilledServerComesBackWithItsData()
{
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    answer(server, "CREATE TABLE a AS SELECT 'kept' t");
    server.kill();
    QVERIFY(!server.isRunning());
    QVERIFY(answer(server, "SELECT t FROM a").contains("connect"));
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QCOMPARE(answer(server, "SELECT t FROM a"), QString("kept"));
}

void TestPrivateMariaDb::furtherOptionsReachTheServer()
{
    PrivateMariaDb server;
    server.setDatabaseName("other");
    server.setServerOptions({"--max-connections=17", "--default-time-zone=+03:00"});
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QCOMPARE(answer(server, "SELECT CONCAT_WS(' ', @@max_connections, @@time_zone, DATABASE())"),
             QString("17 +03:00 other"));
}

void TestPrivateMariaDb::aSocketPathThatIsTooLongFailsEarlyAndIsNamed()
{
    const QString longFolder = m_temp->filePath(QString(100, 'x'));
    QVERIFY(QDir().mkdir(longFolder));
    PrivateMariaDb server;
    server.setBaseDir(longFolder);
    QVERIFY(!server.start());
    QVERIFY2(server.errorString().contains(longFolder + "/mhrdb-"),
             qPrintable(server.errorString()));
    QVERIFY2(server.errorString().contains("107 bytes"), qPrintable(server.errorString()));
    QCOMPARE(entries(longFolder), QStringList());
}

void TestPrivateMariaDb::aFolderThatCannotBeCreatedIsNamed()
{
    PrivateMariaDb server;
    server.setBaseDir(m_temp->filePath("missing"));
    QVERIFY(!server.start());
    QVERIFY2(server.errorString().contains(m_temp->filePath("missing")),
             qPrintable(server.errorString()));
}

void TestPrivateMariaDb::aDataFolderThatCannotBeCopiedIsNamed()
{
    const QString missing = m_temp->filePath("missing");
    const ScopedVariable folder(PrivateMariaDb::kDataFolderVariable, missing.toUtf8());
    PrivateMariaDb server;
    QVERIFY(!server.start());
    QVERIFY2(server.errorString().startsWith(missing + " could not be copied: "),
             qPrintable(server.errorString()));
}

void TestPrivateMariaDb::aServerThatCannotStartShowsTheEndOfItsLog()
{
    PrivateMariaDb server;
    server.setServerOptions({"--no-such-option"});
    QVERIFY(!server.start());
    QVERIFY2(server.errorString().contains("no-such-option"), qPrintable(server.errorString()));
    server.setServerOptions({});
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QCOMPARE(answer(server, "SELECT 5"), QString("5"));
}

void TestPrivateMariaDb::aFileWithDelimitersIsLoaded()
{
    writeFile(
        m_temp->filePath("a.sql"),
        "DELIMITER //\nCREATE PROCEDURE p() BEGIN SELECT 1; SELECT 'ž'; END//\nDELIMITER ;\n");
    writeFile(m_temp->filePath("b.sql"), "CREATE TABLE a AS SELECT 'ľ' t;\n");
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY2(server.load(QStringList{m_temp->filePath("a.sql"), m_temp->filePath("b.sql")}),
             qPrintable(server.errorString()));
    QCOMPARE(answer(server, "SELECT t FROM a"), QString("ľ"));
}

void TestPrivateMariaDb::aLoadErrorShowsTheFileAndTheDatabasesMessage()
{
    const QString bad = m_temp->filePath("bad.sql");
    writeFile(bad, "CREATE TABLE a (n INT);\nSELECT n FROM nowhere;\nCREATE TABLE b (n INT);\n");
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(!server.load(bad));
    QVERIFY2(server.errorString().contains(bad), qPrintable(server.errorString()));
    QVERIFY2(server.errorString().contains("line 2: Table 'tepdb.nowhere' doesn't exist"),
             qPrintable(server.errorString()));
    QCOMPARE(answer(server, "SHOW TABLES LIKE 'b'"), QString());
    QVERIFY(!server.load(m_temp->filePath("missing.sql")));
    QVERIFY2(server.errorString().contains("missing.sql"), qPrintable(server.errorString()));
}

void TestPrivateMariaDb::aMissingProgramNamesThePackage()
{
    PrivateMariaDb server;
    const ScopedVariable path("PATH", "/nonexistent");
    QVERIFY(!server.start());
    QVERIFY2(server.errorString().endsWith("is missing: install the package mariadb-server-core."),
             qPrintable(server.errorString()));
    QVERIFY(!server.load("a.sql"));
    QCOMPARE(server.errorString(),
             QString("The program mariadb is missing: install the package mariadb-client-core."));
}

void TestPrivateMariaDb::theCommandFindsTheServerInItsEnvironment()
{
    writeFile(m_temp->filePath("a.sql"), "CREATE TABLE a AS SELECT 'loaded' t;\n");
    QProcess program;
    runProgram(program,
               {"--database", "mine", "--option", "max-connections=19", "--load",
                m_temp->filePath("a.sql"), "--", "sh", "-c",
                "mariadb --no-defaults -N --socket=$MIROVAHR_DB_SOCKET --user=$MIROVAHR_DB_USER"
                " --password=$(cat $MIROVAHR_DB_PASSWORD_FILE) $MIROVAHR_DB_NAME"
                " -e 'SELECT t, DATABASE(), @@max_connections FROM a'"});
    QCOMPARE(program.readAllStandardError(), QByteArray());
    QCOMPARE(program.readAllStandardOutput(), QByteArray("loaded\tmine\t19\n"));
    QCOMPARE(program.exitCode(), 0);
    QCOMPARE(entries(m_temp->path()), QStringList("a.sql"));
}

void TestPrivateMariaDb::theCommandIsNotLedToAnotherServer()
{
    const ScopedVariable host("MYSQL_HOST", "127.0.0.1");
    const ScopedVariable port("MYSQL_TCP_PORT", "1"); // no server listens there
    const ScopedVariable password("MYSQL_PWD", "of another server");
    QProcess program;
    runProgram(program,
               {"--", "sh", "-c",
                "mariadb --no-defaults -N --socket=$MIROVAHR_DB_SOCKET --user=root"
                " -e 'SELECT @@socket = \"\'$MIROVAHR_DB_SOCKET\'\"'"});
    QCOMPARE(program.readAllStandardError(), QByteArray());
    QCOMPARE(program.readAllStandardOutput(), QByteArray("1\n"));
}

void TestPrivateMariaDb::theAccountOfTheProgramCanBeWithoutRights()
{
    writeFile(m_temp->filePath("a.sql"),
              "CREATE TABLE a (n INT);\nGRANT SELECT (n) ON a TO yav@localhost;\n");
    QProcess program;
    runProgram(program,
               {"--no-rights", "--load", m_temp->filePath("a.sql"), "--", "sh", "-c",
                "mariadb --no-defaults -N --socket=$MIROVAHR_DB_SOCKET --user=root"
                " -e 'SHOW GRANTS FOR yav@localhost' | sed '1d'"});
    QCOMPARE(program.readAllStandardOutput(),
             QByteArray("GRANT SELECT (`n`) ON `tepdb`.`a` TO `yav`@`localhost`\n"));
}

void TestPrivateMariaDb::theExitStatusIsTheCommands_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<int>("status");
    QTest::newRow("success") << QStringList{"true"} << 0;
    QTest::newRow("failure") << QStringList{"sh", "-c", "exit 7"} << 7;
    QTest::newRow("ended by a signal") << QStringList{"sh", "-c", "kill -9 $$"} << 128 + SIGKILL;
    QTest::newRow("no such program") << QStringList{"/no/such/program"} << 127;
}

void TestPrivateMariaDb::theExitStatusIsTheCommands()
{
    QFETCH(QStringList, command);
    QProcess program;
    runProgram(program, QStringList{"--"} + command);
    QTEST(program.exitCode(), "status");
    QCOMPARE(entries(m_temp->path()), QStringList());
}

void TestPrivateMariaDb::aFailedLoadRunsNoCommand()
{
    QProcess program;
    runProgram(program, {"--load", "/no/such/file", "--", "echo", "ran"});
    QCOMPARE(program.exitCode(), 125);
    QCOMPARE(program.readAllStandardOutput(), QByteArray());
    QVERIFY(program.readAllStandardError().contains("/no/such/file"));
    QCOMPARE(entries(m_temp->path()), QStringList());
}

void TestPrivateMariaDb::aMissingCommandIsAUsageError()
{
    QProcess program;
    runProgram(program, {"--keep"});
    QCOMPARE(program.exitCode(), 2);
    QCOMPARE(entries(m_temp->path()), QStringList());
}

void TestPrivateMariaDb::theCommandsOwnOptionsAreLeftAlone()
{
    QProcess program;
    runProgram(program, {"echo", "--keep", "--help"});
    QCOMPARE(program.readAllStandardOutput(), QByteArray("--keep --help\n"));
}

void TestPrivateMariaDb::keepNamesTheFolderAndLeavesIt()
{
    QProcess program;
    runProgram(program, {"--keep", "--", "true"});
    const QStringList left = entries(m_temp->path());
    QCOMPARE(left.size(), 1);
    QCOMPARE(program.readAllStandardError(),
             "private-mariadb: " + m_temp->filePath(left.first()).toUtf8() + '\n');
}

void TestPrivateMariaDb::aSignalEndsTheCommandAndCleansUp_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void TestPrivateMariaDb::aSignalEndsTheCommandAndCleansUp()
{
    QFETCH(int, signal);
    QProcess program;
    startProgram(program,
                 {"--", "sh", "-c", "trap 'echo terminated; exit 3' TERM; echo ready; read line"});
    QVERIFY(program.waitForReadyRead(kPatienceMs));
    QCOMPARE(program.readLine(), QByteArray("ready\n"));
    QCOMPARE(::kill(pid_t(program.processId()), signal), 0);
    QVERIFY(program.waitForFinished(kPatienceMs));
    QCOMPARE(program.readAllStandardOutput(), QByteArray("terminated\n"));
    QCOMPARE(program.exitCode(), 3);
    QCOMPARE(entries(m_temp->path()), QStringList());
}

void TestPrivateMariaDb::serverCommandAndFolderGoWithAKilledProgram()
{
    Descendants descendants;
    QProcess program;
    startProgram(program, {"--", "sh", "-c", "echo $MIROVAHR_DB_SOCKET; exec cat"});
    QVERIFY(program.waitForReadyRead(kPatienceMs));
    const QByteArray socket = program.readLine().trimmed();
    const Peer server(socket);
    QVERIFY(server.isConnected());
    const TemporaryTable table(QString::fromUtf8(socket), "table");
    QCOMPARE(table.error(), QString());
    QCOMPARE(::kill(pid_t(program.processId()), SIGKILL), 0);
    QVERIFY(server.waitUntilGone());
    // The command holds its output open for as long as it lives.
    QVERIFY(program.waitForFinished(kPatienceMs));
    QVERIFY(descendants.waitForEnd());
    QCOMPARE(entries(m_temp->path()), QStringList());
}

void TestPrivateMariaDb::aProgramThatIsKilledWhileItStartsLeavesNothingBehind()
{
    const OwnInstallation installation;
    Descendants descendants;
    QProcess program;
    startProgram(program, {"--", "true"});
    const auto isMade = [this] {
        const QStringList folders = entries(m_temp->path());
        return !folders.isEmpty()
            && !entries(m_temp->filePath(folders.first() + "/data")).isEmpty();
    };
    const QDeadlineTimer deadline(kPatienceMs);
    while (!isMade()) {
        QVERIFY(!program.waitForFinished(1));
        QVERIFY2(!deadline.hasExpired(), "The program creates no data folder.");
    }
    QCOMPARE(::kill(pid_t(program.processId()), SIGKILL), 0);
    QVERIFY(program.waitForFinished(kPatienceMs));
    QVERIFY(descendants.waitForEnd());
    QCOMPARE(entries(m_temp->path()), QStringList());
}

void TestPrivateMariaDb::aKilledProgramLeavesAFolderThatIsToBeKept()
{
    Descendants descendants;
    QProcess program;
    startProgram(program, {"--keep", "--", "sh", "-c", "echo ready; exec cat"});
    QVERIFY(program.waitForReadyRead(kPatienceMs));
    QCOMPARE(::kill(pid_t(program.processId()), SIGKILL), 0);
    QVERIFY(program.waitForFinished(kPatienceMs));
    QVERIFY(descendants.waitForEnd());
    QCOMPARE(entries(m_temp->path()).size(), 1);
}

void TestPrivateMariaDb::aMachineNeedNotResolveItsOwnName()
{
    const OwnInstallation installation;
    // In a private view, which only hides the machine's files.
    QProcess program;
    program.start(PRIVATE_VIEW,
                  {"sh", "-c",
                   "rm -f /etc/hosts /etc/nsswitch.conf && echo 'hosts: files' >/etc/nsswitch.conf "
                   "&& ! getent hosts localhost && exec \"$@\"",
                   "sh", PRIVATE_MARIADB_PROGRAM, "--", "echo", "The server is up."});
    QVERIFY(program.waitForFinished(kPatienceMs));
    QCOMPARE(program.readAllStandardError(), QByteArray());
    QCOMPARE(program.readAllStandardOutput(), QByteArray("The server is up.\n"));
    QCOMPARE(program.exitCode(), 0);
}

void TestPrivateMariaDb::aMissingDriverNamesThePackage()
{
    const QString copy = m_temp->filePath("private-mariadb");
    QVERIFY(QFile::copy(PRIVATE_MARIADB_PROGRAM, copy));
    writeFile(m_temp->filePath("qt.conf"), "[Paths]\nPlugins=/nonexistent\n");
    QProcess program;
    program.start(copy, {"--", "true"});
    QVERIFY(program.waitForFinished(kPatienceMs));
    QCOMPARE(program.exitCode(), 125);
    QCOMPARE(program.readAllStandardError(),
             QByteArray("private-mariadb: Qt's MySQL driver (QMYSQL) is missing: "
                        "install the package libqt5sql5-mysql.\n"));
}

QTEST_GUILESS_MAIN(TestPrivateMariaDb)
#include "tst_privatemariadb.moc"
