#include "privatedb/hostaccount.h"
#include "tests/cluster/attendancecluster.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/exportfile.h"
#include "tests/support/programrun.h"
#include "tests/support/testdatabase.h"
#include "tests/worker/support/middayzone.h"
#include "tests/worker/support/sampleexport.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

#include <csignal>
#include <memory>

namespace {

constexpr int kPeople = 60;
constexpr char kIni[] = "/etc/yav/MirovaHR.ini";

/// A connection through the proxy.
class Client {
public:
    explicit Client(AttendanceCluster &cluster)
        : m_name(QUuid::createUuid().toString())
    {
        QSqlDatabase database = cluster.node(1).server().addConnection(m_name);
        database.setConnectOptions("UNIX_SOCKET=" + cluster.proxy().socketPath());
        database.open();
    }
    ~Client() { QSqlDatabase::removeDatabase(m_name); }
    Client(const Client &) = delete;
    Client &operator=(const Client &) = delete;

    /// Name of the node at its other end; empty when the connection has ended.
    QString node() const
    {
        QSqlQuery query(QSqlDatabase::database(m_name, false));
        const bool answered = query.exec("SELECT @@wsrep_node_name") && query.next();
        return answered ? query.value(0).toString() : QString();
    }

private:
    const QString m_name;
};

/// A time zone in which the day begins an hour later than in that of the program, as MariaDB names
/// it. In the program's it is past one o'clock (settleProgram()).
QString zoneOneHourWest()
{
    constexpr int kWesternmost = -12;
    const int hours = QDateTime::currentDateTime().offsetFromUtc() / 3600 - 1;
    return QString::asprintf("%+03d:00", hours < kWesternmost ? hours + 24 : hours);
}

} // namespace

/// The loaded plugin in a host, with a cluster behind HAProxy and nodes in every state.
class TestClusterService : public QObject {
    Q_OBJECT

public:
    static void initMain() { settleProgram(); }

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void theFirstLoadReachesEveryNode();
    void theCheckPassesASyncedNode();
    void theCheckRefusesANodeThatIsNotPrimary();
    void theCheckRefusesANodeThatLagsBehind();
    void theCheckRefusesANodeThatRefusesQueries();
    void theCheckRefusesAFrozenNode();
    void aNodeThatIsNotPrimaryCostsThePluginItsExport();
    void withAReadTimeoutAFrozenNodeIsLeft();
    void aLaggingNodeShowsOldRowsUnlessReadsWait();
    void clientsStayOnTheNodeToWhichTheyFailedOver();
    void theAdministratorTakesEverybodyBackToTheFirstNode();
    void onANodeInAnotherTimeZoneABalanceIsCorrectedTwice();
    void checkDbFindsTheNodeInAnotherTimeZone();

private:
    QString passwordFile() const { return m_folder.filePath("password"); }
    QStringList arguments(const QStringList &place) const;
    QStringList throughTheProxy();
    void setPassword(ProgramRun &host);
    int checkOf(int number);
    void isolate(int number, bool isolated);
    int people(int number);
    std::unique_ptr<Client> clientThatFailedOver();
    void synchroniseBalance(const QString &days);
    ToolRun checkDb(int number);

    AttendanceCluster m_cluster;
    ExportFile m_export;
    QTemporaryDir m_folder;
    int m_firstNumber = 40000;
};

void TestClusterService::initTestCase()
{
    QVERIFY2(QFileInfo(QStringLiteral("/etc/.machine")).isDir(),
             "This test writes to /etc/yav: run it with scripts/private-view.");
    QVERIFY2(m_cluster.start(), qPrintable(m_cluster.errorString()));
    QString error;
    QVERIFY2(HostAccount::writePasswordFile(passwordFile(), error), qPrintable(error));
    QFile ini(kIni);
    QVERIFY(ini.open(QIODevice::WriteOnly));
    // A tick that finds no node is made up for by the next one.
    ini.write(QStringLiteral("timerInterval=1\nsyncInterval=1\nimportFile=\"%1\"\n")
                  .arg(m_export.path())
                  .toUtf8());
}

/// Every function finds all nodes well, and an export with new people.
void TestClusterService::init()
{
    QVERIFY2(m_cluster.restore(), qPrintable(m_cluster.errorString()));
    QVector<ExportRow> rows;
    m_firstNumber += kPeople;
    for (int i = 0; i < kPeople; ++i)
        rows += ExportRow().with(&ExportRow::osobniCislo, m_firstNumber + i);
    m_export.write(rows);
}

void TestClusterService::cleanup()
{
    for (int number = 1; number <= 3; ++number)
        m_cluster.node(number).thaw();
    if (!m_cluster.node(1).server().isRunning())
        return;
    isolate(1, false);
    TestDatabase database;
    QVERIFY(database.attach(m_cluster.node(1).server()));
    database.run("SET GLOBAL time_zone = SYSTEM");
}

