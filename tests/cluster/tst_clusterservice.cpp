#include "tests/cluster/attendancecluster.h"
#include "tests/support/exportfile.h"
#include "tests/support/programrun.h"
#include "tests/support/testdatabase.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QtTest>

#include <csignal>

namespace {

constexpr int kPeople = 60;
constexpr char kIni[] = "/etc/yav/MirovaHR.ini";

} // namespace

/// The loaded plugin in a host, with a cluster behind HAProxy and nodes in every state.
class TestClusterService : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void theFirstLoadReachesEveryNode();
    void theCheckPassesASyncedNode();
    void theCheckRefusesANodeThatIsNotPrimary();
    void theCheckRefusesANodeThatLagsBehind();
    void theCheckRefusesAFrozenNode();
    void aNodeThatIsNotPrimaryCostsThePluginItsExport();
    void withAReadTimeoutAFrozenNodeIsLeft();
    void aLaggingNodeShowsOldRowsUnlessReadsWait();
    void aNodeInAnotherTimeZoneComputesOtherMidnights();

private:
    QStringList arguments(const QStringList &place) const;
    QStringList throughTheProxy();
    void setPassword(ProgramRun &host);
    int checkOf(int number);
    void isolate(int number, bool isolated);
    int people(int number);

    AttendanceCluster m_cluster;
    ExportFile m_export;
    int m_firstNumber = 40000;
};

void TestClusterService::initTestCase()
{
    QVERIFY2(QFileInfo(QStringLiteral("/etc/.machine")).isDir(),
             "This test writes to /etc/yav: run it with scripts/private-view.");
    QVERIFY2(m_cluster.start(), qPrintable(m_cluster.errorString()));
    QFile ini(kIni);
    QVERIFY(ini.open(QIODevice::WriteOnly));
    ini.write(QStringLiteral("timerInterval=1\nimportFile=\"%1\"\n").arg(m_export.path()).toUtf8());
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
    isolate(1, false);
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

void TestClusterService::aNodeInAnotherTimeZoneComputesOtherMidnights()
{
    const QString midnight = "SELECT midnightFromTs(1700000000)";
    QSet<QString> midnights;
    for (int number : {1, 2}) {
        TestDatabase database;
        QVERIFY(database.attach(m_cluster.node(number).server()));
        if (number == 2)
            database.run("SET SESSION time_zone = '-11:00'");
        midnights += database.value(midnight).toString();
    }
    QCOMPARE(midnights.size(), 2);
}

QTEST_GUILESS_MAIN(TestClusterService)

#include "tst_clusterservice.moc"
