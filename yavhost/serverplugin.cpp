#include "yavhost/serverplugin.h"

#include "plugin/interfaces/serverinterface.h"
#include "plugin/interfaces/verinfointerface.h"

#include <QFileInfo>
#include <QJsonObject>

ServerPlugin::ServerPlugin(const QString &library)
    : m_loader(QFileInfo(library).absoluteFilePath())
{
}

ServerPlugin::~ServerPlugin()
{
    unload();
}

bool ServerPlugin::load()
{
    const QString iid = metaData().value(QStringLiteral("IID"));
    if (!iid.isEmpty() && iid != QLatin1String(qobject_interface_iid<ServerInterface *>()))
        return fail(QStringLiteral("it is a plugin for '%1'").arg(iid));
    m_server = qobject_cast<ServerInterface *>(m_loader.instance());
    return m_server != nullptr || fail(m_loader.errorString());
}

QMap<QString, QString> ServerPlugin::metaData() const
{
    const QJsonObject data = m_loader.metaData();
    QMap<QString, QString> result;
    for (const QString &key : {QStringLiteral("IID"), QStringLiteral("className")})
        result.insert(key, data.value(key).toString());
    return result;
}

QMap<QString, QString> ServerPlugin::versionInfo()
{
    const auto *informer = qobject_cast<VerInfoInterface *>(m_loader.instance());
    return informer != nullptr ? informer->getVerInfo() : QMap<QString, QString>();
}

void ServerPlugin::unload()
{
    m_server = nullptr;
    m_loader.unload();
}

bool ServerPlugin::fail(const QString &reason)
{
    m_error = reason;
    return false;
}
