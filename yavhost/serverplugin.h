#pragma once

#include <QMap>
#include <QPluginLoader>
#include <QString>

class ServerInterface;

/// One plugin of the attendance server, used only through the server's two interfaces.
class ServerPlugin {
public:
    explicit ServerPlugin(const QString &library);
    /// Unloads the plugin.
    ~ServerPlugin();
    ServerPlugin(const ServerPlugin &) = delete;
    ServerPlugin &operator=(const ServerPlugin &) = delete;

    /// Loads the library and makes the plugin object. False when the library cannot be loaded or is
    /// no plugin of the server; errorString() then says why.
    bool load();

    /// Why load() failed.
    QString errorString() const { return m_error; }

    /// The library's metadata, which needs no plugin object: IID and class name.
    QMap<QString, QString> metaData() const;

    /// The version information of the plugin object; empty without VerInfoInterface.
    QMap<QString, QString> versionInfo();

    /// The plugin object; null unless load() succeeded.
    ServerInterface *server() const { return m_server; }

    /// Destroys the plugin object, which first finishes the work that it has begun.
    void unload();

private:
    bool fail(const QString &reason);

    QPluginLoader m_loader;
    ServerInterface *m_server = nullptr;
    QString m_error;
};
