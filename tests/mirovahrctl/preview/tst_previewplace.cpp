#include "tests/support/testdatabase.h"
#include "worker/transaction.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QTest>

namespace {

constexpr int kLockWaitTimeout = 1205;
constexpr int kDatabaseDenied = 1044;
constexpr int kTableDenied = 1142;
constexpr int kNoSuchTable = 1146;
constexpr int kTriggerOnTemporaryTable = 1361;
constexpr int kSuperPrivilegeNeeded = 1419;

/// The server's number of a statement's error; 0 when there is none.
int errorOf(const QSqlDatabase &connection, const QString &sql)
{
    QSqlQuery query(connection);
    return query.exec(sql) ? 0 : query.lastError().nativeErrorCode().toInt();
}

} // namespace

/// Why preview works in a server of its own: what a site would meet if the plugin worked for a
/// preview on the site's server, in a transaction that is rolled back, on temporary tables, or in
/// another database there. docs/how-it-works.md draws the conclusions.
class TestPreviewPlace : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

    void aTransactionOfThePluginCommitsTheOneAroundIt();
    void aTransactionLocksWhatTheAttendanceServerWrites_data();
    void aTransactionLocksWhatTheAttendanceServerWrites();
    void aRolledBackPersonHasUsedUpTheUid();
    void aRollbackKeepsWhatATriggerWroteIntoAnotherEngine();
    void aRoutineOfTheSiteMayCommit_data();
    void aRoutineOfTheSiteMayCommit();

    void temporaryTablesHaveNoTriggers();
    void temporaryTablesAreNotThereForAnotherConnection();

    void aReadingAccountMakesNothing_data();
    void aReadingAccountMakesNothing();
    void copyingWithinTheServerLocksWhatItReads();
    void aTableThatIsMadeEndsTheSnapshot();
    void everyCopiedRowGoesIntoTheBinaryLog();
    void makingATriggerNeedsTheRightsOfAnAdministrator();
    void aTriggerThatNamesTheDatabaseWritesIntoTheSite();

private:
    QSqlDatabase open(const char *name, const char *account);
    void makeScratch(const QString &table);
    qint64 binaryLogPosition();

    TestDatabase m_site;
    QSqlDatabase m_plugin; ///< with the rights of the attendance server
    QSqlDatabase m_other; ///< somebody else at work meanwhile, who does not wait for a lock
    QSqlDatabase m_reader; ///< with the account of mirovahrctl
    QSqlDatabase m_administrator;
};

void TestPreviewPlace::initTestCase()
{
    QVERIFY2(m_site.start({"--log-bin=site", "--server-id=1", "--binlog-format=ROW"}),
             qPrintable(m_site.errorString()));
    m_site.run(QStringLiteral("ALTER USER mirovahrctl@localhost IDENTIFIED BY '%1' ACCOUNT UNLOCK")
                   .arg(m_site.server().password()));
    m_plugin = open("plugin", "yav");
    m_other = open("other", "yav");
    m_reader = open("reader", "mirovahrctl");
    m_administrator = open("administrator", "root");
    QCOMPARE(errorOf(m_other, "SET SESSION innodb_lock_wait_timeout = 0"), 0);
}

QSqlDatabase TestPreviewPlace::open(const char *name, const char *account)
{
    QSqlDatabase connection = m_site.pluginConnection(name);
    connection.setUserName(account);
    if (qstrcmp(account, "root") == 0)
        connection.setPassword(QString());
    if (!connection.open())
        QTest::qFail(qPrintable(connection.lastError().text()), __FILE__, __LINE__);
    return connection;
}

void TestPreviewPlace::cleanup()
{
    for (const QSqlDatabase &connection : {m_plugin, m_reader, m_administrator})
        QCOMPARE(errorOf(connection, "ROLLBACK"), 0);
    m_site.run("DROP DATABASE IF EXISTS scratch");
    m_site.reset();
}

void TestPreviewPlace::cleanupTestCase()
{
    for (QSqlDatabase *const connection : {&m_plugin, &m_other, &m_reader, &m_administrator})
        *connection = QSqlDatabase();
}

void TestPreviewPlace::makeScratch(const QString &table)
{
    m_site.run("CREATE DATABASE IF NOT EXISTS scratch");
    m_site.run(QStringLiteral("CREATE TABLE scratch.%1 LIKE %1").arg(table));
}

qint64 TestPreviewPlace::binaryLogPosition()
{
    return m_site.rows("SHOW MASTER STATUS").constFirst().at(1).toLongLong();
}

