#include "tests/support/exportfile.h"
#include "tests/support/programrun.h"
#include "tests/support/silentserver.h"
#include "tests/support/testdatabase.h"

#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace {

const QString kHost = QStringLiteral(YAVHOST);
const QString kPlugin = QStringLiteral(MIROVAHR_PLUGIN);
const QString kIni = QStringLiteral("/etc/yav/MirovaHR.ini");

void writeFile(const QString &path, const QString &content)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(file.errorString()));
    file.write(content.toUtf8());
}

} // namespace

/// yavhost as it is built, with the plugin as it is built, on a real server.
class TestYavHost : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();

    void helpNamesTheOptionsAndEveryExitStatus();
    void versionInfoNeedsNoDatabase();
    void aCommandLineThatMakesNoSenseIsRefused_data();
    void aCommandLineThatMakesNoSenseIsRefused();
    void aLibraryThatIsNoPluginOfTheServerIsRefused_data();
    void aLibraryThatIsNoPluginOfTheServerIsRefused();

    void onceBringsAPersonIntoTheDatabase();
    void onceIsSuccessfulWithoutAnExportFile();
    void onceEndsBeforeATickThatIsOverdue();
    void onceEndsItsTickBeforeItEnds();
    void onceEndsWhateverTheEnvironmentSaysOfTheLog();
    void atDebugLevel0OnlyWarningsArePrinted();
    void warningsGoToStandardErrorAndTheRestToStandardOutput();
    void thePasswordCanComeFromTheEnvironment();
    void thePasswordFileWinsOverTheEnvironment();
    void programsOfThePluginDoNotInheritThePassword();
    void thePasswordOfTheEnvironmentIsOverwritten();
    void aPasswordFileThatEverybodyCanReadIsWarnedOf();
    void connectOptionsReachTheConnectionOfThePlugin();
    void theConnectionCanComeFromAFile();
    void theConnectionFileOfTheToolsIsNotRead();
    void aPasswordThatEverybodyCanReadIsNotUsed();

    void onceFailsWhenTheDatabaseIsDown();
    void onceFailsWhenOnlyThePluginCannotOpenTheDatabase();
    void onceFailsWhenThePeopleCannotBeLoaded();
    void onceFailsWhenThePluginIsDisabled();
    void onceFailsWhenASignalComesFirst();
    void aPluginThatDoesNotStartIsAFailure();
    void aMissingDatabaseDriverIsNamed();

    void aSignalEndsTheHostCleanly_data();
    void aSignalEndsTheHostCleanly();
    void oneSignalPausesAndAnotherResumes();
    void aDatabaseThatIsDownAtStartIsOnlyAWarning();
    void aDatabaseServerThatSaysNothingHoldsNeitherTickNorUnload();

private:
    QStringList databaseArguments() const;
    QStringList arguments(const QStringList &more = {}) const;
    /// The connection, and a line that says the password.
    QString connectionFile(const QString &passwordLine) const;
    void writeIni(const QString &more = {});
    int countPeople(const QString &pamId);

    TestDatabase m_db;
    ExportFile m_export;
};

void TestYavHost::initTestCase()
{
    QVERIFY2(QFileInfo(QStringLiteral("/etc/.machine")).isDir(),
             "This test writes to /etc/yav: run it with scripts/private-view.");
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
}

void TestYavHost::init()
{
    m_db.reset();
    m_export.write(QStringList{ExportRow().with(&ExportRow::osobniCislo, 4711).text()});
    writeIni();
}

/// A tick a second, so that the first synchronisation is near.
void TestYavHost::writeIni(const QString &more)
{
    writeFile(
        kIni,
        QStringLiteral("timerInterval=1\nimportFile=\"%1\"\n%2\n").arg(m_export.path(), more));
}

QStringList TestYavHost::databaseArguments() const
{
    const PrivateMariaDb &server = const_cast<TestYavHost *>(this)->m_db.server();
    return {"--socket", server.socketPath(), "--database", server.databaseName(),
            "--user",   server.userName()};
}

QStringList TestYavHost::arguments(const QStringList &more) const
{
    const PrivateMariaDb &server = const_cast<TestYavHost *>(this)->m_db.server();
    return QStringList{kPlugin} + databaseArguments()
        + QStringList{"--password-file", server.passwordFile()} + more;
}

