#include "plugin/interfaces/serverinterface.h"
#include "plugin/interfaces/verinfointerface.h"
#include "tests/plugin/hostapplication.h"
#include "tests/plugin/loadedplugin.h"
#include "tests/plugin/pluginini.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QMetaMethod>
#include <QSqlDatabase>
#include <QTest>
#include <QThread>

#include <memory>

namespace {

const QString kNoIni = "W MirovaHR: INI file not found on: \"/etc/yav/MirovaHR.ini\"";

} // namespace

/// No test here ticks: the database of these tests does not exist.
class TestPluginLifecycle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void aMissingIniFileIsLoggedWhenThePluginIsMade();
    void aFolderIsNoIniFile();
    void anExistingIniFileIsNotLogged();
    void startWithoutAnIniFileRunsWithTheDefaults();
    void everyOperationIsLogged_data();
    void everyOperationIsLogged();
    void anotherStartStartsTheWorkerAgain();
    void pauseAndResumeAreStopAndStart();
    void beforeStartTheOtherOperationsOnlyLog();
    void aDisabledPluginReportsSuccessAndDoesNothing_data();
    void aDisabledPluginReportsSuccessAndDoesNothing();
    void aDisabledPluginStaysDisabled();
    void initReportsADisabledPlugin();
    void initIsTheOnlySlotOfItsOwn();
    void theVersionIsTheSameInEveryState();
    void theVersionInformationIsTheSameInEveryState();
    void withoutALevelNothingIsLogged();
    void theLevelOfTheStartIsTheWorkersLevel();
    void theWorkersThreadHasALowPriority();
    void theConfigurationIsReadOnce();
    void destroyingARunningPluginEndsItsThread();

private:
    QStringList takeLines();

    QSqlDatabase m_hosts;
    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<LoadedPlugin> m_plugin;

    ServerInterface *load(unsigned char debugLevel);
};

