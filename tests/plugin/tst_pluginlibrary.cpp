#include "plugin/interfaces/serverinterface.h"
#include "plugin/interfaces/verinfointerface.h"
#include "tests/plugin/hostapplication.h"
#include "tests/plugin/loadedplugin.h"
#include "tests/plugin/pluginini.h"
#include "tests/support/logcapture.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <QPointer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// Before anything in this program loads the library.
class TestPluginLibrary : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void metadataIsReadWithoutMakingThePlugin();
    void bothInterfacesAreFound();
    void thePluginAnswersToItsNames_data();
    void thePluginAnswersToItsNames();
    void thereIsOneInstanceInTheProcess();
    void aDeletedInstanceIsCreatedAgain();
    void onlyTheEntryPointsOfThePluginLoaderAreExported();
    void installPutsTheLibraryIntoThePluginDirectory();
    void textsThatNoRunReachesAreInTheLibrary_data();
    void textsThatNoRunReachesAreInTheLibrary();

private:
    QByteArray
    output(const QString &program, const QStringList &arguments,
           const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment()) const;
};

void TestPluginLibrary::init()
{
    PluginIni::write("");
}

/// What a program writes, or its error when it fails.
QByteArray TestPluginLibrary::output(const QString &program, const QStringList &arguments,
                                     const QProcessEnvironment &environment) const
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (process.waitForFinished(kPatienceMs) && process.exitCode() == 0)
        return process.readAllStandardOutput();
    return program.toUtf8() + " failed: " + process.readAllStandardError();
}

void TestPluginLibrary::metadataIsReadWithoutMakingThePlugin()
{
    PluginIni::remove();
    const LogCapture log;
    const QPluginLoader loader(LoadedPlugin::path());
    const QJsonObject metadata = loader.metaData();
    QCOMPARE(metadata.value("IID").toString(), QString("com.vantor-la.yav.ServerInterface"));
    QCOMPARE(metadata.value("className").toString(), QString("MirovaHR"));
    // An empty object is left out.
    QVERIFY(!metadata.contains("MetaData"));
    QVERIFY(!loader.isLoaded());
    // A plugin object would warn of the missing file.
    QCOMPARE(log.lines(), QStringList());
}

void TestPluginLibrary::bothInterfacesAreFound()
{
    LoadedPlugin plugin;
    QCOMPARE(plugin->getVersion(), QString("1.5.3"));
    QCOMPARE(plugin.verInfo()->getVerInfo().value("VER"), QString("1.5.3"));
    QCOMPARE(plugin.object()->metaObject()->className(), "MirovaHR");
}

void TestPluginLibrary::thePluginAnswersToItsNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("as");
    QTest::newRow("class") << QByteArray("MirovaHR") << QByteArray("object");
    QTest::newRow("server") << QByteArray("ServerInterface") << QByteArray("server");
    QTest::newRow("server id") << QByteArray("com.vantor-la.yav.ServerInterface")
                               << QByteArray("server");
    QTest::newRow("version") << QByteArray("VerInfoInterface") << QByteArray("version");
    QTest::newRow("version id") << QByteArray("com.vantor-la.VerInfoInterface")
                                << QByteArray("version");
    QTest::newRow("other") << QByteArray("com.vantor-la.ServerInterface") << QByteArray("nothing");
}

void TestPluginLibrary::thePluginAnswersToItsNames()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, as);
    LoadedPlugin plugin;
    const QMap<QByteArray, void *> parts = {
        {"object", plugin.object()},
        {"server", plugin.server()},
        {"version", plugin.verInfo()},
        {"nothing", nullptr},
    };
    QCOMPARE(plugin.object()->qt_metacast(name.constData()), parts.value(as));
}

void TestPluginLibrary::thereIsOneInstanceInTheProcess()
{
    PluginIni::remove();
    const LogCapture log;
    QPluginLoader first(LoadedPlugin::path());
    QPluginLoader second(LoadedPlugin::path());
    QVERIFY(first.load());
    QCOMPARE(log.lines(), QStringList());
    QObject *const instance = first.instance();
    QVERIFY(instance != nullptr);
    QCOMPARE(first.instance(), instance);
    QCOMPARE(second.instance(), instance);
    // Made once, when it was first asked for.
    QCOMPARE(log.lines(),
             QStringList("W MirovaHR: INI file not found on: \"/etc/yav/MirovaHR.ini\""));
    second.unload();
    QVERIFY(first.unload());
}

void TestPluginLibrary::aDeletedInstanceIsCreatedAgain()
{
    using EntryPoint = QObject *(*)();
    QLibrary library(LoadedPlugin::path());
    const auto instance = reinterpret_cast<EntryPoint>(library.resolve("qt_plugin_instance"));
    QVERIFY(instance != nullptr);
    const QPointer<QObject> first = instance();
    QVERIFY(first != nullptr);
    QCOMPARE(instance(), first.data());
    delete first.data();
    QVERIFY(first == nullptr);

    QObject *const second = instance();
    QVERIFY(qobject_cast<ServerInterface *>(second) != nullptr);
    QCOMPARE(instance(), second);
    delete second;
}

void TestPluginLibrary::onlyTheEntryPointsOfThePluginLoaderAreExported()
{
    QStringList names;
    const QByteArray listing = output(NM_PROGRAM, {"-D", "--defined-only", LoadedPlugin::path()});
    for (const QByteArray &line : listing.trimmed().split('\n'))
        names += QString::fromUtf8(line.mid(line.lastIndexOf(' ') + 1));
    names.sort();
    QCOMPARE(names, QStringList({"qt_plugin_instance", "qt_plugin_query_metadata"}));
}

void TestPluginLibrary::installPutsTheLibraryIntoThePluginDirectory()
{
    const QTemporaryDir root;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DESTDIR", root.path());
    const QByteArray report =
        output(CMAKE_PROGRAM, {"--install", BUILD_DIR, "--prefix", INSTALL_PREFIX}, environment);

    const QPluginLoader loader(root.path() + PLUGIN_DIR "/libmirovahr.so");
    QVERIFY2(QFile::exists(loader.fileName()), report.constData());
    QCOMPARE(loader.metaData().value("className").toString(), QString("MirovaHR"));
}

void TestPluginLibrary::textsThatNoRunReachesAreInTheLibrary_data()
{
    QTest::addColumn<QByteArray>("text");
    // init() fails only when it has disabled the plugin, which counts as started.
    QTest::newRow("plugin") << QByteArray("MirovaHR not start properly - init failed!");
    // Its own init() never fails.
    QTest::newRow("worker") << QByteArray(
        "MHRWorker NOT initialized properly - START was terminated!");
}

void TestPluginLibrary::textsThatNoRunReachesAreInTheLibrary()
{
    QFETCH(QByteArray, text);
    QFile library(LoadedPlugin::path());
    QVERIFY(library.open(QIODevice::ReadOnly));
    QVERIFY(library.readAll().contains('\0' + text + '\0'));
}

int main(int argc, char *argv[])
{
    HostApplication application(argc, argv);
    TestPluginLibrary test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pluginlibrary.moc"