QString TestYavHost::connectionFile(const QString &passwordLine) const
{
    const PrivateMariaDb &server = const_cast<TestYavHost *>(this)->m_db.server();
    return QStringLiteral("[client]\nsocket=%1\ndatabase=%2\nuser=%3\n%4\n")
        .arg(server.socketPath(), server.databaseName(), server.userName(), passwordLine);
}

int TestYavHost::countPeople(const QString &pamId)
{
    return m_db.value(QStringLiteral("SELECT COUNT(*) FROM people WHERE pamId = '%1'").arg(pamId))
        .toInt();
}

void TestYavHost::helpNamesTheOptionsAndEveryExitStatus()
{
    ProgramRun host;
    QVERIFY(host.run(kHost, {"--help"}));
    COMPARE_STATUS(host, 0);
    for (const char *text :
         {"--version-info", "--once", "--debug-level <level>", "--host <host>", "--port <port>",
          "--socket <path>", "--database <name>", "--user <user>", "--password-file <file>",
          "--connect-options <options>", "--read-timeout <seconds>", "--defaults-file <file>",
          "--version", "YAVHOST_PASSWORD", "leave CLIENT_FOUND_ROWS off",
          "SIGUSR1 pauses it, SIGUSR2 resumes it",
          "  0  Everything went well\n"
          "  1  The library is not a plugin of the attendance server\n"
          "  2  The command line is not understood\n"
          "  3  The attendance database could not be opened\n"
          "  4  The plugin could not start\n"
          "  5  The plugin is disabled by its INI file\n"
          "  6  The people could not be loaded from the attendance database\n"
          "  7  A signal came before the first synchronisation was over\n"}) {
        QVERIFY2(host.output().contains(text), text);
    }
    QCOMPARE(host.errors(), QString());
}

void TestYavHost::versionInfoNeedsNoDatabase()
{
    ProgramRun host;
    QVERIFY(host.run(kHost, {"--version-info", kPlugin}));
    COMPARE_STATUS(host, 0);
    const QRegularExpression expected(
        QStringLiteral("^IID: com\\.vantor-la\\.yav\\.ServerInterface\nclassName: MirovaHR\n"
                       "BUILD: [0-9]{10}\nTEPDB: 20\\.11\\.26\nVER: 1\\.5\\.3\n"
                       "corvaType: PLG\\.MH\n$"));
    QVERIFY2(expected.match(host.output()).hasMatch(), host.report().constData());
    QCOMPARE(host.errors(), QString());
}

void TestYavHost::aCommandLineThatMakesNoSenseIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const QStringList server{"plugin.so", "--socket", "/s", "--database", "d"};
    const QStringList complete = server + QStringList{"--user", "u"};

    QTest::newRow("no library") << QStringList() << "Name one library";
    QTest::newRow("two libraries") << QStringList{"a.so", "b.so"} << "Name one library";
    QTest::newRow("a password") << complete + QStringList{"--password", "x"}
                                << "Unknown option 'password'";
    QTest::newRow("a password with =")
        << complete + QStringList{"--password=x"} << "Unknown option 'password'";
    QTest::newRow("no server") << QStringList{"plugin.so"}
                               << "Name the database server with either --host or --socket";
    QTest::newRow("two servers") << complete + QStringList{"--host", "h"}
                                 << "Name the database server with either --host or --socket, not "
                                    "both";
    QTest::newRow("no database") << QStringList{"plugin.so", "--host", "h"}
                                 << "Name the attendance database with --database";
    QTest::newRow("no user") << server << "Name the database user with --user";
    QTest::newRow("a level that is no number") << complete + QStringList{"--debug-level", "much"}
                                               << "The debug level is a number from 0 to 255";
    QTest::newRow("a level above 255") << complete + QStringList{"--debug-level", "256"}
                                       << "The debug level is a number from 0 to 255";
    QTest::newRow("a port above 65535")
        << complete + QStringList{"--port", "65536"} << "The port is a number from 0 to 65535";
    QTest::newRow("a timeout of more than a day")
        << complete + QStringList{"--read-timeout", "86401"}
        << "The read timeout is a number of seconds from 0 to 86400";
    QTest::newRow("no such password file")
        << complete + QStringList{"--password-file", "/nowhere"}
        << "The password file '/nowhere' cannot be read: No such file or directory";
}

