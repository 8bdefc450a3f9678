#pragma once

#include "privatedb/privatemariadb.h"

#include <QSqlDatabase>
#include <QString>

struct PreviewSchema;

/// The database server that holds the copy. Server and copy are gone with this object.
class PreviewServer {
public:
    PreviewServer() = default;
    /// Every copy of the connections must be gone before.
    ~PreviewServer();
    PreviewServer(const PreviewServer &) = delete;
    PreviewServer &operator=(const PreviewServer &) = delete;

    /// Starts the server with the ways of the site's. False when that fails. A server that runs
    /// goes on, for the next copy.
    bool start(const PreviewSchema &schema);

    /// An open connection of the administrator.
    QSqlDatabase administrator() const;
    /// An open connection with all rights on the copy, such as an attendance server has. For the
    /// time when the copy is there.
    QSqlDatabase attendance() const;

    /// Why start() failed, a sentence without its full stop.
    QString errorText() const { return m_error; }

private:
    bool connectToServer();
    bool fail(const QString &error);

    PrivateMariaDb m_server;
    QString m_error;
};