namespace {

int threadCount()
{
    return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

} // namespace

/// The plugin with its level and database set, not yet started.
ServerInterface *TestPluginLifecycle::load(unsigned char debugLevel)
{
    m_plugin = std::make_unique<LoadedPlugin>();
    m_plugin->server()->setDebugLevel(debugLevel);
    m_plugin->server()->setDatabase(m_hosts);
    return m_plugin->server();
}

/// What was logged since the last call, by the worker's thread too.
QStringList TestPluginLifecycle::takeLines()
{
    if (HostApplication::instance()->worker() != nullptr)
        HostApplication::instance()->activity();
    const QStringList lines = m_log->lines();
    m_log->clear();
    return lines;
}

void TestPluginLifecycle::initTestCase()
{
    m_hosts = QSqlDatabase::addDatabase("QMYSQL", "host");
    m_hosts.setDatabaseName("tepdb");
    m_hosts.setConnectOptions("UNIX_SOCKET=/nowhere");
}

void TestPluginLifecycle::init()
{
    HostApplication::instance()->forgetWorker();
    PluginIni::write("");
    m_log = std::make_unique<LogCapture>();
}

void TestPluginLifecycle::cleanup()
{
    m_plugin.reset();
    // Qt may warn that it is in use: a repeated start leaves a handle of it behind.
    QSqlDatabase::removeDatabase("YAV.tepdb.MirovaHR");
    m_log.reset();
}

void TestPluginLifecycle::cleanupTestCase()
{
    m_hosts = QSqlDatabase();
    QSqlDatabase::removeDatabase("host");
}

void TestPluginLifecycle::aMissingIniFileIsLoggedWhenThePluginIsMade()
{
    PluginIni::remove();
    load(0);
    QCOMPARE(m_log->lines(), QStringList(kNoIni));
}

void TestPluginLifecycle::aFolderIsNoIniFile()
{
    PluginIni::remove();
    QVERIFY(QDir().mkdir(PluginIni::path()));
    load(0);
    QVERIFY(QDir().rmdir(PluginIni::path()));
    QCOMPARE(m_log->lines(), QStringList(kNoIni));
}

void TestPluginLifecycle::anExistingIniFileIsNotLogged()
{
    load(2);
    QCOMPARE(m_log->lines(), QStringList());
}

void TestPluginLifecycle::startWithoutAnIniFileRunsWithTheDefaults()
{
    PluginIni::remove();
    QVERIFY(load(1)->start());
    QCOMPARE(HostApplication::instance()->periods(), QVector<int>{60000});
    QCOMPARE(HostApplication::instance()->activity(), QVector<bool>{true});
    QCOMPARE(
        takeLines(),
        QStringList({kNoIni, "D Start MirovaHR..", "D MirovaHR::init()",
                     "D MHRWorker::setTepDb(YAV.tepdb.MirovaHR)", "D MHRWorker::setMes() count: 0)",
                     "D MHRWorker::start()", "D MHRWorker::init()"}));
}

void TestPluginLifecycle::everyOperationIsLogged_data()
{
    QTest::addColumn<int>("debugLevel");
    QTest::addColumn<bool>("logged");
    QTest::newRow("level 0") << 0 << false;
    QTest::newRow("level 1") << 1 << true;
    QTest::newRow("level 2") << 2 << true;
    QTest::newRow("level 255") << 255 << true;
}

void TestPluginLifecycle::everyOperationIsLogged()
{
    QFETCH(int, debugLevel);
    QFETCH(bool, logged);
    const auto expected = [logged](const QStringList &lines) {
        return logged ? lines : QStringList();
    };
    ServerInterface *const plugin = load(static_cast<unsigned char>(debugLevel));
    QVERIFY(plugin->start());
    QCOMPARE(
        takeLines(),
        expected({"D Start MirovaHR..", "D MirovaHR::init()",
                  "D MHRWorker::setTepDb(YAV.tepdb.MirovaHR)", "D MHRWorker::setMes() count: 0)",
                  "D MHRWorker::start()", "D MHRWorker::init()"}));
    plugin->stop();
    QCOMPARE(takeLines(), expected({"D Stop MirovaHR..", "D MHRWorker::init()"}));
    plugin->pause();
    QCOMPARE(takeLines(), expected({"D Pause MirovaHR..", "D MHRWorker::init()"}));
    plugin->resume();
    QCOMPARE(takeLines(),
             expected({"D Resume MirovaHR..", "D MHRWorker::start()", "D MHRWorker::init()"}));
    QVERIFY(plugin->start());
    QCOMPARE(takeLines(),
             expected({"D Start MirovaHR..", "D MHRWorker::start()", "D MHRWorker::init()"}));
    m_plugin.reset();
    QCOMPARE(m_log->lines(), QStringList());
}

void TestPluginLifecycle::anotherStartStartsTheWorkerAgain()
{
    const HostApplication *const host = HostApplication::instance();
    ServerInterface *const plugin = load(0);
    QVERIFY(plugin->start());
    const QObject *const worker = host->worker();
    plugin->stop();
    QCOMPARE(host->activity(), QVector<bool>{false});
    QVERIFY(plugin->start());
    QCOMPARE(host->worker(), worker);
    QCOMPARE(host->activity(), QVector<bool>({false, true}));
}

void TestPluginLifecycle::pauseAndResumeAreStopAndStart()
{
    const HostApplication *const host = HostApplication::instance();
    ServerInterface *const plugin = load(0);
    QVERIFY(plugin->start());
    plugin->pause();
    QCOMPARE(host->activity(), QVector<bool>{false});
    plugin->resume();
    QCOMPARE(host->activity(), QVector<bool>({false, true}));
}

void TestPluginLifecycle::beforeStartTheOtherOperationsOnlyLog()
{
    ServerInterface *const plugin = load(1);
    plugin->stop();
    plugin->pause();
    plugin->resume();
    QCOMPARE(m_log->lines(),
             QStringList({"D Stop MirovaHR..", "D Pause MirovaHR..", "D Resume MirovaHR.."}));
    QVERIFY(HostApplication::instance()->worker() == nullptr);
}

void TestPluginLifecycle::aDisabledPluginReportsSuccessAndDoesNothing_data()
{
    QTest::addColumn<int>("debugLevel");
    QTest::addColumn<QStringList>("expected");
    const QString disabled = "W MirovaHR is DISABLED";
    QTest::newRow("level 0") << 0 << QStringList(disabled);
    QTest::newRow("level 1") << 1
                             << QStringList({"D Start MirovaHR..", "D MirovaHR::init()", disabled});
}

void TestPluginLifecycle::aDisabledPluginReportsSuccessAndDoesNothing()
{
    QFETCH(int, debugLevel);
    QFETCH(QStringList, expected);
    PluginIni::write("enabled=false\n");
    ServerInterface *const plugin = load(static_cast<unsigned char>(debugLevel));
    const int threads = threadCount();
    QVERIFY(plugin->start());
    QCOMPARE(m_log->lines(), expected);
    // Not more: one of an earlier plugin may have been on its way out.
    QVERIFY(threadCount() <= threads);
    QVERIFY(HostApplication::instance()->worker() == nullptr);
}

void TestPluginLifecycle::aDisabledPluginStaysDisabled()
{
    PluginIni::write("enabled=false\n");
    ServerInterface *const plugin = load(1);
    QVERIFY(plugin->start());
    m_log->clear();

    PluginIni::write("enabled=true\n");
    QVERIFY(plugin->start());
    plugin->stop();
    plugin->pause();
    plugin->resume();
    QVERIFY(plugin->start());
    QCOMPARE(m_log->lines(),
             QStringList({"D Start MirovaHR..", "D Stop MirovaHR..", "D Pause MirovaHR..",
                          "D Resume MirovaHR..", "D Start MirovaHR.."}));
    QVERIFY(HostApplication::instance()->worker() == nullptr);
}

void TestPluginLifecycle::initReportsADisabledPlugin()
{
    PluginIni::write("enabled=false\n");
    load(0);
    bool result = true;
    QVERIFY(QMetaObject::invokeMethod(m_plugin->object(), "init", Qt::DirectConnection,
                                      Q_RETURN_ARG(bool, result)));
    QVERIFY(!result);
    QCOMPARE(m_log->lines(), QStringList("W MirovaHR is DISABLED"));
    QVERIFY(m_plugin->server()->start());
}

void TestPluginLifecycle::initIsTheOnlySlotOfItsOwn()
{
    load(0);
    const QMetaObject *const meta = m_plugin->object()->metaObject();
    QCOMPARE(meta->methodCount() - meta->methodOffset(), 1);
    const QMetaMethod method = meta->method(meta->methodOffset());
    QCOMPARE(method.methodSignature(), QByteArray("init()"));
    QCOMPARE(method.typeName(), "bool");
    QCOMPARE(int(method.methodType()), int(QMetaMethod::Slot));
    QCOMPARE(int(method.access()), int(QMetaMethod::Public));
    QCOMPARE(QByteArray(meta->superClass()->className()), QByteArray("QObject"));
}

void TestPluginLifecycle::theVersionIsTheSameInEveryState()
{
    ServerInterface *const plugin = load(0);
    const QString version = "1.5.3";
    QCOMPARE(plugin->getVersion(), version);
    plugin->start();
    QCOMPARE(plugin->getVersion(), version);
    plugin->pause();
    QCOMPARE(plugin->getVersion(), version);
    plugin->resume();
    QCOMPARE(plugin->getVersion(), version);
    plugin->stop();
    QCOMPARE(plugin->getVersion(), version);
    m_plugin.reset();

    PluginIni::write("enabled=false\n");
    load(0)->start();
    QCOMPARE(m_plugin->server()->getVersion(), version);
}

void TestPluginLifecycle::theVersionInformationIsTheSameInEveryState()
{
    load(0);
    const QMap<QString, QString> info = m_plugin->verInfo()->getVerInfo();
    QCOMPARE(info.keys(), QStringList({"BUILD", "TEPDB", "VER", "corvaType"}));
    QCOMPARE(info.value("TEPDB"), QString("20.11.26"));
    QCOMPARE(info.value("VER"), QString("1.5.3"));
    QCOMPARE(info.value("corvaType"), QString("PLG.MH"));
    QVERIFY(QRegularExpression("^\\d{10}$").match(info.value("BUILD")).hasMatch());
    m_plugin->server()->start();
    QCOMPARE(m_plugin->verInfo()->getVerInfo(), info);
}

void TestPluginLifecycle::theLevelOfTheStartIsTheWorkersLevel()
{
    ServerInterface *const plugin = load(0);
    QVERIFY(plugin->start());
    plugin->setDebugLevel(1);
    plugin->stop();
    QCOMPARE(takeLines(), QStringList("D Stop MirovaHR.."));
}

void TestPluginLifecycle::withoutALevelNothingIsLogged()
{
    m_plugin = std::make_unique<LoadedPlugin>();
    QVERIFY(m_plugin->server()->start());
    m_plugin->server()->stop();
    QCOMPARE(takeLines(), QStringList());
}

void TestPluginLifecycle::theWorkersThreadHasALowPriority()
{
    QVERIFY(load(0)->start());
    QCOMPARE(HostApplication::instance()->worker()->thread()->priority(), QThread::LowPriority);
}

void TestPluginLifecycle::theConfigurationIsReadOnce()
{
    PluginIni::write("timerInterval=30\n");
    ServerInterface *const plugin = load(0);
    QVERIFY(plugin->start());
    PluginIni::write("timerInterval=40\nenabled=false\n");
    QVERIFY(plugin->start());
    QCOMPARE(HostApplication::instance()->periods(), QVector<int>({30000, 30000}));
}

void TestPluginLifecycle::destroyingARunningPluginEndsItsThread()
{
    QVERIFY(load(0)->start());
    bool ended = false;
    connect(HostApplication::instance()->worker()->thread(), &QThread::finished,
            [&ended] { ended = true; });
    m_plugin.reset();
    QVERIFY(ended);
}

int main(int argc, char *argv[])
{
    HostApplication application(argc, argv);
    TestPluginLifecycle test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pluginlifecycle.moc"
