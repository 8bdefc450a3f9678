#include "mirovahrctl/preview/previewnames.h"

namespace {

constexpr char kPersonOfUid[] =
    "SELECT CONCAT_WS(' ', pamId, name, surname) FROM people WHERE uid = %1";
constexpr char kPersonOfPid[] =
    "SELECT CONCAT_WS(' ', pamId, name, surname) FROM people WHERE pid = %1";
constexpr char kBranch[] = "SELECT IF(name = '', CONCAT('branch ', bid), name) FROM branches WHERE "
                           "bid = %1";
constexpr char kCalendarGroup[] =
    "SELECT CONCAT('group ', gid, ' (calendar ', calendarID, ')') FROM groups WHERE gid = %1";
constexpr char kAdministratorName[] =
    "SELECT CONCAT('administrator ', aid, IFNULL(CONCAT(' (', IFNULL((SELECT CONCAT_WS(' ', "
    "pamId, name, surname) FROM people WHERE pamId LIKE CONCAT(personalNumber, '.%') ORDER BY "
    "status DESC, pamId LIMIT 1), CONCAT('personal number ', personalNumber)), ')'), '')) FROM "
    "admins WHERE aid = %1";
constexpr char kTerminal[] =
    "SELECT CONCAT('terminal ', tid, IFNULL((SELECT CONCAT(' (', name, ')') FROM branches b WHERE "
    "b.bid = t.bid AND name <> ''), '')) FROM term t WHERE tid = %1";
constexpr char kFund[] = "SELECT IF(iid = 3 AND unit = 2, 'vacation', CONCAT('fund ', fid)) FROM "
                         "funds WHERE fid = %1";

} // namespace

PreviewNames::PreviewNames(const QSqlDatabase &copy)
    : m_copy(copy)
{
    m_copy.prepareForCopying();
}

QString PreviewNames::personOfUid(const QString &uid)
{
    return nameOf(kPersonOfUid, QStringLiteral("the person with the uid"), uid);
}

QString PreviewNames::personOfPid(const QString &pid)
{
    return nameOf(kPersonOfPid, QStringLiteral("the person with the pid"), pid);
}

quint32 PreviewNames::uidOfPid(const QString &pid)
{
    const auto known = m_uids.constFind(pid);
    if (known != m_uids.constEnd())
        return *known;
    const QString sql = QStringLiteral("SELECT uid FROM people WHERE pid = ");
    const quint32 uid = m_copy.value(sql + SqlSession::literal(pid)).toUInt();
    m_uids.insert(pid, uid);
    return uid;
}

QSet<quint32> PreviewNames::uidsNamed(const QString &id)
{
    QSet<quint32> uids;
    const QString text = SqlSession::literal(id);
    const QVector<QStringList> rows = m_copy.rows(
        QStringLiteral("SELECT uid FROM people WHERE pamId = %1 OR SUBSTRING_INDEX(pamId, '.', 1) "
                       "= %1 OR CAST(pid AS CHAR) = %1")
            .replace(QLatin1String("%1"), text));
    for (const QStringList &row : rows)
        uids += row.constFirst().toUInt();
    return uids;
}

QString PreviewNames::branch(const QString &bid)
{
    return nameOf(kBranch, QStringLiteral("branch"), bid);
}

QString PreviewNames::calendarGroup(const QString &gid)
{
    return nameOf(kCalendarGroup, QStringLiteral("group"), gid);
}

QString PreviewNames::administrator(const QString &aid)
{
    return nameOf(kAdministratorName, QStringLiteral("administrator"), aid);
}

QString PreviewNames::terminal(const QString &tid)
{
    return nameOf(kTerminal, QStringLiteral("terminal"), tid);
}

QString PreviewNames::fund(const QString &fid)
{
    return nameOf(kFund, QStringLiteral("fund"), fid);
}

QString PreviewNames::nameOf(const char *sql, const QString &kind, const QString &id)
{
    if (id.isEmpty())
        return QString();
    const QString key = kind + QLatin1Char(' ') + id;
    const auto known = m_known.constFind(key);
    if (known != m_known.constEnd())
        return *known;
    // A place of its own, not that of arg(): a query may hold "%".
    QString filled = QLatin1String(sql);
    filled.replace(QLatin1String("%1"), SqlSession::literal(id));
    const QString name = m_copy.value(filled).simplified();
    m_known.insert(key, name.isEmpty() ? key : name);
    return m_known.value(key);
}
