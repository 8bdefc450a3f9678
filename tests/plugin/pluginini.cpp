#include "tests/plugin/pluginini.h"

#include <QFile>
#include <QStorageInfo>

namespace {

void requirePrivateView()
{
    for (const char *folder : {"/etc", "/tmp"}) {
        const QStorageInfo storage(folder);
        if (storage.rootPath() != folder || storage.device() != "private-view")
            qFatal("This program may only run through scripts/private-view");
    }
}

} // namespace

QString PluginIni::path()
{
    requirePrivateView();
    return "/etc/yav/MirovaHR.ini";
}

void PluginIni::write(const QByteArray &content)
{
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
}

void PluginIni::remove()
{
    if (QFile::exists(path()) && !QFile::remove(path()))
        qFatal("%s could not be removed", qPrintable(path()));
}
