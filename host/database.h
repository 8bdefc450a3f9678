#pragma once

#include <QSqlDatabase>
#include <QString>

struct DatabaseOptions;

/// The host's own connection to the attendance database, registered with Qt under a fixed name as
/// long as this object lives.
class Database {
public:
    explicit Database(const DatabaseOptions &options);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Opens the connection. False when that fails; errorText() then says why.
    bool open();

    /// Why open() failed, in the database's or the driver's words.
    QString errorText() const;

    /// The handle to pass to a plugin. Every copy must be gone before this object is.
    QSqlDatabase handle() const;

    /// Whether Qt's driver for MySQL and MariaDB is installed.
    static bool isDriverAvailable();

private:
    QSqlDatabase m_connection;
};
