#include "plugin/datadirhelper.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>

QString DataDirHelper::dataDir = QStringLiteral("data");
QString DataDirHelper::logsDir = QStringLiteral("logs");

namespace {

QString directoryIn(const char *parent)
{
    return QLatin1String(parent) + QLatin1Char('/') + QCoreApplication::applicationName().toLower();
}

} // namespace

QString DataDirHelper::getDataDir(bool validate, const QString & /*name*/)
{
    const QString path = directoryIn("/etc");
    if (validate)
        validateDir(path);
    dataDir = path;
    return path;
}

QString DataDirHelper::getLogsDir(const QString & /*name*/)
{
    const QString path = directoryIn("/var/log");
    validateDir(path);
    logsDir = path;
    return path;
}

void DataDirHelper::validateDir(const QString &path)
{
    if (!QFileInfo::exists(path) && !QDir().mkpath(path))
        qCritical("Directory '%s' is not created!", qUtf8Printable(path));
    if (!QFileInfo(path).isWritable())
        qCritical("Directory '%s' is not writable!", qUtf8Printable(path));
}
