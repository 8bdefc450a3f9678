#pragma once

#include "tests/plugin/hostapplication.h"
#include "tests/plugin/loadedplugin.h"
#include "tests/support/exportfile.h"
#include "tests/support/logcapture.h"
#include "tests/support/testdatabase.h"

#include <QObject>

#include <memory>

/// The fixture of the tests that load the plugin: a database and the plugin. It ticks as
/// configured, and by HostApplication::tick().
class PluginTest : public QObject {
    Q_OBJECT

protected:
    /// Loads the plugin with this configuration, as a server does, and does not yet start it.
    LoadedPlugin &load(const QByteArray &ini, unsigned char debugLevel = 2);
    /// As above, started, with its worker ready.
    LoadedPlugin &start(const QByteArray &ini, unsigned char debugLevel = 2);
    static HostApplication &host() { return *HostApplication::instance(); }

    TestDatabase m_db;
    std::unique_ptr<LogCapture> m_log; ///< of one test function
    std::unique_ptr<ExportFile> m_file; ///< of one test function, not yet written
    std::unique_ptr<LoadedPlugin> m_plugin;

protected Q_SLOTS:
    void cleanup();

private Q_SLOTS:
    void initTestCase();
    void init();
};
