#include "mirovahrctl/preview/previewnames.h"

#include "cli/text.h"

namespace {

constexpr char kPersonOfUid[] =
    "SELECT CONCAT_WS(' ', pamId, name, surname) FROM people WHERE uid = %1";
constexpr char kPersonOfPid[] =
    "SELECT CONCAT_WS(' ', pamId, name, surname) FROM people WHERE pid = %1";
constexpr char kBranch[] = "SELECT name FROM branches WHERE bid = %1";
constexpr char kCalendar[] = "SELECT calendarID FROM groups WHERE gid = %1";
// By the person of the personal number who is active, or was.
constexpr char kAdministrator[] =
    "SELECT (SELECT CONCAT_WS(' ', pamId, name, surname) FROM people WHERE pamId LIKE "
    "CONCAT(personalNumber, '.%') ORDER BY status DESC, pamId LIMIT 1), personalNumber FROM admins "
    "WHERE aid = %1";
constexpr char kBranchOfTerminal[] =
    "SELECT (SELECT name FROM branches b WHERE b.bid = t.bid) FROM term t WHERE tid = %1";
constexpr char kIsVacation[] = "SELECT iid = 3 AND unit = 2 FROM funds WHERE fid = %1";

} // namespace

PreviewNames::PreviewNames(const QSqlDatabase &copy)
    : m_copy(copy)
{
    m_copy.prepareForCopying();
}

QString PreviewNames::personOfUid(const QString &uid)
{
    return known(kPersonOfUid, uid, [](const QString &id, const QStringList &row) {
        return row.value(0).isEmpty() ? Text::tr("the person with the uid %1").arg(id)
                                      : row.value(0);
    });
}

QString PreviewNames::personOfPid(const QString &pid)
{
    return known(kPersonOfPid, pid, [](const QString &id, const QStringList &row) {
        return row.value(0).isEmpty() ? Text::tr("the person with the pid %1").arg(id)
                                      : row.value(0);
    });
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
    return known(kBranch, bid, [](const QString &id, const QStringList &row) {
        return row.value(0).isEmpty() ? Text::tr("branch %1").arg(id) : row.value(0);
    });
}

QString PreviewNames::calendarGroup(const QString &gid)
{
    return known(kCalendar, gid, [](const QString &id, const QStringList &row) {
        return row.value(0).isEmpty() ? Text::tr("group %1").arg(id)
                                      : Text::tr("group %1 (calendar %2)").arg(id, row.value(0));
    });
}

QString PreviewNames::administrator(const QString &aid)
{
    return known(kAdministrator, aid, [](const QString &id, const QStringList &row) {
        if (!row.value(0).isEmpty())
            return Text::tr("administrator %1 (%2)").arg(id, row.value(0));
        return row.value(1).isNull()
            ? Text::tr("administrator %1").arg(id)
            : Text::tr("administrator %1 (personal number %2)").arg(id, row.value(1));
    });
}

QString PreviewNames::terminal(const QString &tid)
{
    return known(kBranchOfTerminal, tid, [](const QString &id, const QStringList &row) {
        return row.value(0).isEmpty() ? Text::tr("terminal %1").arg(id)
                                      : Text::tr("terminal %1 (%2)").arg(id, row.value(0));
    });
}

bool PreviewNames::isVacation(const QString &fid)
{
    const QString cell = known(
        kIsVacation, fid, [](const QString &, const QStringList &row) { return row.value(0); });
    return cell == QLatin1String("1");
}

std::optional<PreviewRefusal> PreviewNames::refusal() const
{
    if (!m_copy.failed())
        return std::nullopt;
    return PreviewRefusal{m_copy.isLost() ? ExitStatus::NoDatabase : ExitStatus::ContractBroken,
                          Text::tr("The names in the copy cannot be read: %1. Run check-db for "
                                   "details")
                              .arg(m_copy.errorString())};
}

QString PreviewNames::known(const char *sql, const QString &id, const Namer &namer)
{
    if (id.isEmpty())
        return QString();
    const QPair<const char *, QString> key(sql, id);
    const auto found = m_known.constFind(key);
    if (found != m_known.constEnd())
        return *found;
    // A place of its own, not that of arg(): a query may hold "%".
    QString filled = QLatin1String(sql);
    filled.replace(QLatin1String("%1"), SqlSession::literal(id));
    QStringList row = m_copy.row(filled);
    if (!row.isEmpty())
        row.first() = row.constFirst().simplified();
    return *m_known.insert(key, namer(id, row));
}