void TestPreviewPlace::aTransactionOfThePluginCommitsTheOneAroundIt()
{
    QCOMPARE(errorOf(m_plugin, "START TRANSACTION"), 0);
    QCOMPARE(errorOf(m_plugin, "UPDATE people SET surname = 'Malá' WHERE uid = 4"), 0);
    // As for a new supervisor.
    Transaction(m_plugin).commit();
    QCOMPARE(errorOf(m_plugin, "ROLLBACK"), 0);
    QCOMPARE(m_site.value("SELECT surname FROM people WHERE uid = 4").toString(), QString("Malá"));
}

void TestPreviewPlace::aTransactionLocksWhatTheAttendanceServerWrites_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("meanwhile");
    const QString attendance = "UPDATE atten SET ok = -1 WHERE `lock` =0 AND `man`=0 AND `date` >= "
                               "0 AND uid =4";
    QTest::newRow("a day is calculated") << attendance << "UPDATE atten SET ok = 1 WHERE uid = 4";
    QTest::newRow("a terminal has fetched its people") << "UPDATE term SET syn = syn | 2"
                                                       << "UPDATE term SET syn = 0 WHERE tid = 1";
    QTest::newRow("a person is edited") << "UPDATE people SET surname = 'Malá' WHERE uid = 4"
                                        << "UPDATE people SET phone = '' WHERE uid = 4";
}

void TestPreviewPlace::aTransactionLocksWhatTheAttendanceServerWrites()
{
    QFETCH(QString, written);
    QFETCH(QString, meanwhile);
    QCOMPARE(errorOf(m_plugin, "START TRANSACTION"), 0);
    QCOMPARE(errorOf(m_plugin, written), 0);
    QCOMPARE(errorOf(m_other, meanwhile), kLockWaitTimeout);
    QCOMPARE(errorOf(m_plugin, "ROLLBACK"), 0);
    QCOMPARE(errorOf(m_other, meanwhile), 0);
}

void TestPreviewPlace::aRolledBackPersonHasUsedUpTheUid()
{
    const QString next = "SELECT AUTO_INCREMENT FROM information_schema.TABLES WHERE TABLE_NAME = "
                         "'people' AND TABLE_SCHEMA = DATABASE()";
    const int before = m_site.value(next).toInt();
    QCOMPARE(errorOf(m_plugin, "START TRANSACTION"), 0);
    QCOMPARE(errorOf(m_plugin, "INSERT INTO people (pid) VALUES (99991)"), 0);
    QCOMPARE(errorOf(m_plugin, "ROLLBACK"), 0);
    QCOMPARE(m_site.value(next).toInt(), before + 1);
}

void TestPreviewPlace::aRollbackKeepsWhatATriggerWroteIntoAnotherEngine()
{
    m_site.run("CREATE TABLE trail (uid INT UNSIGNED) ENGINE=Aria");
    m_site.run("CREATE TRIGGER t AFTER UPDATE ON people FOR EACH ROW INSERT INTO trail VALUES "
               "(NEW.uid)");
    QCOMPARE(errorOf(m_plugin, "START TRANSACTION"), 0);
    QCOMPARE(errorOf(m_plugin, "UPDATE people SET surname = 'Malá' WHERE uid = 4"), 0);
    QCOMPARE(errorOf(m_plugin, "ROLLBACK"), 0);
    QCOMPARE(m_site.value("SELECT surname FROM people WHERE uid = 4").toString(),
             QString("Nováková"));
    QCOMPARE(m_site.value("SELECT COUNT(*) FROM trail").toInt(), 1);
}

void TestPreviewPlace::aRoutineOfTheSiteMayCommit_data()
{
    QTest::addColumn<QString>("statement");
    QTest::newRow("by a statement that commits by itself") << "TRUNCATE TABLE notes";
    QTest::newRow("outright") << "COMMIT";
}

void TestPreviewPlace::aRoutineOfTheSiteMayCommit()
{
    QFETCH(QString, statement);
    m_site.run("CREATE TABLE notes (uid INT UNSIGNED)");
    m_site.run("CREATE OR REPLACE PROCEDURE updateTermsSync(IN a INT UNSIGNED, IN b INT UNSIGNED) "
               "SQL SECURITY DEFINER "
               + statement);
    QCOMPARE(errorOf(m_plugin, "START TRANSACTION"), 0);
    QCOMPARE(errorOf(m_plugin, "UPDATE people SET surname = 'Malá' WHERE uid = 4"), 0);
    QCOMPARE(errorOf(m_plugin, "CALL updateTermsSync(4, 2)"), 0);
    QCOMPARE(errorOf(m_plugin, "ROLLBACK"), 0);
    QCOMPARE(m_site.value("SELECT surname FROM people WHERE uid = 4").toString(), QString("Malá"));
}

