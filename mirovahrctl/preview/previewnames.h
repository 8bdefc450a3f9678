#pragma once

#include "mirovahrctl/site/sqlsession.h"

#include <QHash>
#include <QSqlDatabase>
#include <QString>

/// What people call the things whose ids stand in the tables, as the copy has them after the run.
class PreviewNames {
public:
    /// \a copy: a connection to the copied database.
    explicit PreviewNames(const QSqlDatabase &copy);

    QString personOfUid(const QString &uid);
    QString personOfPid(const QString &pid);
    QString branch(const QString &bid);
    QString calendarGroup(const QString &gid);
    QString administrator(const QString &aid);
    QString terminal(const QString &tid);
    QString fund(const QString &fid);

private:
    /// The answer to a query with one place for the id; \a kind and the id when there is none.
    QString ask(const char *sql, const QString &kind, const QString &id);

    SqlSession m_copy;
    QHash<QString, QString> m_known;
};
