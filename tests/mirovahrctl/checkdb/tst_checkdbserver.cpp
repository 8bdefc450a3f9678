#include "db/termsyncrepository.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/site/dbschema.h"
#include "tests/mirovahrctl/checkdb/findinglist.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/logcapture.h"
#include "tests/support/testdatabase.h"

#include <QSqlDriver>
#include <QSqlQuery>
#include <QTest>

#include <dlfcn.h>

Q_DECLARE_METATYPE(ServerSettings)

namespace {

/// Makes the server accept one statement in a text only, as a proxy would.
bool refuseSeveralStatements(const QSqlDatabase &db)
{
    constexpr int kMultiStatementsOff = 1;
    using SetServerOption = int (*)(void *, int);
    void *const library = ::dlopen("libmariadb.so.3", RTLD_NOW | RTLD_NOLOAD);
    const auto setOption = library == nullptr
        ? nullptr
        : reinterpret_cast<SetServerOption>(::dlsym(library, "mysql_set_server_option"));
    const QVariant handle = db.driver()->handle();
    return setOption != nullptr && qstrcmp(handle.typeName(), "MYSQL*") == 0
        && setOption(*static_cast<void *const *>(handle.constData()), kMultiStatementsOff) == 0;
}

} // namespace

/// The rules of check-db about server and connection that need a connection or a server of their
/// own.
class TestCheckDbServer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void aConnectionThatIsNotUnicodeIsReported_data();
    void aConnectionThatIsNotUnicodeIsReported();
    void aConnectionThatTakesOneStatementAtATimeIsReported();
    void anOrdinaryConnectionIsFine();
    void aConnectionThatIsLostEndsTheCheck();

    void theTemporaryTableFailsWhereCheckDbSaysSo_data();
    void theTemporaryTableFailsWhereCheckDbSaysSo();
    void clustersThatRequirePrimaryKeysAreReported_data();
    void clustersThatRequirePrimaryKeysAreReported();
    void anAccountThatCannotSeeAllColumnsOnlyNotesAMissingKey();

    void aServerThatReservesGroupsIsAViolation();
    void versionsAreParsed_data();
    void versionsAreParsed();

private:
    TestDatabase m_db;
};

void TestCheckDbServer::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_db.grant("grants-repositories.sql");
    for (const char *table : {"term_sync", "pzt"})
        m_db.run(QStringLiteral("GRANT SELECT ON %1 TO yav@localhost").arg(table));
}

void TestCheckDbServer::cleanup()
{
    for (const char *setting : {"innodb_force_primary_key = 0", "enforce_storage_engine = NULL",
                                "default_storage_engine = DEFAULT",
                                "default_tmp_storage_engine = NULL", "sql_mode = DEFAULT"})
        m_db.run(QString("SET GLOBAL ") + setting);
}

void TestCheckDbServer::aConnectionThatIsNotUnicodeIsReported_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("message");
    QTest::newRow("all of it")
        << "SET NAMES latin2"
        << "The connection's character set is not UTF-8 (client latin2, connection latin2, results "
           "latin2): accented letters are stored wrongly";
    QTest::newRow("what is read")
        << "SET character_set_results = latin1"
        << "The connection's character set is not UTF-8 (client utf8mb3, connection utf8mb3, "
           "results latin1): accented letters are stored wrongly";
}

void TestCheckDbServer::aConnectionThatIsNotUnicodeIsReported()
{
    QFETCH(QString, statement);
    QFETCH(QString, message);
    const QSqlDatabase db = m_db.openPluginConnection();
    QVERIFY(QSqlQuery(db).exec(statement));
    FindingList report;
    DbAssessment check(db, report);
    DbRules::checkConnection(check, DbRules::Account::OfThePlugin, kTimeouts.last());
    QCOMPARE(report.findings.size(), 1);
    QCOMPARE(report.findings.first().rule, QString("connection-charset"));
    QCOMPARE(report.findings.first().message, message + '.');
    QCOMPARE(report.findings.first().severity, Severity::Error);
    QVERIFY(!check.isContractBroken());
}