void TestPreviewPlace::temporaryTablesHaveNoTriggers()
{
    QCOMPARE(errorOf(m_administrator, "CREATE TEMPORARY TABLE copied LIKE people"), 0);
    QCOMPARE(
        errorOf(m_administrator, "CREATE TRIGGER t AFTER UPDATE ON copied FOR EACH ROW SET @a = 1"),
        kTriggerOnTemporaryTable);
    QCOMPARE(errorOf(m_administrator, "DROP TEMPORARY TABLE copied"), 0);
}

/// The plugin works on a connection of its own.
void TestPreviewPlace::temporaryTablesAreNotThereForAnotherConnection()
{
    QCOMPARE(errorOf(m_administrator, "CREATE TEMPORARY TABLE copied LIKE people"), 0);
    QCOMPARE(errorOf(open("second", "root"), "SELECT * FROM copied"), kNoSuchTable);
    QCOMPARE(errorOf(m_administrator, "DROP TEMPORARY TABLE copied"), 0);
}

void TestPreviewPlace::aReadingAccountMakesNothing_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<int>("error");
    QTest::newRow("a change") << "UPDATE people SET surname = 'Malá'" << kTableDenied;
    QTest::newRow("a temporary table") << "CREATE TEMPORARY TABLE t (a INT)" << kDatabaseDenied;
    QTest::newRow("a database") << "CREATE DATABASE scratch" << kDatabaseDenied;
}

void TestPreviewPlace::aReadingAccountMakesNothing()
{
    QFETCH(QString, sql);
    QFETCH(int, error);
    QCOMPARE(errorOf(m_reader, sql), error);
}

void TestPreviewPlace::copyingWithinTheServerLocksWhatItReads()
{
    makeScratch("atten");
    const QString book = "UPDATE atten SET ok = 1 WHERE uid = 4";
    QCOMPARE(errorOf(m_administrator, "START TRANSACTION"), 0);
    QCOMPARE(errorOf(m_administrator, "INSERT INTO scratch.atten SELECT * FROM atten"), 0);
    QCOMPARE(errorOf(m_other, book), kLockWaitTimeout);
    QCOMPARE(errorOf(m_administrator, "ROLLBACK"), 0);
    // As preview reads.
    QCOMPARE(errorOf(m_reader, "START TRANSACTION WITH CONSISTENT SNAPSHOT"), 0);
    QCOMPARE(errorOf(m_reader, "SELECT * FROM atten"), 0);
    QCOMPARE(errorOf(m_other, book), 0);
}

void TestPreviewPlace::aTableThatIsMadeEndsTheSnapshot()
{
    QSqlQuery query(m_administrator);
    QCOMPARE(errorOf(m_administrator, "START TRANSACTION WITH CONSISTENT SNAPSHOT"), 0);
    m_site.run("UPDATE people SET surname = 'Malá' WHERE uid = 4");
    const auto surname = [&query] {
        return query.exec("SELECT surname FROM people WHERE uid = 4") && query.next()
            ? query.value(0).toString()
            : QString();
    };
    QCOMPARE(surname(), QString("Nováková"));
    QCOMPARE(errorOf(m_administrator, "CREATE TABLE copied LIKE people"), 0);
    QCOMPARE(surname(), QString("Malá"));
}

void TestPreviewPlace::everyCopiedRowGoesIntoTheBinaryLog()
{
    makeScratch("people");
    const qint64 before = binaryLogPosition();
    m_site.run("INSERT INTO scratch.people SELECT * FROM people");
    const qint64 surnames = m_site.value("SELECT SUM(LENGTH(surname)) FROM people").toLongLong();
    QVERIFY(binaryLogPosition() - before > surnames);
}

void TestPreviewPlace::makingATriggerNeedsTheRightsOfAnAdministrator()
{
    makeScratch("people");
    m_site.run("GRANT ALL ON scratch.* TO mirovahrctl@localhost");
    const int error = errorOf(m_reader,
                              "CREATE TRIGGER scratch.t BEFORE UPDATE ON scratch.people "
                              "FOR EACH ROW SET @a = 1");
    m_site.run("REVOKE ALL ON scratch.* FROM mirovahrctl@localhost");
    QCOMPARE(error, kSuperPrivilegeNeeded);
}

void TestPreviewPlace::aTriggerThatNamesTheDatabaseWritesIntoTheSite()
{
    m_site.run("CREATE TABLE trail (uid INT UNSIGNED)");
    makeScratch("people");
    m_site.run("INSERT INTO scratch.people SELECT * FROM people");
    m_site.run("CREATE TRIGGER scratch.t AFTER UPDATE ON scratch.people FOR EACH ROW INSERT INTO "
               "tepdb.trail VALUES (NEW.uid)");
    m_site.run("UPDATE scratch.people SET surname = 'Malá' WHERE uid = 4");
    QCOMPARE(m_site.value("SELECT COUNT(*) FROM trail").toInt(), 1);
}

QTEST_GUILESS_MAIN(TestPreviewPlace)
#include "tst_previewplace.moc"
