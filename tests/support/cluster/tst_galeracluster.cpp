#include "tests/support/cluster/galeracluster.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QTest>

namespace {

/// What the first column of the first row of a query is, or the database's error.
QString answer(ClusterNode &node, const QString &sql)
{
    QString result;
    {
        QSqlDatabase database = node.addConnection("answer");
        database.open();
        QSqlQuery query(database);
        const bool done = query.exec(sql);
        result = done && query.next() ? query.value(0).toString() : query.lastError().text();
    }
    QSqlDatabase::removeDatabase("answer");
    return result;
}

} // namespace

/// The private cluster itself.
class TestGaleraCluster : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();

    void everyNodeHasWhatAnotherWrites();
    void aNodeThatWasStoppedGetsWhatItMissed();
    void aNodeThatWasKilledGetsWhatItMissed();
    void aNodeThatWasAwayTooLongGetsACopyOfAnother();
    void theAdministratorIsReachedByTheSocketOnly();

private:
    GaleraCluster m_cluster;
};

void TestGaleraCluster::initTestCase()
{
    QVERIFY2(m_cluster.start({}, PrivateMariaDb::HostRights::All),
             qPrintable(m_cluster.errorString()));
    QCOMPARE(answer(m_cluster.node(1), "CREATE TABLE t (id INT PRIMARY KEY)"), QString());
    QVERIFY2(m_cluster.waitUntilSettled(), qPrintable(m_cluster.errorString()));
}

void TestGaleraCluster::everyNodeHasWhatAnotherWrites()
{
    QCOMPARE(answer(m_cluster.node(2), "INSERT INTO t VALUES (1)"), QString());
    QVERIFY2(m_cluster.waitUntilSettled(), qPrintable(m_cluster.errorString()));
    for (int number = 1; number <= m_cluster.size(); ++number)
        QCOMPARE(answer(m_cluster.node(number), "SELECT id FROM t WHERE id = 1"), "1");
}

void TestGaleraCluster::aNodeThatWasStoppedGetsWhatItMissed()
{
    ClusterNode &node = m_cluster.node(3);
    QVERIFY2(node.stop(), qPrintable(node.errorString()));
    QVERIFY2(m_cluster.waitUntilSettled(), qPrintable(m_cluster.errorString()));
    answer(m_cluster.node(2), "INSERT INTO t VALUES (2)");
    QVERIFY2(node.start(), qPrintable(node.errorString()));
    QCOMPARE(answer(node, "SELECT id FROM t WHERE id = 2"), "2");
}

void TestGaleraCluster::aNodeThatWasKilledGetsWhatItMissed()
{
    ClusterNode &node = m_cluster.node(1);
    node.kill();
    QVERIFY2(m_cluster.waitUntilSettled(), qPrintable(m_cluster.errorString()));
    answer(m_cluster.node(2), "INSERT INTO t VALUES (3)");
    QVERIFY2(node.start(), qPrintable(node.errorString()));
    QCOMPARE(answer(node, "SELECT id FROM t WHERE id = 3"), "3");
}

void TestGaleraCluster::aNodeThatWasAwayTooLongGetsACopyOfAnother()
{
    ClusterNode &node = m_cluster.node(3);
    QVERIFY2(node.stop(), qPrintable(node.errorString()));
    QVERIFY2(m_cluster.waitUntilSettled(), qPrintable(m_cluster.errorString()));
    answer(m_cluster.node(2), "INSERT INTO t VALUES (4)");
    node.forgetPosition();
    QVERIFY2(node.start(), qPrintable(node.errorString()));
    QVERIFY2(node.log().contains("SST received"), qPrintable(node.log()));
    QCOMPARE(answer(node, "SELECT id FROM t WHERE id = 4"), "4");
}

void TestGaleraCluster::theAdministratorIsReachedByTheSocketOnly()
{
    QSqlDatabase database = m_cluster.node(1).addConnection("administrator");
    QVERIFY(database.open());
    database.close();
    database.setUserName("root");
    database.setPassword(QString());
    QVERIFY(!database.open());
}

QTEST_GUILESS_MAIN(TestGaleraCluster)

#include "tst_galeracluster.moc"
