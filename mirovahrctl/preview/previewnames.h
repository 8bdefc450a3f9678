#pragma once

#include "mirovahrctl/site/sqlsession.h"

#include <QHash>
#include <QSqlDatabase>
#include <QString>

/// Readable names for the ids in the tables, from the copy after the synchronisation. An id that is
/// not there gets its kind and number.
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
    /// The result of a query with a placeholder for the id; \a kind and the id when there is none.
    QString nameOf(const char *sql, const QString &kind, const QString &id);

    SqlSession m_copy;
    QHash<QString, QString> m_known;
};
