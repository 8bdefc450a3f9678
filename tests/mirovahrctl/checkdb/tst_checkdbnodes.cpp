#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/cluster/galeracluster.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <ctime>

namespace {

const char kZone[] = "Europe/Bratislava";

QString referenceFile(const char *name)
{
    return QStringLiteral(MIROVAHR_REFERENCE_DB_DIR "/%1").arg(name);
}

} // namespace

/// check-db on the nodes of a real cluster.
class TestCheckDbNodes : public QObject {
    Q_OBJECT

public:
    static void initMain()
    {
        qputenv("TZ", kZone);
        tzset();
    }

private Q_SLOTS:
    void initTestCase();
    void init();

    void aHealthyClusterIsFine();
    void settingsOfTheNodeAreReported_data();
    void settingsOfTheNodeAreReported();
    void aNodeThatIsPausedIsReported();
    void aTableWithoutAPrimaryKeyIsReported();
    void aNodeThatDiffersIsReported_data();
    void aNodeThatDiffersIsReported();
    void aNodeThatRefusesTheAccountIsReported();
    void anAddressThatLeadsToAnotherNodeIsReported();
    void aNodeThatRejectsQueriesEndsTheCheck();
    void aNodeThatLostItsClusterEndsTheCheck();

private:
    /// As administrator of a node.
    void run(int node, const QString &sql);
    ToolRun check(const QStringList &more = {});

    QString passwordFile() const { return m_dir.filePath("password"); }

    QTemporaryDir m_dir;
    GaleraCluster m_cluster{3};
};

void TestCheckDbNodes::run(int node, const QString &sql)
{
    QString error;
    {
        QSqlDatabase database = m_cluster.node(node).server().addConnection(
            "administrator", PrivateMariaDb::Account::Administrator);
        database.setDatabaseName("tepdb");
        QSqlQuery query(database.open() ? database : QSqlDatabase());
        if (!query.exec(sql))
            error = database.lastError().text() + query.lastError().text() + " - " + sql;
    }
    QSqlDatabase::removeDatabase("administrator");
    QVERIFY2(error.isEmpty(), qPrintable(error));
}

/// Of the first node.
ToolRun TestCheckDbNodes::check(const QStringList &more)
{
    ClusterNode &node = m_cluster.node(1);
    return runTool(QStringList{"check-db", "--json", "--other-account", "--host", node.address(),
                               "--port", QString::number(node.port()), "--database", "tepdb",
                               "--user", node.server().userName(), "--password-file",
                               passwordFile()}
                   + more);
}

void TestCheckDbNodes::initTestCase()
{
    QString error;
    QVERIFY2(HostAccount::writePasswordFile(passwordFile(), error), qPrintable(error));
    QVERIFY2(m_cluster.start({referenceFile("schema.sql"), referenceFile("routines.sql"),
                              referenceFile("sample.sql")},
                             PrivateMariaDb::HostRights::All),
             qPrintable(m_cluster.errorString()));
}

void TestCheckDbNodes::init()
{
    for (int number = 1; number <= m_cluster.size(); ++number) {
        for (const char *setting :
             {"wsrep_retry_autocommit = 5", "wsrep_sync_wait = 1", "wsrep_sst_method = mariabackup",
              "time_zone = SYSTEM", "sql_mode = DEFAULT", "wsrep_sst_donor_rejects_queries = OFF",
              "auto_increment_increment = 3", "wsrep_on = ON"})
            run(number, QString("SET GLOBAL ") + setting);
    }
}

void TestCheckDbNodes::aHealthyClusterIsFine()
{
    const ToolRun run = check({"--every-node"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY2(run.findings().isEmpty(), run.report().constData());
    const QJsonObject facts = run.json().value("facts").toObject();
    QCOMPARE(facts.value("clusterSize").toInt(), 3);
    QCOMPARE(facts.value("nodeState").toString(), QString("Synced"));
}

void TestCheckDbNodes::settingsOfTheNodeAreReported_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("rule");
    QTest::newRow("few repetitions") << "wsrep_retry_autocommit = 1"
                                     << "cluster-few-retries";
    QTest::newRow("no waiting") << "wsrep_sync_wait = 0"
                                << "cluster-stale-reads";
    QTest::newRow("a donor that does not write") << "wsrep_sst_method = rsync"
                                                 << "cluster-donor-blocked";
    QTest::newRow("a donor that answers nobody") << "wsrep_sst_donor_rejects_queries = ON"
                                                 << "cluster-donor-blocked";
    QTest::newRow("no replication") << "wsrep_on = OFF"
                                    << "cluster-off";
}

void TestCheckDbNodes::settingsOfTheNodeAreReported()
{
    QFETCH(QString, setting);
    QFETCH(QString, rule);
    run(1, "SET GLOBAL " + setting);
    const ToolRun run = check();
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.rules(), QStringList(rule));
}

