#pragma once

#include "privatedb/privatemariadb.h"
#include "tools/previewfolder.h"

#include <QSqlDatabase>
#include <QString>

struct PreviewSchema;

/// The database server that holds the copy. Server and copy are gone with this object, and also
/// when the program is killed.
class PreviewServer {
public:
    PreviewServer() = default;
    /// Every copy of the connections must be gone before.
    ~PreviewServer();
    PreviewServer(const PreviewServer &) = delete;
    PreviewServer &operator=(const PreviewServer &) = delete;

    /// Starts the server with the ways of the site's. False when that fails.
    bool start(const PreviewSchema &schema);

    /// Open connections: the administrator's, and one with all rights on the copy such as an
    /// attendance server has.
    QSqlDatabase administrator() const;
    QSqlDatabase attendance() const;

    /// Why start() failed, a sentence without its full stop.
    QString errorText() const { return m_error; }

private:
    bool open(const QString &name, PrivateMariaDb::Account account);
    bool fail(const QString &error);

    PreviewFolder m_folder;
    PrivateMariaDb m_server;
    QString m_error;
};
