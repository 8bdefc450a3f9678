#include <QtTest>
class TestClusterService : public QObject {
    Q_OBJECT
};
QTEST_GUILESS_MAIN(TestClusterService)
#include "tst_clusterservice.moc"