void TestCheckDbNodes::aNodeThatIsPausedIsReported()
{
    for (const int number : {1, 2}) {
        run(number, "SET GLOBAL wsrep_desync = ON");
        const ToolRun checked = check({"--every-node"});
        run(number, "SET GLOBAL wsrep_desync = OFF");
        COMPARE_EXIT(checked, ExitStatus::Findings);
        QCOMPARE(checked.rules(), QStringList("cluster-not-synced"));
        QVERIFY2(m_cluster.waitUntilSettled(), qPrintable(m_cluster.errorString()));
    }
}

void TestCheckDbNodes::aTableWithoutAPrimaryKeyIsReported()
{
    run(1, "CREATE TABLE kept LIKE term_sync");
    run(1, "ALTER TABLE term_sync DROP id, ENGINE = MyISAM");
    const ToolRun checked = check();
    run(1, "DROP TABLE term_sync");
    run(1, "RENAME TABLE kept TO term_sync");
    COMPARE_EXIT(checked, ExitStatus::Findings);
    QCOMPARE(checked.rules(), QStringList({"cluster-engine", "cluster-keyless"}));
}

void TestCheckDbNodes::aNodeThatDiffersIsReported_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("rule");
    QTest::newRow("a time zone") << "time_zone = '+05:30'"
                                 << "cluster-node-time-zone";
    QTest::newRow("an SQL mode") << "sql_mode = 'ANSI'"
                                 << "cluster-node-sql-mode";
    QTest::newRow("an increment") << "auto_increment_increment = 7"
                                  << "cluster-node-increment";
}

void TestCheckDbNodes::aNodeThatDiffersIsReported()
{
    QFETCH(QString, setting);
    QFETCH(QString, rule);
    run(2, "SET GLOBAL " + setting);
    const ToolRun run = check({"--every-node"});
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.rules(), QStringList(rule));
    QCOMPARE(
        run.findings().first().toObject().value("field").toString(),
        QStringLiteral("%1:%2").arg(m_cluster.node(2).address()).arg(m_cluster.node(2).port()));
    QCOMPARE(check().rules(), QStringList());
}

void TestCheckDbNodes::aNodeThatRefusesTheAccountIsReported()
{
    run(3, "SET GLOBAL init_connect = 'refuse'");
    const ToolRun checked = check({"--every-node"});
    run(3, "SET GLOBAL init_connect = ''");
    COMPARE_EXIT(checked, ExitStatus::Findings);
    QCOMPARE(checked.rules(), QStringList("cluster-node-not-asked"));
    const QString message = checked.findings().first().toObject().value("message").toString();
    QVERIFY2(message.startsWith(QStringLiteral("The node %1:%2 was not asked: ")
                                    .arg(m_cluster.node(3).address())
                                    .arg(m_cluster.node(3).port())),
             qPrintable(message));
}

void TestCheckDbNodes::anAddressThatLeadsToAnotherNodeIsReported()
{
    ClusterNode &node = m_cluster.node(3);
    QVERIFY2(node.stop(), qPrintable(node.errorString()));
    node.setOptions({QStringLiteral("--wsrep-node-incoming-address=%1:%2")
                         .arg(m_cluster.node(2).address())
                         .arg(m_cluster.node(2).port())});
    QVERIFY2(node.start(), qPrintable(node.errorString()));
    init();
    const ToolRun checked = check({"--every-node"});
    COMPARE_EXIT(checked, ExitStatus::Findings);
    QCOMPARE(checked.rules(), QStringList("cluster-node-not-asked"));
    QVERIFY(checked.report().contains("The address leads to a node that was asked already"));
}

void TestCheckDbNodes::aNodeThatRejectsQueriesEndsTheCheck()
{
    run(1, "SET GLOBAL wsrep_reject_queries = ALL");
    const ToolRun checked = check();
    run(1, "SET GLOBAL wsrep_reject_queries = NONE");
    COMPARE_EXIT(checked, ExitStatus::ContractBroken);
    QCOMPARE(checked.rules(), QStringList("cluster-not-synced"));
}

void TestCheckDbNodes::aNodeThatLostItsClusterEndsTheCheck()
{
    m_cluster.node(2).kill();
    m_cluster.node(3).kill();
    QVERIFY2(m_cluster.node(1).waitForStatus("wsrep_cluster_status", "non-Primary"),
             qPrintable(m_cluster.node(1).errorString()));
    const ToolRun checked = check({"--every-node"});
    COMPARE_EXIT(checked, ExitStatus::ContractBroken);
    QCOMPARE(checked.rules(), QStringList("cluster-not-primary"));
}

QTEST_GUILESS_MAIN(TestCheckDbNodes)
#include "tst_checkdbnodes.moc"
