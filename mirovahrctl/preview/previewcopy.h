#pragma once

#include "mirovahrctl/site/sqlsession.h"

#include <QSqlDatabase>
#include <QString>

#include <functional>

class PreviewSelection;
class SqlSession;
struct PreviewProgram;
struct PreviewSchema;
struct PreviewTable;

/// Copies the site's database to another server: once to synchronise, and once as the baseline to
/// compare with. Operations return false when they failed; errorString() then says why.
class PreviewCopy {
public:
    /// Called with the number of rows that are copied, of how many.
    using Listener = std::function<void(qint64 done, qint64 total)>;

    /// \a selection: which rows are copied. \a server: a connection to the other server as its
    /// administrator.
    PreviewCopy(const PreviewSchema &schema, const PreviewSelection &selection,
                const QSqlDatabase &server);

    /// Creates both databases, without routines and triggers, and copies the rows.
    bool copyTables(SqlSession &site, const Listener &listener);
    /// Creates routines and triggers.
    bool createPrograms();

    /// The quoted name of the baseline database.
    static QString baselineName(const PreviewSchema &schema);

    QString errorString() const { return m_error; }

private:
    bool createDatabases();
    bool copyTable(SqlSession &site, const PreviewTable &table, const Listener &listener);
    bool copyRows(SqlSession &site, const PreviewTable &table, const Listener &listener);
    bool keepBaseline(const PreviewTable &table);
    bool createProgram(const PreviewProgram &program);
    bool flush(const PreviewTable &table);
    bool fail(const QString &what, const SqlSession &session);

    const PreviewSchema &m_schema;
    const PreviewSelection &m_selection;
    SqlSession m_server;
    QString m_tuples; ///< rows that are not written yet
    qint64 m_copied = 0;
    QString m_error;
};
