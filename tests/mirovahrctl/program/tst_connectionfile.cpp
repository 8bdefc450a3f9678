#include "cli/connectionfile.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/exportfile.h"
#include "tests/support/testdatabase.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString kFileInPlace = QStringLiteral("/etc/yav/mirovahrctl.ini");
constexpr char kPasswordVariable[] = "MIROVAHRCTL_PASSWORD";
constexpr QFileDevice::Permissions kForOwner = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

} // namespace

/// A connection in a file in place of options, with "status" for all subcommands.
class TestConnectionFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void aNamedFileIsEnough();
    void theFileInItsPlaceIsEnough();
    void theCommandLineCountsMoreThanTheFile();
    void aNamedFileIsReadInsteadOfTheOneInItsPlace();
    void aServerOfTheCommandLineReplacesThatOfTheFile();
    void optionsOfTheDriverMayStandInTheFile();
    void theReadTimeoutMayStandInTheFile();
    void commentsAndOtherGroupsAreLeftAlone();

    void aPasswordInThePrivateFileIsTaken_data();
    void aPasswordInThePrivateFileIsTaken();
    void aPasswordThatEverybodyCanReadIsNotUsed();
    void aPasswordFileThatEverybodyCanReadIsWarnedOf_data();
    void aPasswordFileThatEverybodyCanReadIsWarnedOf();
    void aPasswordFileIsRelativeToTheFileThatNamesIt();
    void thePasswordOfTheCommandLineCountsMoreThanTheFile();
    void thePasswordOfTheEnvironmentCountsMoreThanTheFile();
    void anotherUserDoesNotGetThePasswordOfTheFile();

    void anUnusableFileIsAFailure_data();
    void anUnusableFileIsAFailure();
    void aNamedFileThatDoesNotExistIsAFailure();
    void whatIsMissingMayStandInTheFile_data();
    void whatIsMissingMayStandInTheFile();

    void theFileInItsPlaceAloneMakesCheckFileAskNoDatabase();
    void aNamedFileMakesCheckFileAskTheDatabase();

private:
    void write(const QString &path, const QStringList &lines,
               QFileDevice::Permissions permissions = kForOwner);
    QStringList lines();
    QString named() const { return m_folder->filePath("site.ini"); }
    ToolRun statusOfNamed() const { return runTool({"status", "--defaults-file", named()}); }

    TestDatabase m_db;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestConnectionFile::initTestCase()
{
    QVERIFY2(QFileInfo(QStringLiteral("/etc/.machine")).isDir(),
             "This test writes to /etc/yav: run it with scripts/private-view.");
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_db.run(QStringLiteral("ALTER USER mirovahrctl@localhost IDENTIFIED BY '%1' ACCOUNT UNLOCK")
                 .arg(m_db.server().password()));
}

void TestConnectionFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestConnectionFile::cleanup()
{
    QFile::remove(kFileInPlace);
    qunsetenv(kPasswordVariable);
}

void TestConnectionFile::write(const QString &path, const QStringList &lines,
                               QFileDevice::Permissions permissions)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(file.errorString()));
    file.write((QStringLiteral("[client]\n") + lines.join('\n') + '\n').toUtf8());
    QVERIFY(file.setPermissions(permissions));
}

/// What makes a connection.
QStringList TestConnectionFile::lines()
{
    return {"socket = " + m_db.server().socketPath(), "database = tepdb", "user = mirovahrctl",
            "password-file = " + m_db.server().passwordFile()};
}

void TestConnectionFile::aNamedFileIsEnough()
{
    write(named(), lines());
    const ToolRun run = statusOfNamed();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.err, QString());
}

void TestConnectionFile::theFileInItsPlaceIsEnough()
{
    write(kFileInPlace, lines());
    COMPARE_EXIT(runTool({"status"}), ExitStatus::Fine);
}

void TestConnectionFile::theCommandLineCountsMoreThanTheFile()
{
    write(named(), lines() + QStringList{"database = nowhere"});
    const ToolRun file = statusOfNamed();
    COMPARE_EXIT(file, ExitStatus::NoDatabase);
    QVERIFY2(file.err.contains("to database 'nowhere'"), file.report().constData());
    COMPARE_EXIT(runTool({"status", "--defaults-file", named(), "--database", "tepdb"}),
                 ExitStatus::Fine);
}

void TestConnectionFile::aNamedFileIsReadInsteadOfTheOneInItsPlace()
{
    write(kFileInPlace, {"host = nowhere.invalid", "connect-options = \"NO_SUCH_OPTION=1\""});
    write(named(), lines());
    const ToolRun run = statusOfNamed();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.err, QString());
}

void TestConnectionFile::aServerOfTheCommandLineReplacesThatOfTheFile()
{
    QStringList other = lines();
    other[0] = "host = nowhere.invalid\nport = 4711";
    write(named(), other);
    COMPARE_EXIT(
        runTool({"status", "--defaults-file", named(), "--socket", m_db.server().socketPath()}),
        ExitStatus::Fine);
}

