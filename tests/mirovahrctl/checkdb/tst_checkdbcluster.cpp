#include "mirovahrctl/checkdb/clusternodes.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/site/dbschema.h"
#include "tests/mirovahrctl/checkdb/findinglist.h"
#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/support/testdatabase.h"

#include <QTest>

namespace {

/// What the node of a healthy cluster says, with some values changed.
ServerSettings healthy(const ServerSettings &changes)
{
    ServerSettings values{{"binlog_format", "ROW"},
                          {"innodb_autoinc_lock_mode", "2"},
                          {"wsrep_certify_nonpk", "ON"},
                          {"wsrep_cluster_size", "3"},
                          {"wsrep_cluster_status", "Primary"},
                          {"wsrep_forced_binlog_format", "NONE"},
                          {"wsrep_local_state", "4"},
                          {"wsrep_local_state_comment", "Synced"},
                          {"wsrep_on", "ON"},
                          {"wsrep_provider", "/usr/lib/galera/libgalera_smm.so"},
                          {"wsrep_ready", "ON"},
                          {"wsrep_reject_queries", "NONE"},
                          {"wsrep_retry_autocommit", "5"},
                          {"wsrep_sst_donor_rejects_queries", "OFF"},
                          {"wsrep_sst_method", "mariabackup"},
                          {"wsrep_sync_wait", "1"}};
    for (auto change = changes.cbegin(); change != changes.cend(); ++change)
        values.insert(change.key(), change.value());
    return values;
}

AskedNode node(const QString &name)
{
    AskedNode node;
    node.address = name;
    node.cluster = "c";
    node.member = name;
    node.state = "Synced";
    node.version = "10.11.6-MariaDB";
    node.sqlMode = "STRICT_TRANS_TABLES";
    node.autoIncrementIncrement = "3";
    node.timeZone = "CET";
    node.midnights = QStringList{"1", "2"};
    return node;
}

void record(const FindingList &report)
{
    QStringList rules;
    for (const Finding &finding : report.findings)
        rules += finding.rule;
    RuleFixtures::record("check-db", rules);
}

} // namespace

/// The rules of check-db about a cluster, by what its nodes say. TestCheckDbNodes asks real ones.
class TestCheckDbCluster : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void whatANodeSaysIsAssessed_data();
    void whatANodeSaysIsAssessed();
    void aNodeThatRefusesStatementsEndsTheCheck_data();
    void aNodeThatRefusesStatementsEndsTheCheck();
    void aServerThatIsPreparedForAClusterIsReported_data();
    void aServerThatIsPreparedForAClusterIsReported();
    void tablesOfOtherEnginesAreReported();
    void aTableWithoutAPrimaryKeyIsReported();

    void anotherNodeIsCompared_data();
    void anotherNodeIsCompared();
    void membersWithoutAnAddressAreReported();
    void addressesOfNodesAreParsed_data();
    void addressesOfNodesAreParsed();

    void everyRuleOfClustersHasItsFixtures();

private:
    TestDatabase m_db;
};

void TestCheckDbCluster::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
}

void TestCheckDbCluster::whatANodeSaysIsAssessed_data()
{
    QTest::addColumn<ServerSettings>("changes");
    QTest::addColumn<QString>("rule");
    QTest::newRow("healthy") << ServerSettings() << "";
    QTest::newRow("a node that others copy")
        << ServerSettings{{"wsrep_local_state", "2"},
                          {"wsrep_local_state_comment", "Donor/Desynced"}}
        << "warning cluster-not-synced";
    QTest::newRow("statements are replicated")
        << ServerSettings{{"binlog_format", "STATEMENT"}} << "error cluster-binlog-format";
    QTest::newRow("mixed formats are replicated")
        << ServerSettings{{"binlog_format", "MIXED"}} << "error cluster-binlog-format";
    QTest::newRow("rows are forced")
        << ServerSettings{{"binlog_format", "STATEMENT"}, {"wsrep_forced_binlog_format", "ROW"}}
        << "";
    QTest::newRow("statements are forced")
        << ServerSettings{{"wsrep_forced_binlog_format", "STATEMENT"}}
        << "error cluster-binlog-format";
    QTest::newRow("consecutive numbers")
        << ServerSettings{{"innodb_autoinc_lock_mode", "1"}} << "warning cluster-autoinc-lock-mode";
    QTest::newRow("four repetitions")
        << ServerSettings{{"wsrep_retry_autocommit", "4"}} << "warning cluster-few-retries";
    QTest::newRow("many repetitions") << ServerSettings{{"wsrep_retry_autocommit", "10000"}} << "";
    QTest::newRow("no waiting") << ServerSettings{{"wsrep_sync_wait", "0"}}
                                << "warning cluster-stale-reads";
    QTest::newRow("waiting before writing only")
        << ServerSettings{{"wsrep_sync_wait", "6"}} << "warning cluster-stale-reads";
    QTest::newRow("waiting before everything") << ServerSettings{{"wsrep_sync_wait", "15"}} << "";
    for (const char *method : {"rsync", "rsync_wan", "mysqldump", "ours"})
        QTest::newRow(method) << ServerSettings{{"wsrep_sst_method", method}}
                              << "warning cluster-donor-blocked";
    for (const char *method : {"xtrabackup-v2", "clone"})
        QTest::newRow(method) << ServerSettings{{"wsrep_sst_method", method}} << "";
    QTest::newRow("a donor that answers nobody")
        << ServerSettings{{"wsrep_sst_donor_rejects_queries", "ON"}}
        << "warning cluster-donor-blocked";
}

