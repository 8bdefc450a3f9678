#include "tests/plugin/loadedplugin.h"

#include "plugin/interfaces/serverinterface.h"
#include "plugin/interfaces/verinfointerface.h"

LoadedPlugin::LoadedPlugin()
    : m_loader(path())
    , m_server(qobject_cast<ServerInterface *>(m_loader.instance()))
    , m_verInfo(qobject_cast<VerInfoInterface *>(m_loader.instance()))
{
    if (m_server == nullptr || m_verInfo == nullptr)
        qFatal("The plugin could not be loaded: %s", qPrintable(m_loader.errorString()));
}

LoadedPlugin::~LoadedPlugin()
{
    unload();
}

QString LoadedPlugin::path()
{
    return MIROVAHR_LIBRARY;
}

void LoadedPlugin::unload()
{
    m_loader.unload();
}
