#include "tests/plugin/plugintest.h"

#include "plugin/interfaces/serverinterface.h"
#include "tests/plugin/pluginini.h"

#include <QTest>

LoadedPlugin &PluginTest::load(const QByteArray &ini, unsigned char debugLevel)
{
    PluginIni::write(ini);
    m_plugin = std::make_unique<LoadedPlugin>();
    m_plugin->server()->setDebugLevel(debugLevel);
    m_plugin->server()->setDatabase(m_db.pluginConnection());
    return *m_plugin;
}

LoadedPlugin &PluginTest::start(const QByteArray &ini, unsigned char debugLevel)
{
    load(ini, debugLevel);
    if (!m_plugin->server()->start())
        qFatal("The plugin does not start");
    if (host().worker() != nullptr)
        host().activity();
    return *m_plugin;
}

void PluginTest::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
}

void PluginTest::init()
{
    m_db.reset();
    PluginIni::remove();
    host().forgetWorker();
    m_log = std::make_unique<LogCapture>();
    m_file = std::make_unique<ExportFile>();
}

void PluginTest::cleanup()
{
    m_plugin.reset();
    // Qt may warn that it is in use: a repeated start leaves a handle of it behind.
    QSqlDatabase::removeDatabase("YAV.tepdb.MirovaHR");
    m_file.reset();
    m_log.reset();
}
