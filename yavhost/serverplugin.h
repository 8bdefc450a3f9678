#pragma once

#include <QMap>
#include <QPluginLoader>
#include <QString>

class ServerInterface;

/// One plugin of the attendance server, known only by the two interfaces of the server.
class ServerPlugin {
public:
    explicit ServerPlugin(const QString &library);
    /// Unloads the plugin.
    ~ServerPlugin();
    ServerPlugin(const ServerPlugin &) = delete;
    ServerPlugin &operator=(const ServerPlugin &) = delete;

    /// Loads the library and makes the plugin object. False when the library cannot be loaded or is
    /// no plugin of the server; errorText() then says why.
    bool load();

    /// Why load() failed.
    QString errorText() const { return m_errorText; }

    /// What the library says of itself without the plugin object: IID and class name.
    QMap<QString, QString> metaData() const;

    /// What the plugin object says of itself; empty when it does not implement VerInfoInterface.
    QMap<QString, QString> versionInfo();

    /// The plugin object; null unless load() succeeded.
    ServerInterface *server() const { return m_server; }

    /// Destroys the plugin object, which waits for the work that it has begun.
    void unload();

private:
    bool fail(const QString &reason);

    QPluginLoader m_loader;
    ServerInterface *m_server = nullptr;
    QString m_errorText;
};