void TestCheckDbServer::aConnectionThatTakesOneStatementAtATimeIsReported()
{
    const QSqlDatabase db = m_db.openPluginConnection();
    QVERIFY(refuseSeveralStatements(db));
    FindingList report;
    DbAssessment check(db, report);
    DbRules::checkConnection(check, DbRules::Account::OfThePlugin, kTimeouts.last());
    QCOMPARE(report.findings.size(), 1);
    QCOMPARE(report.findings.first().rule, QString("several-statements"));
    QCOMPARE(report.findings.first().message,
             QString("The connection refuses several statements in one text. The plugin does not "
                     "need them, but where the attendance server uses the same classes, a changed "
                     "time zone does not reach the terminals."));
    QVERIFY(!check.isContractBroken());
}

void TestCheckDbServer::anOrdinaryConnectionIsFine()
{
    FindingList report;
    DbAssessment check(m_db.openPluginConnection(), report);
    DbRules::checkConnection(check, DbRules::Account::OfThePlugin, kTimeouts.last());
    QCOMPARE(report.findings.size(), 0);
    QCOMPARE(check.sql().errorString(), QString());
}

void TestCheckDbServer::aConnectionThatIsLostEndsTheCheck()
{
    const QSqlDatabase db = m_db.openPluginConnection();
    QSqlQuery query(db);
    QVERIFY(query.exec("SELECT CONNECTION_ID()") && query.next());
    m_db.run("KILL " + query.value(0).toString());
    FindingList report;
    DbAssessment check(db, report);
    DbRules::checkServer(check);
    QVERIFY(check.sql().failed());
    QCOMPARE(report.findings.size(), 0);
}

void TestCheckDbServer::theTemporaryTableFailsWhereCheckDbSaysSo_data()
{
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<QString>("error");
    const QString key = "This table type requires a primary key";
    const QString engine = "The MariaDB server is running with the NO_ENGINE_SUBSTITUTION option "
                           "so it cannot execute this statement";
    const QString forcedKey = "innodb_force_primary_key = 1";
    const auto row = [](const char *name, const QStringList &settings, const QString &failure) {
        QTest::newRow(name) << settings << failure;
    };
    row("as it is installed", {}, {});
    row("a forced key", {forcedKey}, key);
    row("a forced key, temporary tables of InnoDB",
        {forcedKey, "default_tmp_storage_engine = InnoDB"}, key);
    row("a forced key, temporary tables of Aria", {forcedKey, "default_tmp_storage_engine = Aria"},
        {});
    row("a forced key, tables of Aria", {forcedKey, "default_storage_engine = Aria"}, {});
    row("another forced engine", {"enforce_storage_engine = Aria"}, engine);
    row("the same forced engine", {"enforce_storage_engine = InnoDB"}, {});
    row("a forced engine of temporary tables",
        {"enforce_storage_engine = Aria", "default_tmp_storage_engine = Aria"}, {});
    row("an engine that takes the place of another",
        {"enforce_storage_engine = Aria", "sql_mode = 'STRICT_TRANS_TABLES'"}, {});
    row("a forced engine and a forced key",
        {"enforce_storage_engine = InnoDB", "default_storage_engine = Aria",
         "sql_mode = 'STRICT_TRANS_TABLES'", forcedKey},
        key);
}

