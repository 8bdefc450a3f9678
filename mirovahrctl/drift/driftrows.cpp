#include "mirovahrctl/drift/driftrows.h"

#include "db/tepdbsettings.h"
#include "mirovahrctl/pluginside/pluginview.h"
#include "mirovahrctl/site/payrollexports.h"
#include "worker/recorddates.h"

#include <QDate>
#include <QVariant>

namespace {

constexpr char kPeople[] = "SELECT pid, uid, type, status, GREATEST(IFNULL(created, 0), "
                           "IFNULL(edited, 0)) FROM people WHERE pid IS NOT NULL";
constexpr char kReceivers[] = "SELECT uid, aid FROM admins_people WHERE request ORDER BY uid, aid";
constexpr char kPeopleOfAdministrators[] = "SELECT aid, uid FROM admins_people";
constexpr char kMembers[] = "SELECT bid, uid, IFNULL(since, 0) FROM brape";
constexpr char kTerminals[] = "SELECT bid, tid FROM term WHERE status > 0 AND bid IS NOT NULL";
constexpr char kPeopleOfTerminals[] = "SELECT tid, uid FROM people_term";
constexpr char kAdministrators[] = "SELECT bid, aid FROM bradm";
constexpr char kPlan[] = "SELECT uid, since, gid FROM groups_plan";
constexpr char kBindings[] = "SELECT uid FROM people_pam";

// The months that are not as the plugin fills them when it plans a group: with the group that was
// planned last by then.
constexpr char kMonths[] =
    "SELECT m.uid, m.month, m.gid, p.gid FROM groups_month m JOIN groups_plan p ON p.uid = m.uid "
    "AND p.since = (SELECT MAX(since) FROM groups_plan b WHERE b.uid = m.uid AND b.since <= "
    "m.month) WHERE m.gid <> p.gid ORDER BY m.uid, m.month";

// The balance as the plugin sums it up: fund (%1), first second of the month (%2) and of today
// (%3).
constexpr char kBalances[] = "SELECT uid, SUM(value) FROM funds_move WHERE fid = %1 AND (day < %2 "
                             "OR type = 3 AND day < %3) GROUP BY uid";

// Only terminals of status 1 are marked when something is queued for them.
constexpr char kUnmarked[] = "SELECT DISTINCT tid FROM term JOIN term_sync s USING (tid) WHERE "
                             "status = 1 AND NOT syn & 2 AND s.flags & 2 ORDER BY tid";

quint32 id(const QStringList &row, int column)
{
    return row.at(column).toUInt();
}

DriftRows::Pair pair(const QStringList &row)
{
    return {id(row, 0), id(row, 1)};
}

/// Calls \a take for each row of a query.
template <typename Take> void each(SqlSession &site, const QString &sql, Take take)
{
    site.forEachRow(sql, [&take](const QStringList &row) {
        take(row);
        return true;
    });
}

template <typename Take> void each(SqlSession &site, const char *sql, Take take)
{
    each(site, QString(QLatin1String(sql)), take);
}

} // namespace

bool DriftRows::read(PluginView &view)
{
    readPeople(view.sql());
    readBranches(view.sql());
    readCalendars(view.sql());
    readPayroll(view);
    const QDate today = QDate::currentDate();
    const qint64 month = RecordDates::midnight(QDate(today.year(), today.month(), 1));
    each(view.sql(),
         QString(QLatin1String(kBalances))
             .arg(view.worker().vacationFundId())
             .arg(month)
             .arg(RecordDates::midnight(today)),
         [this](const QStringList &row) { balances[id(row, 0)] = row.at(1).toLongLong(); });
    return !view.sql().failed();
}

void DriftRows::readPeople(SqlSession &site)
{
    each(site, kPeople, [this](const QStringList &row) {
        people[id(row, 0)] = {id(row, 1), id(row, 2), id(row, 3) != 0, row.at(4).toLongLong()};
    });
    each(site, kReceivers,
         [this](const QStringList &row) { requestReceivers[id(row, 0)] += id(row, 1); });
    each(site, kPeopleOfAdministrators,
         [this](const QStringList &row) { peopleOfAdministrators += pair(row); });
    each(site, kPeopleOfTerminals,
         [this](const QStringList &row) { peopleOfTerminals += pair(row); });
}

void DriftRows::readBranches(SqlSession &site)
{
    each(site, kMembers,
         [this](const QStringList &row) { members[pair(row)] = row.at(2).toLongLong(); });
    each(site, kTerminals, [this](const QStringList &row) { terminals[id(row, 0)] += id(row, 1); });
    each(site, kAdministrators,
         [this](const QStringList &row) { administrators[id(row, 0)] += id(row, 1); });
    each(site, kUnmarked, [this](const QStringList &row) { unmarkedTerminals += id(row, 0); });
}

void DriftRows::readCalendars(SqlSession &site)
{
    each(site, kPlan, [this](const QStringList &row) { plan[pair(row)] = id(row, 2); });
    each(site, kMonths, [this](const QStringList &row) {
        months[id(row, 0)] += Month{id(row, 1), id(row, 2), id(row, 3)};
    });
}

void DriftRows::readPayroll(PluginView &view)
{
    each(view.sql(), kBindings, [this](const QStringList &row) { payrollBindings += id(row, 0); });
    const QStringList exports = payrollExports(view.sql());
    payrollSelection = exports.size() == 1 ? payrollSelectionKey(exports.first()) : QString();
    if (payrollSelection.isEmpty())
        return;
    const QStringList pids = TepDbSettings(view.database())
                                 .variableGet(payrollSelection, QVariant())
                                 .toString()
                                 .split(QLatin1Char(','), Qt::SkipEmptyParts);
    selectedPids = QSet<QString>(pids.cbegin(), pids.cend());
}
