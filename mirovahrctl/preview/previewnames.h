#pragma once

#include "mirovahrctl/site/sqlsession.h"

#include <QHash>
#include <QSet>
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
    /// 0 when there is nobody with the pid.
    quint32 uidOfPid(const QString &pid);
    /// The uids of the people whom \a id names: a payroll id such as "1234.1", a personal number,
    /// or a pid.
    QSet<quint32> uidsNamed(const QString &id);
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
    QHash<QString, quint32> m_uids; ///< by pid
};
