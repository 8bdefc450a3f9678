#pragma once

#include "mirovahrctl/preview/previewrefusal.h"
#include "mirovahrctl/site/sqlsession.h"

#include <QHash>
#include <QPair>
#include <QSet>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

#include <optional>

/// Readable names for the ids in the tables, from the copy after the synchronisation. An id that is
/// not there gets its kind and number. The names are in the language in use.
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
    /// Whether it is the fund of the vacation, counted in days.
    bool isVacation(const QString &fid);

    /// Why names are missing although the copy may have them; nothing when all could be read.
    std::optional<PreviewRefusal> refusal() const;

private:
    /// Makes the name of an id by the row that a query has found; the row is empty when there is
    /// none.
    using Namer = QString (*)(const QString &id, const QStringList &row);

    /// The name by the result of a query with a place for the id; empty without an id.
    QString known(const char *sql, const QString &id, const Namer &namer);

    SqlSession m_copy;
    QHash<QPair<const char *, QString>, QString> m_known; ///< by query and id
    QHash<QString, quint32> m_uids; ///< by pid
};
