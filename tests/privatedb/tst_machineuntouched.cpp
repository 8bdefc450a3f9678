#include "tests/privatedb/privateservertest.h"
#include "tests/support/madedata.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

#include <memory>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

using Account = PrivateMariaDb::Account;

const QByteArray kUnset;

QString procFile(const PrivateMariaDb &server, const char *name)
{
    return QStringLiteral("/proc/%1/%2").arg(server.pid()).arg(name);
}

/// The files that a process holds open, "(deleted)" ones included.
QStringList openFiles(const QString &descriptors)
{
    QStringList files;
    for (const QString &descriptor : QDir(descriptors).entryList(QDir::Files | QDir::System)) {
        char file[4096];
        const QByteArray link = QFile::encodeName(descriptors + '/' + descriptor);
        const ssize_t length = ::readlink(link.constData(), file, sizeof file);
        files += QFile::decodeName(QByteArray(file, int(length)));
    }
    return files;
}

void writeProgram(const QString &path, const QByteArray &script)
{
    writeFile(path, "#!/bin/sh\n" + script);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

/// Receives the messages of a service.
class ServiceManager {
public:
    explicit ServiceManager(const QByteArray &socketPath)
        : m_socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, socketPath.constData(), sizeof address.sun_path);
        if (::bind(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0)
            qFatal("%s cannot be listened to", socketPath.constData());
    }
    ~ServiceManager() { ::close(m_socket); }
    ServiceManager(const ServiceManager &) = delete;
    ServiceManager &operator=(const ServiceManager &) = delete;

    /// The next message that has arrived, empty when there is none.
    QByteArray message() const
    {
        char bytes[1024];
        const ssize_t length = ::recv(m_socket, bytes, sizeof bytes, 0);
        return QByteArray(bytes, int(qMax<ssize_t>(0, length)));
    }

private:
    const int m_socket;
};

/// Lets this program and its children write core files for the rest of the block.
class CoreFilesAllowed {
public:
    CoreFilesAllowed()
    {
        ::getrlimit(RLIMIT_CORE, &m_before);
        const rlimit allowed = {m_before.rlim_max, m_before.rlim_max};
        ::setrlimit(RLIMIT_CORE, &allowed);
    }
    ~CoreFilesAllowed() { ::setrlimit(RLIMIT_CORE, &m_before); }
    CoreFilesAllowed(const CoreFilesAllowed &) = delete;
    CoreFilesAllowed &operator=(const CoreFilesAllowed &) = delete;

private:
    rlimit m_before = {};
};

} // namespace

/// A private server on a machine that has servers of its own, with conflicting settings and files
/// of other programs. This test sees the machine as it is: it runs without scripts/private-view,
/// and writes only into folders of its own, and one file into /tmp.
class TestMachineUntouched : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();

    void temporaryFilesOfOtherServersStay_data();
    void temporaryFilesOfOtherServersStay();
    void serversBesideEachOtherKeepTheirTemporaryTables();
    void everyPathOfTheServerLiesInItsFolder();
    void theServerHasNoFileOpenElsewhere();
    void nobodyElseMayEnterTheFolder();
    void aFolderMayHaveBlanksInItsName();
    void aFolderThatTheServerWouldTakeForSeveralIsRefused();
    void aMissingFolderForTemporaryFilesIsNamed();

    void optionFilesAreNotRead_data();
    void optionFilesAreNotRead();
    void settingsForOtherServersDoNotCount_data();
    void settingsForOtherServersDoNotCount();
    void theServiceManagerHearsNothing();
    void theServerDoesNotInheritWhatConcernsAnother();

    void filesOfTheMachineAreOutOfReach();
    void pluginsOfTheMachineAreOutOfReach();
    void aCrashLeavesNoCoreFile();

    void theInstallationRunsNoProgramThatLiesAround_data();
    void theInstallationRunsNoProgramThatLiesAround();
    void theInstallationGivesNothingToAnotherUser();

private:
    QByteArray path(const char *name) const { return QFile::encodeName(m_temp->filePath(name)); }

    std::unique_ptr<QTemporaryDir> m_temp;
};

void TestMachineUntouched::initTestCase()
{
    QVERIFY2(!QFileInfo::exists(QStringLiteral("/tmp/.machine")),
             "This test must see the machine's /tmp: run it without scripts/private-view.");
    MadeData::use();
}

