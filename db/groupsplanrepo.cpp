#include "db/groupsplanrepo.h"

#include "db/placeholders.h"
#include "db/sqlstatement.h"

#include <QDate>
#include <QDateTime>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace {

const QLatin1String
    kAddPlan("INSERT INTO groups_plan (gid, uid, since) VALUES(%1, %2, %3)"
             " ON DUPLICATE KEY UPDATE gid=VALUES(gid), uid=VALUES(uid), since=VALUES(since);");
const QLatin1String kDel("DELETE FROM groups_plan WHERE gid = %1 AND uid = %2 AND since = %3");
const QLatin1String kUpdateGroupsMonth(
    "INSERT INTO groups_month  (gid, uid, month)"
    " SELECT getCurrentGid(p.uid, monthFromTimestamp(a.date), p.gid) gid, a.uid,"
    " monthFromTimestamp(a.date) month  FROM atten a LEFT JOIN people p USING(uid)"
    " WHERE a.uid=%1 AND monthFromTimestamp(a.date) >= %2 GROUP BY monthFromTimestamp(a.date)"
    " HAVING gid IS NOT NULL"
    " ON DUPLICATE KEY UPDATE gid=VALUES(gid), uid=VALUES(uid), month=VALUES(month);");
const QLatin1String kPlanOfPerson("WHERE uid = %1 ");
const QLatin1String kBegunByMonth("AND since <= %1");
const QLatin1String kBegunByNow("AND since <= DATE_FORMAT(NOW(), '%Y%m')");
const QLatin1String kSelectPlan("SELECT gid FROM groups_plan ");
const QLatin1String kLatestFirst(" ORDER BY since DESC LIMIT 1");
const QLatin1String kSelectDefault("SELECT gid FROM people WHERE uid = %1");

/// The database's error number; -1 when the error is not one of the database.
int errorNumber(const QSqlError &error)
{
    const QString code = error.nativeErrorCode();
    return code.isEmpty() ? -1 : code.toInt();
}

bool failed(const QSqlQuery &query, const char *operation)
{
    const QSqlError error = query.lastError();
    if (!error.isValid())
        return false;
    qCritical("%s - ERROR[%i]: %s", operation, errorNumber(error), qUtf8Printable(error.text()));
    return true;
}

QString planStatement(unsigned int uid, unsigned int month)
{
    QString condition = Placeholders::filled(kPlanOfPerson, uid);
    condition += month != 0 ? Placeholders::filled(kBegunByMonth, month) : QString(kBegunByNow);
    return kSelectPlan + condition + kLatestFirst;
}

unsigned int firstId(QSqlQuery &query)
{
    return query.next() ? query.value(0).toUInt() : 0;
}

} // namespace

GroupsPlanRepo::GroupsPlanRepo(QObject *parent)
    : QObject(parent)
{
}

void GroupsPlanRepo::setDB(const QSqlDatabase &db)
{
    m_db = db;
}

void GroupsPlanRepo::setAutoUpdateGroupsMonth(bool on)
{
    m_autoUpdateGroupsMonth = on;
}

bool GroupsPlanRepo::add(const GroupsPlanRecord &rec)
{
    return changePlan("GroupsPlanRepo::add", kAddPlan, rec);
}

bool GroupsPlanRepo::del(const GroupsPlanRecord &rec)
{
    return changePlan("GroupsPlanRepo::del", kDel, rec);
}

bool GroupsPlanRepo::updateGroupsMonth(unsigned int uid, unsigned int month)
{
    if (debugLevel >= 2)
        qDebug("GroupsPlanRepo::updateGroupsMonth(%u, %u)", uid, month);
    if (uid == 0 || month == 0)
        return false;
    return changesRows(Placeholders::filled(kUpdateGroupsMonth, uid, month),
                       "GroupsPlanRepo::updateGroupsMonth");
}

unsigned int GroupsPlanRepo::getCurrentGid(unsigned int uid, unsigned int month,
                                           bool fallbackToPeople) const
{
    if (uid == 0)
        return 0;
    QSqlQuery plan = SqlStatement::run(m_db, planStatement(uid, month));
    if (failed(plan, "GroupsPlanRepo::getCurrentGid [groups_plan]"))
        return 0;
    const unsigned int gid = firstId(plan);
    if (gid != 0 || !fallbackToPeople)
        return gid;
    QSqlQuery people = SqlStatement::run(m_db, Placeholders::filled(kSelectDefault, uid));
    if (failed(people, "GroupsPlanRepo::getCurrentGid [people]"))
        return 0;
    return firstId(people);
}

unsigned int GroupsPlanRepo::monthFromTimestamp(unsigned int ts)
{
    return monthFromDate(QDateTime::fromSecsSinceEpoch(ts).date());
}

unsigned int GroupsPlanRepo::monthFromDate(const QDate &date)
{
    return date.toString(QStringLiteral("yyyyMM")).toUInt();
}

bool GroupsPlanRepo::changePlan(const char *operation, QLatin1String sql,
                                const GroupsPlanRecord &rec)
{
    if (debugLevel >= 2)
        qDebug("%s(%s)", operation, qUtf8Printable(rec.getString()));
    if (rec.gid == 0 || rec.uid == 0)
        return false;
    // An upsert of a row that is there already changes no row and so counts as a failure: the
    // callers look for an identical row first.
    if (!changesRows(Placeholders::filled(sql, rec.gid, rec.uid, rec.since), operation))
        return false;
    if (m_autoUpdateGroupsMonth)
        updateGroupsMonth(rec.uid, rec.since);
    return true;
}

bool GroupsPlanRepo::changesRows(const QString &sql, const char *operation) const
{
    const QSqlQuery query = SqlStatement::run(m_db, sql);
    return !failed(query, operation) && query.numRowsAffected() > 0;
}