void TestCheckDbServer::theTemporaryTableFailsWhereCheckDbSaysSo()
{
    QFETCH(QStringList, settings);
    QFETCH(QString, error);
    for (const QString &setting : settings)
        m_db.run("SET GLOBAL " + setting);
    const QSqlDatabase db = m_db.openPluginConnection();
    FindingList report;
    DbAssessment check(db, report);
    DbRules::checkKeylessTables(check, DbSchema(), readSettings(check.sql()));
    QCOMPARE(check.sql().errorString(), QString());
    QCOMPARE(report.findings.size(), error.isEmpty() ? 0 : 1);

    LogCapture log;
    TermSyncRepository queue;
    queue.setDB(db);
    queue.addTermSyncTimezone(1, 'I', "zones");
    QCOMPARE(log.lines(),
             error.isEmpty()
                 ? QStringList()
                 : QStringList("C TermSyncRepository::addTermSyncTimezone() - update terminals "
                               "FAILED! ERROR: "
                               + error + " QMYSQL: Unable to execute next query"));
}

void TestCheckDbServer::clustersThatRequirePrimaryKeysAreReported_data()
{
    QTest::addColumn<ServerSettings>("settings");
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("message");
    const ServerSettings cluster = {{"wsrep_on", "ON"}, {"wsrep_certify_nonpk", "ON"}};
    const auto with = [](ServerSettings settings, const char *name, const char *value) {
        settings.insert(name, value);
        return settings;
    };
    const QString noChange = "DO 1";
    const QString noNumbers = "ALTER TABLE term_sync DROP id";
    const QString queue = "The server has wsrep_certify_nonPK = OFF, and this account sees no "
                          "primary key on these tables: %1. Without one, each of the plugin's "
                          "writes to them fails with error 1213 (deadlock).";
    QTest::newRow("a cluster") << cluster << noChange << "";
    QTest::newRow("wanted of tables that are made")
        << with(cluster, "wsrep_mode", "STRICT_REPLICATION,REQUIRED_PRIMARY_KEY") << noChange
        << "The server has wsrep_mode = REQUIRED_PRIMARY_KEY: CREATE TEMPORARY TABLE "
           "tmptbl_updateTermsSyncTZ fails with error 4165. The plugin does not need it, but where "
           "the attendance server uses the same classes, a changed time zone does not reach the "
           "terminals.";
    QTest::newRow("other modes") << with(cluster, "wsrep_mode", "STRICT_REPLICATION") << noChange
                                 << "";
    QTest::newRow("a key for each row")
        << with(cluster, "wsrep_certify_nonpk", "OFF") << noChange << "";
    QTest::newRow("wanted of rows that are written")
        << with(cluster, "wsrep_certify_nonpk", "OFF") << noNumbers << queue.arg("term_sync");
    QTest::newRow("a key that takes NULL")
        << with(cluster, "wsrep_certify_nonpk", "OFF")
        << "ALTER TABLE vars DROP PRIMARY KEY, MODIFY name VARCHAR(160) NULL, ADD UNIQUE KEY (name)"
        << queue.arg("vars");
    QTest::newRow("a key on the beginning of a text")
        << with(cluster, "wsrep_certify_nonpk", "OFF")
        << "ALTER TABLE vars DROP PRIMARY KEY, ADD UNIQUE KEY (name(100))" << queue.arg("vars");
    QTest::newRow("a primary key on the beginning of a text")
        << with(cluster, "wsrep_certify_nonpk", "OFF")
        << "ALTER TABLE vars DROP PRIMARY KEY, ADD PRIMARY KEY (name(100))"
        << "";
    QTest::newRow("rows of two nodes that conflict")
        << cluster << noNumbers
        << "This account sees no primary key on these tables: term_sync. On a cluster, new rows of "
           "two nodes conflict in such a table though they differ, and one of the two is refused "
           "with error 1213 (deadlock).";
    QTest::newRow("no key of a table that the plugin does not write")
        << cluster << "ALTER TABLE bradm DROP PRIMARY KEY"
        << "This account sees no primary key on these tables: bradm. On a cluster, new rows of two "
           "nodes conflict in such a table though they differ, and one of the two is refused with "
           "error 1213 (deadlock).";
    QTest::newRow("a server that was built for clusters")
        << with(with(cluster, "wsrep_provider", "none"), "wsrep_certify_nonpk", "OFF") << noNumbers
        << "";
    QTest::newRow("a server that is no cluster")
        << ServerSettings({{"wsrep_on", "OFF"},
                           {"wsrep_certify_nonpk", "OFF"},
                           {"wsrep_mode", "REQUIRED_PRIMARY_KEY"}})
        << noChange << "";
}

