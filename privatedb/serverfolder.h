#pragma once

#include "privatedb/guardedfolder.h"

#include <QString>

#include <memory>

/// The folder of one private server, and where in it everything lies.
class ServerFolder {
public:
    using AtTheEnd = GuardedFolder::AtTheEnd;

    /// Makes the folder in \a baseDir. False when that fails, with the reason in \a error.
    bool make(const QString &baseDir, AtTheEnd atTheEnd, QString &error);

    QString path() const { return m_folder ? m_folder->path() : QString(); }
    QString dataDir() const { return path() + QStringLiteral("/data"); }
    QString temporaryDir() const { return path() + QStringLiteral("/tmp"); }
    QString pluginDir() const { return path() + QStringLiteral("/plugins"); } ///< stays empty
    QString socketPath() const { return path() + QStringLiteral("/s"); }
    QString pidFile() const { return path() + QStringLiteral("/server.pid"); }
    QString errorLogPath() const { return path() + QStringLiteral("/error.log"); }
    QString passwordFile() const { return path() + QStringLiteral("/password"); }

    /// As GuardedFolder's.
    void belongToThisProcess() const { m_folder->belongToThisProcess(); }

private:
    std::unique_ptr<GuardedFolder> m_folder;
};
