#pragma once

#include <QSqlDatabase>
#include <QString>

struct DatabaseOptions;

/// A program's own connection to the attendance database, registered with Qt as long as this object
/// lives.
class Database {
public:
    Database(const DatabaseOptions &options, const QString &connectionName);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Opens the connection. False when that fails; errorString() then says why.
    bool open();

    /// Why open() failed, in the database's or the driver's words, and which server it was.
    QString errorString() const;

    /// The handle to work with. Every copy must be gone before this object is.
    QSqlDatabase handle() const;

    /// Whether Qt's driver for MySQL and MariaDB is installed.
    static bool isDriverAvailable();

    /// The advice for a user without it: a sentence without its full stop.
    static QString missingDriverText();

private:
    const QString m_server;
    QSqlDatabase m_connection;
};