void TestYavHost::aCommandLineThatMakesNoSenseIsRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    ProgramRun host;
    QVERIFY(host.run(kHost, arguments));
    COMPARE_STATUS(host, 2);
    QCOMPARE(host.errors(),
             QStringLiteral("yavhost: The command line is not understood: %1.\n").arg(reason));
    QCOMPARE(host.output(), QString());
}

void TestYavHost::aLibraryThatIsNoPluginOfTheServerIsRefused_data()
{
    QTest::addColumn<QString>("library");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "/nowhere/plugin.so"
                             << "The shared library was not found.";
    QTest::newRow("no library") << kIni << "'/etc/yav/MirovaHR.ini' is not an ELF object.";
    QTest::newRow("another host's plugin")
        << QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/sqldrivers/libqsqlmysql.so"
        << "it is a plugin for 'org.qt-project.Qt.QSqlDriverFactoryInterface'.";
}

void TestYavHost::aLibraryThatIsNoPluginOfTheServerIsRefused()
{
    QFETCH(QString, library);
    QFETCH(QString, reason);
    const QString expected =
        QStringLiteral("yavhost: The library is not a plugin of the attendance server: %1\n");
    for (const QStringList &arguments :
         {QStringList{"--version-info", library}, QStringList{library} + databaseArguments()}) {
        ProgramRun host;
        QVERIFY(host.run(kHost, arguments));
        COMPARE_STATUS(host, 1);
        QCOMPARE(host.errors(), expected.arg(reason));
    }
}

void TestYavHost::onceBringsAPersonIntoTheDatabase()
{
    ProgramRun host;
    QVERIFY(host.run(kHost, arguments({"--once"})));
    COMPARE_STATUS(host, 0);
    QVERIFY(host.output().contains("debug     MHRWorker::dbAddPerson(4711.1)\n"));
    QVERIFY(host.output().endsWith("yavhost: The plugin is unloaded.\n"));
    QCOMPARE(m_db.rows("SELECT pid, pamId, name, surname FROM people WHERE pamId = '4711.1'"),
             TableRows({{"47111", "4711.1", "Jana", "Nováková"}}));
    QVERIFY(!m_export.exists());
}

void TestYavHost::onceIsSuccessfulWithoutAnExportFile()
{
    m_export.remove();
    ProgramRun host;
    QVERIFY(host.run(kHost, arguments({"--once"})));
    COMPARE_STATUS(host, 0);
    QCOMPARE(host.errors(), QString());
}

void TestYavHost::onceEndsBeforeATickThatIsOverdue()
{
    // The export takes longer than a tick, and every tick synchronises.
    writeIni("syncInterval=1\nsyncCommand=sleep 2\nsyncCommandRun=2");
    ProgramRun host;
    QVERIFY(host.run(kHost, arguments({"--once"})));
    COMPARE_STATUS(host, 0);
    QCOMPARE(host.output().count("BEGIN synchronization"), 1);
}

void TestYavHost::onceEndsItsTickBeforeItEnds()
{
    m_db.run("UPDATE vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'");
    ProgramRun host;
    QVERIFY(host.run(kHost, arguments({"--once"})));
    COMPARE_STATUS(host, 0);
    QVERIFY(host.output().contains("BEGIN synchronization #1 (force: YES)"));
    QCOMPARE(m_db.value("SELECT value FROM vars WHERE name = 'YAV.MHRWorker.forceSync'").toString(),
             QString("0"));
}

void TestYavHost::onceEndsWhateverTheEnvironmentSaysOfTheLog()
{
    ProgramRun host;
    host.setVariable("QT_LOGGING_RULES", "*.debug=false;default.info=false");
    QVERIFY(host.run(kHost, arguments({"--once"})));
    COMPARE_STATUS(host, 0);
    QVERIFY(host.output().contains("debug     MHRWorker: END synchronization #1"));
}

void TestYavHost::atDebugLevel0OnlyWarningsArePrinted()
{
    m_export.write(
        {ExportRow().with(&ExportRow::osobniCislo, 4711).with(&ExportRow::stredisko, 999)});
    ProgramRun host;
    QVERIFY(host.run(kHost, arguments({"--once", "--debug-level", "0"})));
    COMPARE_STATUS(host, 0);
    QCOMPARE(host.output(),
             QStringLiteral("yavhost: The plugin is started.\nyavhost: The plugin is unloaded.\n"));
    QVERIFY(host.errors().startsWith("warning   MHRWorker: Branch '999' NOT FOUND"));
    QCOMPARE(countPeople("4711.1"), 1);
}

