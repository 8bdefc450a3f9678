#pragma once

#include "mirovahrctl/site/sqlsession.h"

#include <QSqlDatabase>
#include <QString>

#include <functional>

class SqlSession;
struct PreviewProgram;
struct PreviewSchema;
struct PreviewTable;

/// Makes the copy of the site's database on another server: one to work on and one that stays as it
/// is, to compare with. Operations return false when they failed; errorText() then says why.
class PreviewCopy {
public:
    /// How many rows of how many are copied.
    using Listener = std::function<void(qint64 done, qint64 total)>;

    /// \a server: a connection to the other server as its administrator.
    PreviewCopy(const PreviewSchema &schema, const QSqlDatabase &server);

    /// Makes both databases, without routines and triggers, and copies all rows.
    bool copyTables(SqlSession &site, const Listener &listener);
    /// Makes routines and triggers.
    bool makePrograms();

    /// The database that stays as it is, as SQL names it.
    static QString baselineName(const PreviewSchema &schema);

    QString errorText() const { return m_error; }

private:
    bool makeDatabases();
    bool copyTable(SqlSession &site, const PreviewTable &table, const Listener &listener);
    bool copyRows(SqlSession &site, const PreviewTable &table, const Listener &listener);
    bool keepBaseline(const PreviewTable &table);
    bool makeProgram(const PreviewProgram &program);
    bool flush(const PreviewTable &table);
    bool fail(const QString &what, const SqlSession &session);

    const PreviewSchema &m_schema;
    SqlSession m_server;
    QString m_tuples; ///< rows that are not written yet
    qint64 m_copied = 0;
    QString m_error;
};