void TestCheckDbServer::clustersThatRequirePrimaryKeysAreReported()
{
    QFETCH(ServerSettings, settings);
    QFETCH(QString, change);
    QFETCH(QString, message);
    m_db.run(change);
    const QSqlDatabase db = m_db.openPluginConnection();
    DbSchema schema;
    SqlSession site(db);
    QVERIFY2(schema.load(site), qPrintable(site.errorString()));
    m_db.reset();
    FindingList report;
    DbAssessment check(db, report);
    DbRules::checkKeylessTables(check, schema, settings);
    QCOMPARE(report.messages(), message);
    QVERIFY(!check.isContractBroken());
}

void TestCheckDbServer::anAccountThatCannotSeeAllColumnsOnlyNotesAMissingKey()
{
    m_db.run("ALTER TABLE term_sync DROP id");
    const QSqlDatabase db = m_db.openPluginConnection();
    DbSchema schema;
    SqlSession site(db);
    QVERIFY2(schema.load(site), qPrintable(site.errorString()));
    m_db.reset();
    for (const bool seesAll : {true, false}) {
        FindingList report;
        DbAssessment check(db, report);
        if (!seesAll)
            check.setPartlySeen();
        DbRules::checkKeylessTables(check, schema,
                                    {{"wsrep_on", "ON"}, {"wsrep_certify_nonpk", "OFF"}});
        QCOMPARE(report.findings.size(), 1);
        QCOMPARE(report.findings.first().severity, seesAll ? Severity::Error : Severity::Note);
    }
}

void TestCheckDbServer::aServerThatReservesGroupsIsAViolation()
{
    TestDatabase other;
    QVERIFY2(other.start({"--version=8.0.35"}), qPrintable(other.errorString()));
    const ToolRun run =
        runTool({"check-db", "--json", "--socket", other.server().socketPath(), "--database",
                 "tepdb", "--user", "yav", "--password-file", other.server().passwordFile()});
    COMPARE_EXIT(run, ExitStatus::ContractBroken);
    const QJsonObject finding = run.findingsOf("groups-reserved").value(0);
    QCOMPARE(finding.value("message").toString(),
             QString("The server is MySQL 8.0.35. There \"groups\" is a reserved word, and the "
                     "plugin's statement that looks up a calendar group, which does not quote it, "
                     "fails for everybody."));
    QCOMPARE(finding.value("advice").toString(), QString("Use MariaDB, or MySQL up to 5.7."));
}

void TestCheckDbServer::versionsAreParsed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("reserves");
    QTest::newRow("MariaDB") << "10.11.6-MariaDB-0+deb12u1-log"
                             << "MariaDB 10.11.6-MariaDB-0+deb12u1-log" << false;
    QTest::newRow("MySQL 5.7") << "5.7.44-log"
                               << "MySQL 5.7.44-log" << false;
    QTest::newRow("MySQL 8") << "8.0.35-0ubuntu0.22.04.1"
                             << "MySQL 8.0.35-0ubuntu0.22.04.1" << true;
    QTest::newRow("MySQL 9") << "9.1.0"
                             << "MySQL 9.1.0" << true;
    QTest::newRow("nothing") << ""
                             << "MySQL " << false;
}

void TestCheckDbServer::versionsAreParsed()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    QFETCH(bool, reserves);
    const ServerVersion version = ServerVersion::parse(text);
    QCOMPARE(version.name(), name);
    QCOMPARE(version.reservesGroups(), reserves);
}

QTEST_GUILESS_MAIN(TestCheckDbServer)
#include "tst_checkdbserver.moc"