void TestYavHost::warningsGoToStandardErrorAndTheRestToStandardOutput()
{
    m_db.hideTable("people_pam");
    m_export.write(
        {ExportRow().with(&ExportRow::osobniCislo, 4711).with(&ExportRow::stredisko, 999)});
    ProgramRun host;
    QVERIFY(host.run(kHost, arguments({"--once"})));
    COMPARE_STATUS(host, 0);
    QVERIFY2(host.errors().contains("critical  MHRWorker::dbAddPersonIntoPam("),
             host.report().constData());
    QVERIFY(host.errors().contains("warning   MHRWorker: Branch '999' NOT FOUND"));
    QVERIFY(!host.errors().contains("debug"));
    QVERIFY(host.output().contains("debug     MHRWorker: BEGIN synchronization #1 (force: NO)\n"));
    QVERIFY(host.output().contains("info      MHRWorker::checkDovolenkaFond(): fid=2\n"));
    QVERIFY(!host.output().contains("warning"));
    QVERIFY(!host.output().contains("critical"));
}

void TestYavHost::thePasswordCanComeFromTheEnvironment()
{
    ProgramRun host;
    host.setVariable("YAVHOST_PASSWORD", m_db.server().password());
    QVERIFY(host.run(kHost, QStringList{kPlugin, "--once"} + databaseArguments()));
    COMPARE_STATUS(host, 0);
    QCOMPARE(countPeople("4711.1"), 1);
}

void TestYavHost::thePasswordFileWinsOverTheEnvironment()
{
    ProgramRun host;
    host.setVariable("YAVHOST_PASSWORD", "wrong");
    QVERIFY(host.run(kHost, arguments({"--once"})));
    COMPARE_STATUS(host, 0);
}

void TestYavHost::programsOfThePluginDoNotInheritThePassword()
{
    writeIni("syncCommand=/usr/bin/env\nsyncCommandRun=2");
    ProgramRun host;
    host.setVariable("YAVHOST_PASSWORD", m_db.server().password());
    host.setVariable("YAVHOST_OTHER", "seen");
    QVERIFY(host.run(kHost, QStringList{kPlugin, "--once"} + databaseArguments()));
    COMPARE_STATUS(host, 0);
    QVERIFY(host.output().contains("YAVHOST_OTHER=seen\n"));
    QVERIFY(!host.output().contains("YAVHOST_PASSWORD"));
}

void TestYavHost::thePasswordOfTheEnvironmentIsOverwritten()
{
    const QTemporaryDir folder;
    QFile script(folder.filePath("environment-of-the-host"));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\ntr '\\0' '\\n' </proc/$PPID/environ\n");
    script.setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    script.close();
    writeIni("syncCommand=" + script.fileName() + "\nsyncCommandRun=2");
    ProgramRun host;
    host.setVariable("YAVHOST_PASSWORD", m_db.server().password());
    host.setVariable("YAVHOST_OTHER", "seen");
    QVERIFY(host.run(kHost, QStringList{kPlugin, "--once"} + databaseArguments()));
    COMPARE_STATUS(host, 0);
    QVERIFY2(host.output().contains("YAVHOST_OTHER=seen\n"), host.report().constData());
    QVERIFY(!host.output().contains(m_db.server().password()));
}

void TestYavHost::aPasswordFileThatEverybodyCanReadIsWarnedOf()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("password");
    QVERIFY(QFile::copy(m_db.server().passwordFile(), path));
    QVERIFY(QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::ReadOther));
    ProgramRun host;
    QVERIFY(host.run(
        kHost, QStringList{kPlugin, "--once", "--password-file", path} + databaseArguments()));
    COMPARE_STATUS(host, 0);
    QVERIFY2(host.errors().contains("Every user of the machine can read the password file '" + path
                                    + "'. Remove the permission (chmod o-r)"),
             host.report().constData());
}

void TestYavHost::connectOptionsReachTheConnectionOfThePlugin()
{
    ProgramRun host;
    QVERIFY(host.run(kHost, arguments({"--once", "--connect-options", "NO_SUCH_OPTION=1"})));
    COMPARE_STATUS(host, 0);
    const QString complaint = "QMYSQLDriver::open: Unknown connect option 'NO_SUCH_OPTION'";
    QVERIFY2(host.errors().count(complaint) >= 2, host.report().constData());
}