void TestConnectionFile::optionsOfTheDriverMayStandInTheFile()
{
    write(named(), lines() + QStringList{"connect-options = \"CLIENT_FOUND_ROWS=1;CLIENT_SSL=0\""});
    const ToolRun run =
        runTool({"check-db", "--json", "--other-account", "--defaults-file", named()});
    QVERIFY2(run.rules().contains("found-rows"), run.report().constData());
}

void TestConnectionFile::theReadTimeoutMayStandInTheFile()
{
    write(named(), lines() + QStringList{"read-timeout = 7"});
    ConnectionFile file;
    QCOMPARE(file.read(named()), QString());
    QCOMPARE(file.options().readTimeout, 7U);
}

void TestConnectionFile::commentsAndOtherGroupsAreLeftAlone()
{
    write(named(),
          QStringList{"; a comment", "; user = nobody"} + lines()
              + QStringList{"[mysqldump]", "user = somebody", "quick = 1"});
    COMPARE_EXIT(statusOfNamed(), ExitStatus::Fine);
}

void TestConnectionFile::aPasswordInThePrivateFileIsTaken_data()
{
    QTest::addColumn<int>("permissions");
    QTest::newRow("the owner's") << int(kForOwner);
    QTest::newRow("the group's") << int(kForOwner | QFileDevice::ReadGroup);
}

void TestConnectionFile::aPasswordInThePrivateFileIsTaken()
{
    QFETCH(int, permissions);
    write(named(), lines().mid(0, 3) + QStringList{"password = " + m_db.server().password()},
          QFileDevice::Permissions(permissions));
    const ToolRun run = statusOfNamed();
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.err, QString());
}

void TestConnectionFile::aPasswordThatEverybodyCanReadIsNotUsed()
{
    write(named(), lines().mid(0, 3) + QStringList{"password = " + m_db.server().password()},
          kForOwner | QFileDevice::ReadOther);
    const ToolRun run = statusOfNamed();
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QVERIFY2(run.err.startsWith(QStringLiteral("mirovahrctl: status: Warning: Every user of the "
                                               "machine can read '%1': the password in it is not "
                                               "used. Remove the permission (chmod o-r).\n")
                                    .arg(named())),
             run.report().constData());
    QVERIFY2(run.err.contains("(using password: NO)"), run.report().constData());
}

void TestConnectionFile::aPasswordFileThatEverybodyCanReadIsWarnedOf_data()
{
    QTest::addColumn<int>("permissions");
    QTest::addColumn<bool>("isWarned");
    QTest::newRow("for the owner") << int(kForOwner) << false;
    QTest::newRow("for the group") << int(kForOwner | QFileDevice::ReadGroup) << false;
    QTest::newRow("for everybody") << int(kForOwner | QFileDevice::ReadOther) << true;
}

void TestConnectionFile::aPasswordFileThatEverybodyCanReadIsWarnedOf()
{
    QFETCH(int, permissions);
    QFETCH(bool, isWarned);
    const QString path = m_folder->filePath("password");
    QVERIFY(QFile::copy(m_db.server().passwordFile(), path));
    QVERIFY(QFile::setPermissions(path, QFileDevice::Permissions(permissions)));
    write(named(), lines().mid(0, 3) + QStringList{"password-file = password"});
    const QString warning = "mirovahrctl: status: Warning: Every user of the machine can read the "
                            "password file '"
        + path + "'. Remove the permission (chmod o-r).\n";
    for (const QStringList &option : {QStringList(), QStringList{"--password-file", path}}) {
        const ToolRun run = runTool(QStringList{"status", "--defaults-file", named()} + option);
        COMPARE_EXIT(run, ExitStatus::Fine);
        QCOMPARE(run.err, isWarned ? warning : QString());
    }
}

void TestConnectionFile::aPasswordFileIsRelativeToTheFileThatNamesIt()
{
    QVERIFY(QFile::copy(m_db.server().passwordFile(), m_folder->filePath("secret")));
    write(named(), lines().mid(0, 3) + QStringList{"password-file = secret"});
    COMPARE_EXIT(statusOfNamed(), ExitStatus::Fine);
}

void TestConnectionFile::thePasswordOfTheCommandLineCountsMoreThanTheFile()
{
    write(named(), lines().mid(0, 3) + QStringList{"password-file = /nowhere"});
    COMPARE_EXIT(statusOfNamed(), ExitStatus::Usage);
    COMPARE_EXIT(runTool({"status", "--defaults-file", named(), "--password-file",
                          m_db.server().passwordFile()}),
                 ExitStatus::Fine);
}

void TestConnectionFile::thePasswordOfTheEnvironmentCountsMoreThanTheFile()
{
    write(named(), lines().mid(0, 3) + QStringList{"password = wrong"});
    qputenv(kPasswordVariable, m_db.server().password().toUtf8());
    COMPARE_EXIT(statusOfNamed(), ExitStatus::Fine);
    QVERIFY(!qEnvironmentVariableIsSet(kPasswordVariable));
}