void TestCheckDbCluster::whatANodeSaysIsAssessed()
{
    QFETCH(ServerSettings, changes);
    QFETCH(QString, rule);
    FindingList report;
    DbAssessment check(QSqlDatabase(), report);
    const ServerSettings said = healthy(changes);
    QVERIFY(isClusterNode(said));
    QVERIFY(DbRules::checkCluster(check, said, said));
    QCOMPARE(report.rules().join('\n'), rule);
    QVERIFY(!check.isContractBroken());
    record(report);
}

void TestCheckDbCluster::aNodeThatRefusesStatementsEndsTheCheck_data()
{
    QTest::addColumn<ServerSettings>("changes");
    QTest::addColumn<QString>("rule");
    for (const char *status : {"non-Primary", "Disconnected"})
        QTest::newRow(status) << ServerSettings{{"wsrep_cluster_status", status},
                                                {"wsrep_local_state", "0"},
                                                {"wsrep_ready", "OFF"}}
                              << "error cluster-not-primary";
    QTest::newRow("a node that joins")
        << ServerSettings{{"wsrep_local_state", "1"}, {"wsrep_ready", "OFF"}}
        << "error cluster-not-synced";
    QTest::newRow("a node that rejects queries")
        << ServerSettings{{"wsrep_reject_queries", "ALL"}} << "error cluster-not-synced";
}

void TestCheckDbCluster::aNodeThatRefusesStatementsEndsTheCheck()
{
    QFETCH(ServerSettings, changes);
    QFETCH(QString, rule);
    FindingList report;
    DbAssessment check(QSqlDatabase(), report);
    const ServerSettings said = healthy(changes);
    QVERIFY(!DbRules::checkCluster(check, said, said));
    QCOMPARE(report.rules().join('\n'), rule);
    QVERIFY(check.isContractBroken());
    record(report);
    // A node that says nothing is not taken for a healthy one.
    FindingList other;
    DbAssessment silent(QSqlDatabase(), other);
    QVERIFY(!DbRules::checkCluster(silent, said, {}));
    QCOMPARE(other.rules().value(0), QString("error cluster-not-primary"));
}

void TestCheckDbCluster::aServerThatIsPreparedForAClusterIsReported_data()
{
    QTest::addColumn<ServerSettings>("settings");
    QTest::addColumn<QString>("rule");
    QTest::newRow("no MariaDB") << ServerSettings() << "";
    QTest::newRow("as it is installed")
        << ServerSettings{{"wsrep_on", "OFF"}, {"wsrep_provider", "none"}} << "";
    QTest::newRow("switched on, alone")
        << ServerSettings{{"wsrep_on", "ON"}, {"wsrep_provider", "none"}} << "";
    QTest::newRow("switched off") << healthy({{"wsrep_on", "OFF"}}) << "warning cluster-off";
}

void TestCheckDbCluster::aServerThatIsPreparedForAClusterIsReported()
{
    QFETCH(ServerSettings, settings);
    QFETCH(QString, rule);
    FindingList report;
    DbAssessment check(QSqlDatabase(), report);
    QVERIFY(!isClusterNode(settings));
    DbRules::checkNoCluster(check, settings, false);
    QCOMPARE(report.rules().join('\n'), rule);
    record(report);
}

void TestCheckDbCluster::tablesOfOtherEnginesAreReported()
{
    m_db.run("CREATE VIEW names AS SELECT name FROM people");
    for (const bool areOthers : {false, true}) {
        if (areOthers) {
            m_db.run("ALTER TABLE term_sync ENGINE = MyISAM");
            m_db.run("ALTER TABLE bradm ENGINE = Aria");
        }
        DbSchema schema;
        SqlSession site(m_db.openPluginConnection());
        QVERIFY2(schema.load(site), qPrintable(site.errorString()));
        FindingList report;
        DbAssessment check(QSqlDatabase(), report);
        DbRules::checkClusterTables(check, schema);
        QCOMPARE(report.messages(),
                 areOthers ? QString("Only tables of the engine InnoDB are replicated with their "
                                     "conflicts noticed. These have another one, so that their "
                                     "rows may differ between the nodes: bradm (Aria), term_sync "
                                     "(MyISAM).")
                           : QString());
        record(report);
    }
    m_db.reset();
}

