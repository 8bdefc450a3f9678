#pragma once

#include "privatedb/privatemariadb.h"

#include <QSqlDatabase>
#include <QString>

struct PreviewSchema;

/// The database server that holds the copy. Both are removed with this object.
class PreviewServer {
public:
    PreviewServer() = default;
    /// All copies of the connections must be destroyed before.
    ~PreviewServer();
    PreviewServer(const PreviewServer &) = delete;
    PreviewServer &operator=(const PreviewServer &) = delete;

    /// Starts the server with the settings of the site's. False when that fails; errorString() then
    /// says why. A server that runs already is used again.
    bool start(const PreviewSchema &schema);

    /// An open connection of the administrator.
    QSqlDatabase administrator() const;
    /// An open connection with all rights on the copy, as an attendance server has. Only while the
    /// copy exists.
    QSqlDatabase attendance() const;

    /// Why start() failed, a sentence without its full stop.
    QString errorString() const { return m_error; }

private:
    bool connectToServer();
    bool fail(const QString &error);

    PrivateMariaDb m_server;
    QString m_error;
};