void TestMachineUntouched::init()
{
    m_temp = std::make_unique<QTemporaryDir>();
    QVERIFY(m_temp->isValid());
}

void TestMachineUntouched::temporaryFilesOfOtherServersStay_data()
{
    QTest::addColumn<bool>("isTmpdirSet");
    QTest::addColumn<QString>("folder");
    QTest::newRow("in /tmp") << false << "/tmp";
    QTest::newRow("in TMPDIR") << true << "";
    QTest::newRow("where the server's folder is made") << true << "base";
}

void TestMachineUntouched::temporaryFilesOfOtherServersStay()
{
    QFETCH(bool, isTmpdirSet);
    QFETCH(QString, folder);
    const OwnInstallation installation;
    QVERIFY(QDir(m_temp->path()).mkdir("base"));
    const ScopedVariable tmpdir("TMPDIR", isTmpdirSet ? m_temp->path().toUtf8() : kUnset);
    QTemporaryFile table(QDir(m_temp->path()).filePath(folder) + "/#sql-temptable-XXXXXX.MAD");
    QVERIFY(table.open());

    PrivateMariaDb server;
    if (folder == "base")
        server.setBaseDir(m_temp->filePath("base"));
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY(QFileInfo::exists(table.fileName()));
    QVERIFY2(server.restart(), qPrintable(server.errorString()));
    QVERIFY(QFileInfo::exists(table.fileName()));
}

void TestMachineUntouched::serversBesideEachOtherKeepTheirTemporaryTables()
{
    PrivateMariaDb servers[3];
    QVERIFY2(servers[0].start(), qPrintable(servers[0].errorString()));
    TemporaryTable first(servers[0].socketPath(), "first");
    QVERIFY2(servers[1].start(), qPrintable(servers[1].errorString()));
    TemporaryTable second(servers[1].socketPath(), "second");
    QVERIFY2(servers[2].start(), qPrintable(servers[2].errorString()));
    for (TemporaryTable *const table : {&first, &second}) {
        table->drop();
        QCOMPARE(table->error(), QString());
    }
}

void TestMachineUntouched::everyPathOfTheServerLiesInItsFolder()
{
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    // What is only read of the machine: the programs' own texts and character sets.
    QCOMPARE(answer(server,
                    QStringLiteral("SELECT GROUP_CONCAT(VARIABLE_NAME ORDER BY VARIABLE_NAME) FROM "
                                   "information_schema.SYSTEM_VARIABLES WHERE GLOBAL_VALUE LIKE "
                                   "'/%' AND GLOBAL_VALUE NOT LIKE '%1/%'")
                        .arg(server.folder())),
             QString("BASEDIR,CHARACTER_SETS_DIR"));
    QCOMPARE(answer(server,
                    "SELECT CONCAT_WS(' ', COALESCE(@@innodb_tmpdir, @@tmpdir), "
                    "@@slave_load_tmpdir, @@tmpdir)"),
             QString("%1/tmp %1/tmp %1/tmp").arg(server.folder()));
}

void TestMachineUntouched::theServerHasNoFileOpenElsewhere()
{
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    const TemporaryTable table(server.socketPath(), "table");
    QCOMPARE(table.error(), QString());
    const QStringList files = openFiles(procFile(server, "fd"));
    QVERIFY(!files.filter(server.folder() + "/data/ibdata1").isEmpty());
    const QStringList inherited = openFiles(QStringLiteral("/proc/self/fd"));
    for (const QString &file : files) {
        QVERIFY2(!file.startsWith('/') || file == "/dev/null" || inherited.contains(file)
                     || file.startsWith(server.folder() + '/'),
                 qPrintable(file));
    }
}

void TestMachineUntouched::nobodyElseMayEnterTheFolder()
{
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(server.folder()).constData(), &status), 0);
    QCOMPARE(status.st_mode & ACCESSPERMS, mode_t(S_IRWXU));
    QCOMPARE(status.st_uid, ::geteuid());
}

void TestMachineUntouched::aFolderMayHaveBlanksInItsName()
{
    const OwnInstallation installation;
    const QString folder = m_temp->filePath("a 'folder' * of \"mine\"");
    QVERIFY(QDir().mkdir(folder));
    PrivateMariaDb server;
    server.setBaseDir(folder);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QCOMPARE(answer(server, "SELECT @@tmpdir"), server.folder() + "/tmp");
}