void TestConnectionFile::anotherUserDoesNotGetThePasswordOfTheFile()
{
    write(named(), lines());
    const ToolRun run = runTool({"status", "--defaults-file", named(), "--user", "yav"});
    COMPARE_EXIT(run, ExitStatus::NoDatabase);
    QVERIFY2(run.err.contains("'yav'@'localhost' (using password: NO)"), run.report().constData());
}

void TestConnectionFile::anUnusableFileIsAFailure_data()
{
    QTest::addColumn<QString>("lines");
    QTest::addColumn<QString>("reason");
    QTest::newRow("an unknown key") << "hots = a"
                                    << "the key 'hots' is unknown";
    QTest::newRow("an unquoted comma")
        << "password = a,b"
        << "the value of 'password' has a comma; put it in quotation marks";
    QTest::newRow("an unquoted semicolon")
        << "connect-options = SSL_CA=/ca.pem;SSL_CERT=/cert.pem"
        << "the value of 'connect-options' has a semicolon; put it in quotation marks";
    QTest::newRow("a port that is none") << "port = 65536"
                                         << "the port is a number from 0 to 65535";
    QTest::newRow("a timeout that is none")
        << "read-timeout = two minutes"
        << "the read timeout is a number of seconds from 0 to 86400";
    QTest::newRow("two servers") << "host = a\nsocket = b"
                                 << "it names both a host and a socket";
    QTest::newRow("two passwords") << "password = a\npassword-file = b"
                                   << "it names both a password and a password-file";
    QTest::newRow("a bare word")
        << "compress"
        << "there are lines that are neither [group], nor key = value, nor a comment that begins "
           "with a semicolon";
    QTest::newRow("a comment of another kind")
        << "# the reader's"
        << "there are lines that are neither [group], nor key = value, nor a comment that begins "
           "with a semicolon";
    QTest::newRow("a key outside the group")
        << "[General]\nhost = a"
        << "the key 'host' belongs to no group; write [client] above it";
}

void TestConnectionFile::anUnusableFileIsAFailure()
{
    QFETCH(QString, lines);
    QFETCH(QString, reason);
    write(named(), {lines});
    write(kFileInPlace, {lines});
    const QString sentence = QStringLiteral("mirovahrctl: status: '%1': %2.\n");

    const ToolRun run = statusOfNamed();
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, sentence.arg(named(), reason));

    const ToolRun inPlace = runTool({"status"});
    COMPARE_EXIT(inPlace, ExitStatus::Usage);
    QCOMPARE(inPlace.err, sentence.arg(kFileInPlace, reason));
}

void TestConnectionFile::aNamedFileThatDoesNotExistIsAFailure()
{
    write(kFileInPlace, lines());
    const ToolRun run = statusOfNamed();
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, QStringLiteral("mirovahrctl: status: There is no file '%1'.\n").arg(named()));
}

void TestConnectionFile::whatIsMissingMayStandInTheFile_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("reason");
    QTest::newRow("server") << QStringList()
                            << "Name the database server with either --host or --socket";
    QTest::newRow("database") << QStringList{"--socket", "/s"}
                              << "Name the attendance database with --database";
    QTest::newRow("user") << QStringList{"--socket", "/s", "--database", "d"}
                          << "Name the database user with --user";
}

void TestConnectionFile::whatIsMissingMayStandInTheFile()
{
    QFETCH(QStringList, options);
    QFETCH(QString, reason);
    const ToolRun none = runTool(QStringList{"status"} + options);
    COMPARE_EXIT(none, ExitStatus::Usage);
    QCOMPARE(
        none.err,
        QStringLiteral("mirovahrctl: status: %1, or in the file %2.\n").arg(reason, kFileInPlace));

    write(kFileInPlace, {});
    const ToolRun silent = runTool(QStringList{"status"} + options);
    COMPARE_EXIT(silent, ExitStatus::Usage);
    QCOMPARE(silent.err, QStringLiteral("mirovahrctl: status: %1.\n").arg(reason));
}

void TestConnectionFile::theFileInItsPlaceAloneMakesCheckFileAskNoDatabase()
{
    write(kFileInPlace, {"socket = /nowhere", "database = tepdb", "user = mirovahrctl"});
    ExportFile exportFile;
    exportFile.write({ExportRow().text()});
    COMPARE_EXIT(runTool({"check-file", exportFile.path()}), ExitStatus::Fine);
}

void TestConnectionFile::aNamedFileMakesCheckFileAskTheDatabase()
{
    write(named(), lines());
    ExportFile exportFile;
    exportFile.write({ExportRow().with(&ExportRow::jmeno, QString(5000, 'x')).text()});
    const ToolRun run =
        runTool({"check-file", "--json", "--defaults-file", named(), exportFile.path()});
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.rules(), QStringList("text-too-long"));
}

QTEST_GUILESS_MAIN(TestConnectionFile)
#include "tst_connectionfile.moc"
