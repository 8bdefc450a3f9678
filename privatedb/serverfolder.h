#pragma once

#include <QString>

#include <memory>

class QTemporaryDir;

/// The folder of one private server, and where in it everything lies. It is gone with this object
/// unless it is kept.
class ServerFolder {
public:
    ServerFolder();
    ~ServerFolder();
    ServerFolder(const ServerFolder &) = delete;
    ServerFolder &operator=(const ServerFolder &) = delete;

    /// Makes the folder in \a baseDir. False when that fails, with the reason in \a error.
    bool make(const QString &baseDir, bool keep, QString &error);

    QString path() const; ///< Empty until it is made.
    QString dataDir() const { return path() + QStringLiteral("/data"); }
    QString socketPath() const { return path() + QStringLiteral("/s"); }
    QString pidFile() const { return path() + QStringLiteral("/server.pid"); }
    QString errorLogPath() const { return path() + QStringLiteral("/error.log"); }
    QString passwordFile() const { return path() + QStringLiteral("/password"); }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};