void TestMachineUntouched::aFolderThatTheServerWouldTakeForSeveralIsRefused()
{
    const QString folder = m_temp->filePath("a:b");
    QVERIFY(QDir().mkdir(folder));
    PrivateMariaDb server;
    server.setBaseDir(folder);
    QVERIFY(!server.start());
    QVERIFY2(server.errorString().contains(folder), qPrintable(server.errorString()));
    QCOMPARE(entries(folder), QStringList());
}

void TestMachineUntouched::aMissingFolderForTemporaryFilesIsNamed()
{
    const ScopedVariable tmpdir("TMPDIR", path("missing"));
    PrivateMariaDb server;
    QVERIFY(!server.start());
    QVERIFY2(server.errorString().contains(m_temp->filePath("missing")),
             qPrintable(server.errorString()));
}

void TestMachineUntouched::optionFilesAreNotRead_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("file");
    QTest::newRow("of the user") << "HOME"
                                 << ".my.cnf";
    QTest::newRow("MYSQL_HOME") << "MYSQL_HOME"
                                << "my.cnf";
    QTest::newRow("MARIADB_HOME") << "MARIADB_HOME"
                                  << "my.cnf";
}

void TestMachineUntouched::optionFilesAreNotRead()
{
    QFETCH(QString, variable);
    QFETCH(QString, file);
    const OwnInstallation installation;
    writeFile(m_temp->filePath(file),
              "[mariadbd]\nno-such-option=1\n[mariadb-install-db]\nuser=nobody\n"
              "[client]\nuser=nobody\nno-such-option=1\n");
    const QByteArray name = variable.toUtf8();
    const ScopedVariable folder(name.constData(), m_temp->path().toUtf8());
    writeFile(m_temp->filePath("a.sql"), "CREATE TABLE a (n INT);\n");
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY2(server.load(m_temp->filePath("a.sql")), qPrintable(server.errorString()));
}

void TestMachineUntouched::settingsForOtherServersDoNotCount_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("host") << "MYSQL_HOST" << QByteArray("127.0.0.1");
    QTest::newRow("port") << "MYSQL_TCP_PORT" << QByteArray("1");
    QTest::newRow("socket") << "MYSQL_UNIX_PORT" << QByteArray("/nonexistent");
    QTest::newRow("password") << "MYSQL_PWD" << QByteArray("of another server");
    QTest::newRow("group of options") << "MYSQL_GROUP_SUFFIX" << QByteArray("_other");
}

void TestMachineUntouched::settingsForOtherServersDoNotCount()
{
    QFETCH(QString, variable);
    QFETCH(QByteArray, value);
    // No server listens there: a misdirected program finds no server of the machine.
    const ScopedVariable port("MYSQL_TCP_PORT", "1");
    const QByteArray name = variable.toUtf8();
    const ScopedVariable setting(name.constData(), value);
    writeFile(m_temp->filePath("a.sql"), "CREATE TABLE a AS SELECT 'loaded' t;\n");
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY2(server.load(m_temp->filePath("a.sql")), qPrintable(server.errorString()));
    QCOMPARE(answer(server, "SELECT t FROM a"), QString("loaded"));
}

void TestMachineUntouched::theServiceManagerHearsNothing()
{
    const OwnInstallation installation;
    const ServiceManager manager(path("notify"));
    const ScopedVariable notifySocket("NOTIFY_SOCKET", path("notify"));
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QVERIFY2(server.stop(), qPrintable(server.errorString()));
    QCOMPARE(manager.message(), QByteArray());
}

