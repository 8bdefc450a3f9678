#include "privatedb/serverfolder.h"

#include "cli/text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/un.h>

namespace {

constexpr int kLongestSocketPath = int(sizeof(sockaddr_un::sun_path)) - 1;

/// Why a server cannot have its folder under this path; empty when it can.
QString objectionTo(const QString &path)
{
    const QString socket = path + QStringLiteral("/s");
    if (QFile::encodeName(socket).size() > kLongestSocketPath) {
        return Text::tr("The socket path %1 is longer than %2 bytes: "
                        "set TMPDIR to a folder with a shorter name.")
            .arg(socket)
            .arg(kLongestSocketPath);
    }
    if (path.contains(QLatin1Char(':'))) {
        return Text::tr("mariadbd would take the folder %1 for several, separated by \":\": "
                        "set TMPDIR to a folder with another name.")
            .arg(path);
    }
    return QString();
}

} // namespace

bool ServerFolder::make(const QString &baseDir, AtTheEnd atTheEnd, QString &error)
{
    const QString base = QFileInfo(baseDir).absoluteFilePath();
    const QString name = base + QStringLiteral("/mhrdb-XXXXXX");
    error = objectionTo(name);
    if (!error.isEmpty())
        return false;
    m_folder = std::make_unique<GuardedFolder>(name, atTheEnd);
    if (m_folder->isValid() && QDir().mkdir(temporaryDir()) && QDir().mkdir(pluginDir()))
        return true;
    error = Text::tr("No folder for the private MariaDB server could be made in %1: %2")
                .arg(base)
                .arg(m_folder->isValid() ? qt_error_string() : m_folder->errorString());
    return false;
}
