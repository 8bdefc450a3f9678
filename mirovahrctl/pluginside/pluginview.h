#pragma once

#include "mirovahrctl/pluginside/pluginlog.h"
#include "mirovahrctl/site/sqlsession.h"
#include "worker/mhrworker.h"

#include <QSqlDatabase>
#include <QString>

#include <memory>
#include <optional>

struct Configuration;

/// The site's database as the plugin sees it: the plugin's own worker, of which only the reading
/// operations are used, on a connection on which the server itself refuses every write.
class PluginView {
public:
    PluginView();
    ~PluginView();
    PluginView(const PluginView &) = delete;
    PluginView &operator=(const PluginView &) = delete;

    /// Sets up the worker on a connection of its own to the same database as \a site, and loads
    /// what it loads at the beginning of a synchronisation. False when that fails; errorString()
    /// then says why.
    bool open(const QSqlDatabase &site, const Configuration &configuration);

    /// Only after a successful open(), like database() and sql().
    MHRWorker &worker() { return *m_worker; }
    /// The worker's connection.
    QSqlDatabase database() const { return m_database; }
    /// For queries that the worker does not offer.
    SqlSession &sql() { return *m_sql; }

    /// Every error so far, without a full stop; empty when there was none.
    QString errorString() const;
    /// Whether the server still answers.
    bool isConnected() const;

private:
    bool connect(const QSqlDatabase &site);
    bool load();

    const PluginLog m_log;
    std::unique_ptr<MHRWorker> m_worker;
    QSqlDatabase m_database;
    std::optional<SqlSession> m_sql;
    QString m_error;
};
