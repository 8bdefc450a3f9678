#include "privatedb/serverfolder.h"

#include <QFile>
#include <QTemporaryDir>

#include <sys/un.h>

ServerFolder::ServerFolder() = default;

ServerFolder::~ServerFolder() = default;

bool ServerFolder::make(const QString &baseDir, bool keep, QString &error)
{
    m_folder = std::make_unique<QTemporaryDir>(baseDir + QStringLiteral("/mhrdb-XXXXXX"));
    if (!m_folder->isValid()) {
        error = QStringLiteral("No folder for the private MariaDB server could be made in %1: %2")
                    .arg(baseDir)
                    .arg(m_folder->errorString());
        return false;
    }
    constexpr int longest = int(sizeof(sockaddr_un::sun_path)) - 1;
    if (QFile::encodeName(socketPath()).size() > longest) {
        error = QStringLiteral("The socket path %1 is longer than %2 bytes: "
                               "set TMPDIR to a folder with a shorter name.")
                    .arg(socketPath())
                    .arg(longest);
        m_folder.reset();
        return false;
    }
    m_folder->setAutoRemove(!keep);
    return true;
}

QString ServerFolder::path() const
{
    return m_folder ? m_folder->path() : QString();
}