QStringList TestClusterService::arguments(const QStringList &place) const
{
    return QStringList{MIROVAHR_PLUGIN, "--database", "tepdb", "--user", "yav"} + place;
}

QStringList TestClusterService::throughTheProxy()
{
    return {"--socket", m_cluster.proxy().socketPath()};
}

void TestClusterService::setPassword(ProgramRun &host)
{
    host.setVariable("YAVHOST_PASSWORD", m_cluster.node(1).server().password());
}

/// Exit status of the check that HAProxy calls.
int TestClusterService::checkOf(int number)
{
    const ClusterNode &node = m_cluster.node(number);
    ProgramRun check;
    check.run(m_cluster.proxy().checkPath(),
              {"", "0", node.address(), QString::number(node.port())});
    return check.status();
}

void TestClusterService::isolate(int number, bool isolated)
{
    TestDatabase database;
    QVERIFY(database.attach(m_cluster.node(number).server()));
    database.run(QStringLiteral("SET GLOBAL wsrep_provider_options = 'gmcast.isolate=%1'")
                     .arg(int(isolated)));
}

/// The people of the export that a node has.
int TestClusterService::people(int number)
{
    TestDatabase database;
    if (!database.attach(m_cluster.node(number).server()))
        return -1;
    return database
        .value(QStringLiteral("SELECT COUNT(*) FROM people WHERE pid DIV 10 BETWEEN %1 AND %2")
                   .arg(m_firstNumber)
                   .arg(m_firstNumber + kPeople - 1))
        .toInt();
}

/// A client that got to node 2 because node 1 was gone. Node 1 is back.
std::unique_ptr<Client> TestClusterService::clientThatFailedOver()
{
    ClusterNode &node = m_cluster.node(1);
    node.kill();
    if (!m_cluster.proxy().waitUntilDown(1))
        return nullptr;
    auto client = std::make_unique<Client>(m_cluster);
    return node.start() && m_cluster.proxy().waitUntilUp(1) ? std::move(client) : nullptr;
}

/// A new plugin reads an export with Jana alone, and this balance.
void TestClusterService::synchroniseBalance(const QString &days)
{
    m_export.write({SampleExport::jana().with(&ExportRow::dovolenaZustatek, days)});
    ProgramRun host;
    setPassword(host);
    QVERIFY(host.run(YAVHOST, arguments(throughTheProxy()) + QStringList{"--once"}));
    COMPARE_STATUS(host, 0);
}

ToolRun TestClusterService::checkDb(int number)
{
    ClusterNode &node = m_cluster.node(number);
    return runTool({"check-db", "--json", "--other-account", "--every-node", "--host",
                    node.address(), "--port", QString::number(node.port()), "--database", "tepdb",
                    "--user", node.server().userName(), "--password-file", passwordFile()});
}

void TestClusterService::theFirstLoadReachesEveryNode()
{
    ProgramRun host;
    setPassword(host);
    QVERIFY(host.run(YAVHOST, arguments(throughTheProxy()) + QStringList{"--once"}));
    COMPARE_STATUS(host, 0);
    QCOMPARE(host.errors(), QString());
    QCOMPARE(m_cluster.inequalities().join('\n'), QString());
    QCOMPARE(people(3), kPeople);
}

void TestClusterService::theCheckPassesASyncedNode()
{
    QCOMPARE(checkOf(2), 0);
}

void TestClusterService::theCheckRefusesANodeThatIsNotPrimary()
{
    isolate(1, true);
    QVERIFY(m_cluster.node(1).waitForStatus("wsrep_cluster_status", "non-Primary"));
    QCOMPARE(checkOf(1), 1);
}

/// Such as one that transfers its state to another.
void TestClusterService::theCheckRefusesANodeThatLagsBehind()
{
    TestDatabase database;
    QVERIFY(database.attach(m_cluster.node(1).server()));
    database.run("SET GLOBAL wsrep_desync = ON");
    QCOMPARE(checkOf(1), 1);
    database.run("SET GLOBAL wsrep_desync = OFF");
}

/// As its administrator tells it to before maintenance. It still answers SHOW.
void TestClusterService::theCheckRefusesANodeThatRefusesQueries()
{
    TestDatabase database;
    QVERIFY(database.attach(m_cluster.node(1).server()));
    database.run("SET GLOBAL wsrep_reject_queries = ALL");
    QCOMPARE(checkOf(1), 1);
    database.run("SET GLOBAL wsrep_reject_queries = NONE");
}

void TestClusterService::theCheckRefusesAFrozenNode()
{
    m_cluster.node(1).freeze();
    QCOMPARE(checkOf(1), 1);
}

/// Why the proxy must not keep clients on such a node: it accepts them.
void TestClusterService::aNodeThatIsNotPrimaryCostsThePluginItsExport()
{
    constexpr int kPeopleNotLoaded = 6;
    ClusterNode &node = m_cluster.node(1);
    isolate(1, true);
    QVERIFY(node.waitForStatus("wsrep_cluster_status", "non-Primary"));
    ProgramRun host;
    setPassword(host);
    QVERIFY(host.run(YAVHOST,
                     arguments({"--host", node.address(), "--port", QString::number(node.port())})
                         + QStringList{"--once"}));
    COMPARE_STATUS(host, kPeopleNotLoaded);
    QVERIFY(!m_export.exists());
    QCOMPARE(people(2), 0);
}