void TestYavHost::theConnectionCanComeFromAFile()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("yavhost.ini");
    writeFile(file, connectionFile("password-file=" + m_db.server().passwordFile()));
    ProgramRun host;
    QVERIFY(host.run(kHost, {kPlugin, "--once", "--defaults-file", file}));
    COMPARE_STATUS(host, 0);
    QCOMPARE(countPeople("4711.1"), 1);
}

void TestYavHost::theConnectionFileOfTheToolsIsNotRead()
{
    const QString file = "/etc/yav/mirovahrctl.ini";
    writeFile(file, connectionFile("password-file=" + m_db.server().passwordFile()));
    ProgramRun host;
    const bool ended = host.run(kHost, {kPlugin, "--once"});
    QVERIFY(QFile::remove(file));
    QVERIFY(ended);
    COMPARE_STATUS(host, 2);
}

void TestYavHost::aPasswordThatEverybodyCanReadIsNotUsed()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("yavhost.ini");
    writeFile(file, connectionFile("password=" + m_db.server().password()));
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadOther));
    ProgramRun host;
    QVERIFY(host.run(kHost, {kPlugin, "--once", "--defaults-file", file}));
    COMPARE_STATUS(host, 3);
    QVERIFY2(host.errors().startsWith("yavhost: Warning: Every user of the machine can read '"),
             host.report().constData());
    QVERIFY2(host.errors().contains("(using password: NO)"), host.report().constData());
}

void TestYavHost::onceFailsWhenTheDatabaseIsDown()
{
    m_db.stopServer();
    ProgramRun host;
    QVERIFY(host.run(kHost, arguments({"--once"})));
    m_db.startServer();
    COMPARE_STATUS(host, 3);
    QVERIFY2(host.errors().startsWith("yavhost: The attendance database could not be opened: "),
             host.report().constData());
    QVERIFY(m_export.exists());
}

void TestYavHost::onceFailsWhenOnlyThePluginCannotOpenTheDatabase()
{
    m_db.run("ALTER USER yav@localhost WITH MAX_USER_CONNECTIONS 1"); // the host's own
    ProgramRun host;
    const bool ended = host.run(kHost, arguments({"--once"}));
    m_db.run("ALTER USER yav@localhost WITH MAX_USER_CONNECTIONS 0");
    QVERIFY(ended);
    COMPARE_STATUS(host, 3);
    QVERIFY(host.errors().contains("warning   MHRWorker::checkSync() - database not open!\n"));
    QVERIFY(host.errors().endsWith("yavhost: The attendance database could not be opened.\n"));
}

void TestYavHost::onceFailsWhenThePeopleCannotBeLoaded()
{
    m_db.hideTable("people");
    ProgramRun host;
    QVERIFY(host.run(kHost, arguments({"--once"})));
    COMPARE_STATUS(host, 6);
    QVERIFY(host.errors().endsWith(
        "yavhost: The people could not be loaded from the attendance database.\n"));
}

void TestYavHost::onceFailsWhenThePluginIsDisabled()
{
    writeIni("enabled=false");
    ProgramRun host;
    QVERIFY(host.run(kHost, arguments({"--once"})));
    COMPARE_STATUS(host, 5);
    QCOMPARE(host.errors(),
             QStringLiteral("warning   MirovaHR is DISABLED\n"
                            "yavhost: The plugin is disabled by its INI file.\n"));
}

void TestYavHost::onceFailsWhenASignalComesFirst()
{
    writeFile(kIni, "timerInterval=3600\n");
    ProgramRun host;
    host.start(kHost, arguments({"--once"}));
    QVERIFY2(host.waitForText("MHRWorker::start()"), host.report().constData());
    host.sendSignal(SIGTERM);
    QVERIFY(host.waitForEnd());
    COMPARE_STATUS(host, 7);
    QCOMPARE(host.errors(),
             QStringLiteral("yavhost: A signal came before the first synchronisation was over.\n"));
}

void TestYavHost::aPluginThatDoesNotStartIsAFailure()
{
    ProgramRun host;
    QStringList all = arguments();
    all.first() = QStringLiteral(REFUSING_PLUGIN);
    QVERIFY(host.run(kHost, all));
    COMPARE_STATUS(host, 4);
    QCOMPARE(host.errors(), QStringLiteral("yavhost: The plugin could not start.\n"));
}