void TestMachineUntouched::theServerDoesNotInheritWhatConcernsAnother()
{
    const ScopedVariable notifySocket("NOTIFY_SOCKET", path("notify"));
    const ScopedVariable fds("LISTEN_FDS", "1");
    const ScopedVariable pid("LISTEN_PID", QByteArray::number(::getpid()));
    const ScopedVariable names("LISTEN_FDNAMES", "mariadb.socket");
    const ScopedVariable watchdog("WATCHDOG_USEC", "1000000");
    const ScopedVariable watchdogPid("WATCHDOG_PID", QByteArray::number(::getpid()));
    const ScopedVariable password("MYSQL_PWD", "of another server");
    const ScopedVariable home("MARIADB_HOME", m_temp->path().toUtf8());
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QFile file(procFile(server, "environ"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> environment = file.readAll().split('\0');
    QVERIFY(environment.contains("TMPDIR=" + QFile::encodeName(server.folder()) + "/tmp"));
    for (const char *prefix : {"NOTIFY_", "LISTEN_", "WATCHDOG_", "MYSQL", "MARIADB"}) {
        for (const QByteArray &variable : environment)
            QVERIFY2(!variable.startsWith(prefix), variable.constData());
    }
}

void TestMachineUntouched::filesOfTheMachineAreOutOfReach()
{
    writeFile(m_temp->filePath("in"), "secret\n");
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    const auto administratorGets = [&server](const QString &sql) {
        return answer(server, sql, Account::Administrator);
    };
    QCOMPARE(administratorGets(
                 QStringLiteral("SELECT LOAD_FILE('%1') IS NULL").arg(m_temp->filePath("in"))),
             QString("1"));
    const QString refused = administratorGets(
        QStringLiteral("SELECT 1 INTO OUTFILE '%1'").arg(m_temp->filePath("out")));
    QVERIFY2(refused.contains("--secure-file-priv"), qPrintable(refused));
    administratorGets("CREATE TABLE tepdb.a (t TEXT)");
    const QString local =
        administratorGets(QStringLiteral("LOAD DATA LOCAL INFILE '%1' INTO TABLE tepdb.a")
                              .arg(m_temp->filePath("in")));
    QCOMPARE(administratorGets("SELECT COUNT(*) FROM tepdb.a"), QString("0"));
    QVERIFY2(!local.isEmpty(), "The file was offered to the server.");
    administratorGets(
        QStringLiteral("CREATE TABLE tepdb.b (t TEXT) ENGINE=Aria DATA DIRECTORY='%1'")
            .arg(m_temp->path()));
    QCOMPARE(administratorGets("SELECT COUNT(*) FROM tepdb.b"), QString("0"));
    QCOMPARE(entries(m_temp->path()), QStringList("in"));
}

void TestMachineUntouched::pluginsOfTheMachineAreOutOfReach()
{
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QCOMPARE(answer(server, "SELECT @@plugin_dir"), server.folder() + "/plugins/");
    QCOMPARE(answer(server,
                    "SELECT GROUP_CONCAT(PLUGIN_NAME) FROM information_schema.ALL_PLUGINS WHERE "
                    "PLUGIN_LIBRARY IS NOT NULL OR (PLUGIN_NAME = 'feedback' AND PLUGIN_STATUS = "
                    "'ACTIVE')"),
             QString());
}

void TestMachineUntouched::aCrashLeavesNoCoreFile()
{
    const CoreFilesAllowed allowed;
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QFile file(procFile(server, "limits"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString limits = QString::fromUtf8(file.readAll());
    static const QRegularExpression none("^Max core file size +0 +0 ",
                                         QRegularExpression::MultilineOption);
    QVERIFY2(limits.contains(none), qPrintable(limits));
}

void TestMachineUntouched::theInstallationRunsNoProgramThatLiesAround_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QByteArray>("bootstrap");
    QTest::newRow("in the working folder") << "extra/my_print_defaults" << kUnset;
    QTest::newRow("by the environment") << "bootstrap" << QByteArray("./bootstrap");
}

void TestMachineUntouched::theInstallationRunsNoProgramThatLiesAround()
{
    QFETCH(QString, program);
    QFETCH(QByteArray, bootstrap);
    const OwnInstallation installation;
    QVERIFY(QDir(m_temp->path()).mkdir("extra"));
    writeProgram(m_temp->filePath(program), "touch '" + path("mark") + "'\n");
    const ScopedVariable variable("MYSQLD_BOOTSTRAP", bootstrap);
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_temp->path()));
    PrivateMariaDb server;
    const bool started = server.start();
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(!QFileInfo::exists(m_temp->filePath("mark")));
    QVERIFY2(started, qPrintable(server.errorString()));
}

/// As root, mariadb-install-db can take folders of the machine's own plugins away from the
/// machine's server.
void TestMachineUntouched::theInstallationGivesNothingToAnotherUser()
{
    const OwnInstallation installation;
    writeProgram(m_temp->filePath("chown"), "echo \"$*\" >>'" + path("given") + "'\n");
    const ScopedVariable programs("PATH", m_temp->path().toUtf8() + ':' + qgetenv("PATH"));
    PrivateMariaDb server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    QCOMPARE(readFile(m_temp->filePath("given")), QByteArray());
}

QTEST_GUILESS_MAIN(TestMachineUntouched)
#include "tst_machineuntouched.moc"