void TestClusterService::withAReadTimeoutAFrozenNodeIsLeft()
{
    m_cluster.node(1).freeze();
    ProgramRun host;
    setPassword(host);
    host.start(YAVHOST,
               arguments(throughTheProxy())
                   + QStringList{"--connect-options",
                                 "MYSQL_OPT_CONNECT_TIMEOUT=2;MYSQL_OPT_READ_TIMEOUT=10"});
    QVERIFY2(host.waitForText("END synchronization #1 "), host.report().constData());
    host.sendSignal(SIGTERM);
    QVERIFY(host.waitForEnd());
    QCOMPARE(people(2), kPeople);
    m_cluster.node(1).thaw();
    QCOMPARE(m_cluster.inequalities().join('\n'), QString());
}

void TestClusterService::aLaggingNodeShowsOldRowsUnlessReadsWait()
{
    const QString read = "SELECT value FROM vars WHERE name = 'lag'";
    TestDatabase writer;
    TestDatabase reader;
    TestDatabase stopper;
    QVERIFY(writer.attach(m_cluster.node(3).server()));
    QVERIFY(reader.attach(m_cluster.node(1).server()));
    QVERIFY(stopper.attach(m_cluster.node(1).server()));
    writer.run("REPLACE INTO vars (name, value) VALUES ('lag', 'old')");
    QVERIFY(m_cluster.node(1).waitUntilCaughtUp());
    // The node takes part in the cluster and applies nothing.
    stopper.run("FLUSH TABLES WITH READ LOCK");
    writer.run("UPDATE vars SET value = 'new' WHERE name = 'lag'");

    reader.run("SET SESSION wsrep_sync_wait = 0");
    QCOMPARE(reader.value(read).toString(), "old");
    reader.run("SET SESSION wsrep_sync_wait = 1");
    stopper.run("UNLOCK TABLES");
    QCOMPARE(reader.value(read).toString(), "new");
}

void TestClusterService::clientsStayOnTheNodeToWhichTheyFailedOver()
{
    const auto client = clientThatFailedOver();
    QVERIFY(client);
    QCOMPARE(client->node(), "node2");
    QCOMPARE(Client(m_cluster).node(), "node2");
    m_cluster.node(2).kill();
    QVERIFY(m_cluster.proxy().waitUntilDown(2));
    QCOMPARE(client->node(), QString());
    QCOMPARE(Client(m_cluster).node(), "node1");
}

void TestClusterService::theAdministratorTakesEverybodyBackToTheFirstNode()
{
    const auto client = clientThatFailedOver();
    QVERIFY(client);
    QCOMPARE(client->node(), "node2");
    m_cluster.proxy().administer("clear table attendance");
    m_cluster.proxy().administer("shutdown sessions server attendance/node2");
    QCOMPARE(client->node(), QString());
    QCOMPARE(Client(m_cluster).node(), "node1");
}

/// The plugin corrects a balance once a day. A node of another zone has another today: it does not
/// see the correction as today's, but as one before.
void TestClusterService::onANodeInAnotherTimeZoneABalanceIsCorrectedTwice()
{
    const QString correction = "SELECT value FROM funds_move WHERE type = 3 AND uid = 4"
                               " ORDER BY day DESC LIMIT 1";
    TestDatabase node;
    QVERIFY(node.attach(m_cluster.node(1).server()));
    synchroniseBalance("20");
    QCOMPARE(node.value(correction).toInt(), 250);
    synchroniseBalance("21.5");
    QCOMPARE(node.value(correction).toInt(), 250);
    node.run("SET GLOBAL time_zone = '" + zoneOneHourWest() + '\'');
    synchroniseBalance("21.5");
    // The difference alone, in the place of the correction that it was to be added to.
    QCOMPARE(node.value(correction).toInt(), 150);
    QCOMPARE(m_cluster.inequalities().join('\n'), QString());
}

void TestClusterService::checkDbFindsTheNodeInAnotherTimeZone()
{
    TestDatabase node;
    QVERIFY(node.attach(m_cluster.node(1).server()));
    node.run("SET GLOBAL time_zone = '" + zoneOneHourWest() + '\'');
    const ToolRun there = checkDb(1);
    COMPARE_EXIT(there, ExitStatus::ContractBroken);
    QCOMPARE(there.findingsOf("time-zone").size(), 1);
    const ToolRun elsewhere = checkDb(2);
    QCOMPARE(elsewhere.findingsOf("time-zone").size(), 0);
    QCOMPARE(elsewhere.findingsOf("cluster-node-time-zone").size(), 1);
}

QTEST_GUILESS_MAIN(TestClusterService)

#include "tst_clusterservice.moc"
