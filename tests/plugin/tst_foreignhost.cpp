// A server that was built without this project: it knows the two interfaces by their ids and by the
// order of their operations, from declarations of its own.

#include "tests/plugin/hostapplication.h"
#include "tests/plugin/loadedplugin.h"
#include "tests/plugin/pluginini.h"
#include "tests/support/logcapture.h"

#include <QMap>
#include <QPluginLoader>
#include <QPointer>
#include <QSqlDatabase>
#include <QTest>

class ServerInterface {
public:
    virtual ~ServerInterface() = default;
    virtual QString getVersion() const = 0;
    virtual bool start() = 0;
    virtual void stop() = 0;
    virtual void pause() = 0;
    virtual void resume() = 0;
    virtual void setDebugLevel(unsigned char) = 0;
    virtual void setDatabase(const QSqlDatabase &) = 0;
};

class VerInfoInterface {
public:
    virtual ~VerInfoInterface() = default;
    virtual QMap<QString, QString> getVerInfo() const = 0;
};

Q_DECLARE_INTERFACE(ServerInterface, "com.vantor-la.yav.ServerInterface")
Q_DECLARE_INTERFACE(VerInfoInterface, "com.vantor-la.VerInfoInterface")

class TestForeignHost : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyOperationIsInItsPlace();
    void thePluginIsDestroyedThroughTheServerInterface();
    void thePluginIsDestroyedThroughTheVersionInterface();
};

void TestForeignHost::everyOperationIsInItsPlace()
{
    PluginIni::write("");
    QPluginLoader loader(LoadedPlugin::path());
    auto *const server = qobject_cast<ServerInterface *>(loader.instance());
    auto *const versions = qobject_cast<VerInfoInterface *>(loader.instance());
    QVERIFY(server != nullptr);
    QVERIFY(versions != nullptr);
    const auto ofTheWorker = [] {
        HostApplication::instance()->activity();
    };

    const LogCapture log;
    QCOMPARE(server->getVersion(), QString("1.5.3"));
    QCOMPARE(versions->getVerInfo().value("corvaType"), QString("PLG.MH"));
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QMYSQL", "foreign");
        database.setDatabaseName("named");
        server->setDatabase(database);
    }
    server->setDebugLevel(1);
    QVERIFY(server->start());
    ofTheWorker();
    server->stop();
    server->resume();
    ofTheWorker();
    server->pause();
    QCOMPARE(
        log.lines(),
        QStringList({"D Start MirovaHR..", "D MirovaHR::init()",
                     "D MHRWorker::setTepDb(YAV.named.MirovaHR)", "D MHRWorker::setMes() count: 0)",
                     "D MHRWorker::start()", "D MHRWorker::init()", "D Stop MirovaHR..",
                     "D MHRWorker::init()", "D Resume MirovaHR..", "D MHRWorker::start()",
                     "D MHRWorker::init()", "D Pause MirovaHR..", "D MHRWorker::init()"}));
    QVERIFY(loader.unload());
    QSqlDatabase::removeDatabase("YAV.named.MirovaHR");
    QSqlDatabase::removeDatabase("foreign");
}

void TestForeignHost::thePluginIsDestroyedThroughTheServerInterface()
{
    PluginIni::write("");
    QPluginLoader loader(LoadedPlugin::path());
    const QPointer<QObject> plugin = loader.instance();
    auto *const server = qobject_cast<ServerInterface *>(plugin);
    QVERIFY(server->start());
    delete server;
    QVERIFY(plugin == nullptr);
    loader.unload();
}

void TestForeignHost::thePluginIsDestroyedThroughTheVersionInterface()
{
    PluginIni::write("");
    QPluginLoader loader(LoadedPlugin::path());
    const QPointer<QObject> plugin = loader.instance();
    delete qobject_cast<VerInfoInterface *>(plugin);
    QVERIFY(plugin == nullptr);
    loader.unload();
}

int main(int argc, char *argv[])
{
    HostApplication application(argc, argv);
    TestForeignHost test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_foreignhost.moc"
