#pragma once

#include <QPluginLoader>

class ServerInterface;
class VerInfoInterface;

/// The built plugin library, loaded as a server does it. Owns the plugin object.
class LoadedPlugin {
public:
    LoadedPlugin();
    ~LoadedPlugin();
    LoadedPlugin(const LoadedPlugin &) = delete;
    LoadedPlugin &operator=(const LoadedPlugin &) = delete;

    static QString path();

    QObject *object() { return m_loader.instance(); }
    ServerInterface *operator->() { return m_server; }
    ServerInterface *server() { return m_server; }
    VerInfoInterface *verInfo() { return m_verInfo; }
    void unload(); ///< Now, and not at the end of this object.

private:
    QPluginLoader m_loader;
    ServerInterface *m_server;
    VerInfoInterface *m_verInfo;
};