void TestCheckDbCluster::aTableWithoutAPrimaryKeyIsReported()
{
    m_db.run("GRANT SELECT ON term_sync TO yav@localhost");
    for (const bool hasKey : {true, false}) {
        if (!hasKey)
            m_db.removeOwnNumbers();
        DbSchema schema;
        SqlSession site(m_db.openPluginConnection());
        QVERIFY2(schema.load(site), qPrintable(site.errorString()));
        FindingList report;
        DbAssessment check(QSqlDatabase(), report);
        DbRules::checkKeylessTables(check, schema, healthy({}));
        QCOMPARE(report.rules().join('\n'), hasKey ? QString() : "warning cluster-keyless");
        record(report);
    }
    m_db.reset();
}

void TestCheckDbCluster::anotherNodeIsCompared_data()
{
    QTest::addColumn<QString>("failure");
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const char *failure, const char *attribute,
                        const QString &message) {
        QTest::newRow(name) << failure << attribute << message;
    };
    row("the same", "", "", "");
    row("not asked", "Connection refused", "",
        "warning cluster-node-not-asked: The node b was not asked: Connection refused.");
    row("a version", "", "version",
        "note cluster-node-version: The node b differs from this one in its version: 'other', not "
        "'10.11.6-MariaDB'.");
    row("a mode", "", "sqlMode",
        "warning cluster-node-sql-mode: The node b differs from this one in its SQL mode: 'other', "
        "not 'STRICT_TRANS_TABLES'.");
    row("an increment", "", "autoIncrementIncrement",
        "warning cluster-node-increment: The node b differs from this one in its "
        "auto_increment_increment: 'other', not '3'.");
    row("a state", "", "state",
        "warning cluster-not-synced: The node b is not in step with the cluster (state other).");
    row("midnights", "", "midnights",
        "error cluster-node-time-zone: The node b (time zone CET) and this one (CET) disagree "
        "about "
        "when days begin. After a fail-over, days of attendance and vacation would be missed or "
        "duplicated.");
    // In winter CET, in summer CEST.
    row("a name of the zone", "", "timeZone", "");
}

void TestCheckDbCluster::anotherNodeIsCompared()
{
    QFETCH(QString, failure);
    QFETCH(QString, attribute);
    QFETCH(QString, message);
    AskedNode other = node("b");
    other.failure = failure;
    const QHash<QString, QString *> texts{{"version", &other.version},
                                          {"sqlMode", &other.sqlMode},
                                          {"autoIncrementIncrement", &other.autoIncrementIncrement},
                                          {"state", &other.state},
                                          {"timeZone", &other.timeZone}};
    if (QString *const text = texts.value(attribute))
        *text = "other";
    if (attribute == "midnights")
        other.midnights = QStringList{"1", "3"};

    FindingList report;
    DbAssessment check(QSqlDatabase(), report);
    DbRules::checkNodes(check, node("a"), {node("c"), other}, 0);
    QString reported;
    if (!report.findings.isEmpty()) {
        QCOMPARE(report.findings.first().field, QString("b"));
        reported = report.rules().join('\n') + ": " + report.messages();
    }
    QCOMPARE(reported, message);
    QVERIFY(!check.isContractBroken());
    record(report);
}

void TestCheckDbCluster::membersWithoutAnAddressAreReported()
{
    FindingList report;
    DbAssessment check(QSqlDatabase(), report);
    DbRules::checkNodes(check, node("a"), {}, 1);
    QCOMPARE(report.rules().join('\n'), QString("warning cluster-node-not-asked"));
}

void TestCheckDbCluster::addressesOfNodesAreParsed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("host");
    QTest::addColumn<uint>("port");
    QTest::newRow("an address") << "10.0.0.2:3307"
                                << "10.0.0.2" << 3307U;
    QTest::newRow("a name") << "db_2.example"
                            << "db_2.example" << 0U;
    QTest::newRow("of the newer protocol") << "[fd00::2]:3306"
                                           << "fd00::2" << 3306U;
    QTest::newRow("none") << ""
                          << "" << 0U;
    QTest::newRow("unknown to the node") << "AUTO:3306"
                                         << "" << 0U;
    QTest::newRow("a port alone") << ":3306"
                                  << "" << 0U;
}

void TestCheckDbCluster::addressesOfNodesAreParsed()
{
    QFETCH(QString, text);
    QFETCH(QString, host);
    QFETCH(uint, port);
    const auto address = NodeAddress::parse(text);
    QCOMPARE(address.has_value(), !host.isEmpty());
    QCOMPARE(address.value_or(NodeAddress()).host, host);
    QCOMPARE(address.value_or(NodeAddress()).port, port);
}

void TestCheckDbCluster::everyRuleOfClustersHasItsFixtures()
{
    QSet<QString> others;
    const QStringList rules = registeredRules("check-db");
    for (const QString &rule : rules) {
        if (!rule.startsWith("cluster-"))
            others += rule;
    }
    QCOMPARE(others.size() + 15, rules.size());
    QCOMPARE(RuleFixtures::ofReports("check-db").missing("check-db", others), QStringList());
}

QTEST_GUILESS_MAIN(TestCheckDbCluster)
#include "tst_checkdbcluster.moc"
