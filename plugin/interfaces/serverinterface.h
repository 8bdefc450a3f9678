#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QtPlugin>

/// What the attendance server expects of every plugin: life cycle, debug level, database handle.
///
/// The order of the virtual operations is the binary contract with the server. It must not change,
/// and nothing may be inserted.
///
/// Calling order: construct (plugin loader), setDebugLevel(), setDatabase(), start(); later any of
/// stop(), pause(), resume(), start(); finally destroy.
class ServerInterface {
public:
    virtual ~ServerInterface() = default;

    /// The plugin's version, for example "1.5.3".
    virtual QString getVersion() const = 0;

    /// Starts the plugin's work. False when the plugin could not start; a plugin that its
    /// configuration disables reports true and does nothing.
    virtual bool start() = 0;

    /// Stops the plugin's work until the next start() or resume().
    virtual void stop() = 0;

    /// Suspends the plugin's work until resume().
    virtual void pause() = 0;

    /// Continues after pause() or stop().
    virtual void resume() = 0;

    /// Sets how much the plugin logs: 0 no debug output, 1 normal, 2 and more verbose.
    /// To be called before start().
    virtual void setDebugLevel(unsigned char level) { m_debugLevel = level; }

    /// Sets the server's connection to the attendance database. To be called before start().
    virtual void setDatabase(const QSqlDatabase &database) { m_database = database; }

protected:
    unsigned char m_debugLevel = 0;
    QSqlDatabase m_database;
};

Q_DECLARE_INTERFACE(ServerInterface, "com.vantor-la.yav.ServerInterface")