void TestYavHost::aMissingDatabaseDriverIsNamed()
{
    // Covers the drivers' folder in a namespace of the host's own.
    const QStringList withoutDrivers{"--user",
                                     "--map-root-user",
                                     "--mount",
                                     "--",
                                     "sh",
                                     "-c",
                                     "mount -n -t tmpfs none \"$1\" && shift && exec \"$@\"",
                                     "sh",
                                     QLibraryInfo::location(QLibraryInfo::PluginsPath)
                                         + "/sqldrivers",
                                     kHost};
    ProgramRun host;
    QVERIFY(host.run("unshare", withoutDrivers + arguments()));
    COMPARE_STATUS(host, 3);
    QCOMPARE(
        host.errors(),
        QStringLiteral("yavhost: The attendance database could not be opened: Qt's MySQL driver "
                       "is missing: install the package libqt5sql5-mysql.\n"));
}

void TestYavHost::aSignalEndsTheHostCleanly_data()
{
    QTest::addColumn<int>("signalNumber");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
}

void TestYavHost::aSignalEndsTheHostCleanly()
{
    QFETCH(int, signalNumber);
    ProgramRun host;
    host.start(kHost, arguments());
    QVERIFY2(host.waitForText("END synchronization #1"), host.report().constData());
    host.sendSignal(signalNumber);
    QVERIFY(host.waitForEnd());
    COMPARE_STATUS(host, 0);
    QVERIFY(host.output().endsWith("debug     Stop MirovaHR..\n"
                                   "debug     MHRWorker::init()\n"
                                   "yavhost: The plugin is unloaded.\n"));
    QCOMPARE(host.errors(), QString());
}

void TestYavHost::oneSignalPausesAndAnotherResumes()
{
    writeIni("syncInterval=1");
    ProgramRun host;
    host.start(kHost, arguments());
    QVERIFY2(host.waitForText("END synchronization #1"), host.report().constData());
    host.sendSignal(SIGUSR1);
    QVERIFY2(host.waitForText("Pause MirovaHR.."), host.report().constData());
    host.sendSignal(SIGUSR2);
    QVERIFY2(host.waitForText("Resume MirovaHR.."), host.report().constData());
    // One synchronisation may have been under way at the pause: of two more, one is after the
    // resume.
    const int before = host.output().count("END synchronization #");
    QVERIFY2(host.waitForText("END synchronization #", before + 2), host.report().constData());
    host.sendSignal(SIGTERM);
    QVERIFY(host.waitForEnd());
    COMPARE_STATUS(host, 0);
    QCOMPARE(host.errors(), QString());
}

void TestYavHost::aDatabaseThatIsDownAtStartIsOnlyAWarning()
{
    m_db.stopServer();
    ProgramRun host;
    host.start(kHost, arguments());
    const bool noticed = host.waitForText("MHRWorker::checkSync() - database not open!");
    m_db.startServer();
    QVERIFY2(noticed, host.report().constData());
    QVERIFY(host.errors().startsWith("yavhost: The attendance database could not be opened: "));
    // The first tick is over: the next synchronisation needs the flag.
    m_db.run("UPDATE vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'");
    QVERIFY2(host.waitForText("END synchronization #1"), host.report().constData());
    host.sendSignal(SIGTERM);
    QVERIFY(host.waitForEnd());
    COMPARE_STATUS(host, 0);
    QCOMPARE(countPeople("4711.1"), 1);
}

void TestYavHost::aDatabaseServerThatSaysNothingHoldsNeitherTickNorUnload()
{
    const SilentServer silent;
    ProgramRun host;
    host.start(kHost,
               {kPlugin, "--host", "127.0.0.1", "--port", QString::number(silent.port()),
                "--database", "tepdb", "--user", "yav", "--read-timeout", "1"});
    QVERIFY2(host.waitForText("MHRWorker::checkSync() - database not open!", 2),
             host.report().constData());
    host.sendSignal(SIGTERM);
    QVERIFY(host.waitForEnd());
    COMPARE_STATUS(host, 0);
    QVERIFY2(host.errors().contains(QStringLiteral("(server 127.0.0.1:%1).\n").arg(silent.port())),
             host.report().constData());
    QVERIFY(host.output().endsWith("yavhost: The plugin is unloaded.\n"));
}

QTEST_GUILESS_MAIN(TestYavHost)
#include "tst_yavhost.moc"
