#include "plugin/datadirhelper.h"
#include "tests/plugin/pluginini.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>
#include <unistd.h>

namespace {

void setMode(const QString &path, mode_t mode)
{
    if (::chmod(qPrintable(path), mode) != 0)
        qFatal("%s: its mode could not be set", qPrintable(path));
}

/// What the probe prints, which runs without rights.
QStringList probe(const QStringList &arguments)
{
    QProcess process;
    process.start(DATADIRPROBE, arguments);
    if (!process.waitForFinished(kPatienceMs) || process.exitCode() != 0)
        return {process.errorString() + process.readAllStandardError()};
    return QString::fromUtf8(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

/// As above with a writable /var/log of its own, and whether the folder exists there afterwards.
QStringList probeWithOwnLogs(const QString &application, const QString &folder)
{
    QStringList unshare = {"--mount", "--propagation", "private"};
    if (::geteuid() != 0)
        unshare << "--user"
                << "--map-root-user";
    QProcess process;
    process.start("unshare",
                  unshare << "--"
                          << "/bin/sh"
                          << "-c"
                          << "mount -n -t tmpfs logs /var/log || exit\n"
                             "MIROVAHR_KEEP_RIGHTS=1 \"$1\" \"$2\" logs; stat -c '%F' \"$3\""
                          << "sh" << DATADIRPROBE << application << folder);
    if (!process.waitForFinished(kPatienceMs) || process.exitCode() != 0)
        return {process.errorString() + process.readAllStandardError()};
    return QString::fromUtf8(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

} // namespace

class TestDataDirHelper : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void beforeTheFirstCallTheFoldersAreRelative();
    void theDataFolderIsNamedAfterTheApplication_data();
    void theDataFolderIsNamedAfterTheApplication();
    void theNameGivenIsNotUsed();
    void withoutValidationTheFileSystemIsLeftAlone();
    void withValidationTheDataFolderIsMade();
    void theLogsFolderIsMadeAndReturned();
    void withoutRightsTheLogsFolderIsStillReturned();
    void withoutRightsTheDataFolderIsStillReturned();
    void aFolderIsMadeWithItsParents();
    void anExistingFolderIsLeftAsItIs();
    void aFolderWithoutTheRightToWriteIsReported();
    void aFolderThatCannotBeCreatedIsReportedTwice();
    void aFolderThatCannotBeCreatedIsReported();

private:
    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestDataDirHelper::initTestCase()
{
    // The folders that are made in /etc below are in the private view.
    PluginIni::remove();
}

void TestDataDirHelper::init()
{
    m_log = std::make_unique<LogCapture>();
    m_dir = std::make_unique<QTemporaryDir>();
    setMode(m_dir->path(), 0755);
}

void TestDataDirHelper::cleanup()
{
    QCoreApplication::setApplicationName("tst_datadirhelper");
    m_dir.reset();
    m_log.reset();
}

void TestDataDirHelper::beforeTheFirstCallTheFoldersAreRelative()
{
    QCOMPARE(DataDirHelper::dataDir, QString("data"));
    QCOMPARE(DataDirHelper::logsDir, QString("logs"));
}

void TestDataDirHelper::theDataFolderIsNamedAfterTheApplication_data()
{
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("folder");
    QTest::newRow("capitals") << "AttendanceServer"
                              << "/etc/attendanceserver";
    QTest::newRow("small") << "yav"
                           << "/etc/yav";
    QTest::newRow("capitals beyond ASCII") << "ŽIVÁ Šatňa"
                                           << "/etc/živá šatňa";
}

void TestDataDirHelper::theDataFolderIsNamedAfterTheApplication()
{
    QFETCH(QString, application);
    QFETCH(QString, folder);
    QCoreApplication::setApplicationName(application);
    QCOMPARE(DataDirHelper::getDataDir(false, "name"), folder);
    QCOMPARE(DataDirHelper::dataDir, folder);
    QCOMPARE(m_log->lines(), QStringList());
}

void TestDataDirHelper::theNameGivenIsNotUsed()
{
    QCoreApplication::setApplicationName("One");
    QCOMPARE(DataDirHelper::getDataDir(false, "two"), QString("/etc/one"));
    QCOMPARE(DataDirHelper::getDataDir(false, ""), QString("/etc/one"));
}

void TestDataDirHelper::withoutValidationTheFileSystemIsLeftAlone()
{
    QCoreApplication::setApplicationName("AttendanceServer");
    QCOMPARE(DataDirHelper::getDataDir(false, "name"), QString("/etc/attendanceserver"));
    QVERIFY(!QFile::exists("/etc/attendanceserver"));
    QCOMPARE(m_log->lines(), QStringList());
}

void TestDataDirHelper::withValidationTheDataFolderIsMade()
{
    QCoreApplication::setApplicationName("ValidatedServer");
    QCOMPARE(DataDirHelper::getDataDir(true, "name"), QString("/etc/validatedserver"));
    QCOMPARE(DataDirHelper::dataDir, QString("/etc/validatedserver"));
    QVERIFY(QFileInfo("/etc/validatedserver").isDir());
    QCOMPARE(m_log->lines(), QStringList());
}

void TestDataDirHelper::theLogsFolderIsMadeAndReturned()
{
    QCOMPARE(probeWithOwnLogs("AttendanceServer", "/var/log/attendanceserver"),
             QStringList({"= /var/log/attendanceserver", "dataDir data",
                          "logsDir /var/log/attendanceserver", "directory"}));
}

void TestDataDirHelper::withoutRightsTheLogsFolderIsStillReturned()
{
    QCOMPARE(probe({"AttendanceServer", "logs"}),
             QStringList({"C Directory '/var/log/attendanceserver' is not created!",
                          "C Directory '/var/log/attendanceserver' is not writable!",
                          "= /var/log/attendanceserver", "dataDir data",
                          "logsDir /var/log/attendanceserver"}));
}

void TestDataDirHelper::withoutRightsTheDataFolderIsStillReturned()
{
    // A user's own private view belongs to that user.
    setMode("/etc", 0555);
    const QStringList lines = probe({"Foreign", "data"});
    setMode("/etc", 0755);
    QCOMPARE(lines,
             QStringList({"C Directory '/etc/foreign' is not created!",
                          "C Directory '/etc/foreign' is not writable!", "= /etc/foreign",
                          "dataDir /etc/foreign", "logsDir logs"}));
}

void TestDataDirHelper::aFolderIsMadeWithItsParents()
{
    const QString folder = m_dir->filePath("a/b/c");
    DataDirHelper::validateDir(folder);
    QVERIFY(QFileInfo(folder).isDir());
    QCOMPARE(m_log->lines(), QStringList());
}

void TestDataDirHelper::anExistingFolderIsLeftAsItIs()
{
    QFile file(m_dir->filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    DataDirHelper::validateDir(m_dir->path());
    QVERIFY(file.exists());
    QCOMPARE(m_log->lines(), QStringList());
}

void TestDataDirHelper::aFolderWithoutTheRightToWriteIsReported()
{
    const QString folder = m_dir->filePath("žiadne práva");
    QVERIFY(QDir().mkdir(folder));
    setMode(folder, 0555);
    QCOMPARE(probe({"Server", "validate", folder}),
             QStringList({"C Directory '" + folder + "' is not writable!", "= ", "dataDir data",
                          "logsDir logs"}));
}

void TestDataDirHelper::aFolderThatCannotBeCreatedIsReportedTwice()
{
    setMode(m_dir->path(), 0555);
    const QString folder = m_dir->filePath("a/b");
    QCOMPARE(probe({"Server", "validate", folder}),
             QStringList({"C Directory '" + folder + "' is not created!",
                          "C Directory '" + folder + "' is not writable!", "= ", "dataDir data",
                          "logsDir logs"}));
    QVERIFY(!QFile::exists(m_dir->filePath("a")));
}

void TestDataDirHelper::aFolderThatCannotBeCreatedIsReported()
{
    DataDirHelper::validateDir("/proc/nothing");
    QCOMPARE(m_log->lines(),
             QStringList({"C Directory '/proc/nothing' is not created!",
                          "C Directory '/proc/nothing' is not writable!"}));
}

QTEST_GUILESS_MAIN(TestDataDirHelper)
#include "tst_datadirhelper.moc"
