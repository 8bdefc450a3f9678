#pragma once

#include "plugin/interfaces/serverinterface.h"
#include "plugin/interfaces/verinfointerface.h"

#include <QObject>
#include <QThread>

class MHRWorker;
class QSettings;
struct Configuration;

/// The plugin object that the attendance server loads and drives.
///
/// It owns the configuration file and the worker's thread and passes the server's calls on to the
/// worker; it does no synchronisation work itself. All its operations are called from the
/// server's thread.
class MirovaHR : public QObject, public ServerInterface, public VerInfoInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.vantor-la.yav.ServerInterface")
    Q_INTERFACES(ServerInterface VerInfoInterface)

public:
    /// Opens "/etc/yav/MirovaHR.ini"; a missing file is logged and gives every key its default.
    explicit MirovaHR(QObject *parent = nullptr);

    /// Waits, without a time limit, for a running tick and for the end of the worker's thread.
    ~MirovaHR() override;

    /// Always "1.5.3".
    QString getVersion() const override;

    /// The first call reads the configuration and starts the worker's thread, a later one starts
    /// the worker again. True when the worker runs, and also when the INI key `enabled` is false.
    bool start() override;

    /// Stops the worker's ticks; its thread goes on.
    void stop() override;

    /// The same as stop(): there is no separate paused state.
    void pause() override;

    /// Starts the worker's ticks again.
    void resume() override;

    /// The entries "VER", "corvaType", "TEPDB" and, when the compiler's date is readable, "BUILD".
    QMap<QString, QString> getVerInfo() const override;

public Q_SLOTS:
    /// Reads the configuration file, creates and configures the worker and starts its thread.
    /// False when the INI key `enabled` is false.
    bool init();

private:
    void createWorker(const Configuration &config);

    QSettings *m_settings;
    bool m_initialized = false;
    bool m_enabled = true;
    QThread m_thread;
    /// Deleted by the end of its thread, never by the plugin object.
    MHRWorker *m_worker = nullptr;
};
