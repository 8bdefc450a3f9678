// Branch and calendar of a person, and the recalculation of attendance.

#include "worker/mhrworker.h"

#include "db/groupsplanrepo.h"
#include "db/placeholders.h"
#include "worker/recorddates.h"
#include "worker/recordlog.h"
#include "worker/sqlreport.h"

#include <QDebug>
#include <QLocale>
#include <QSqlQuery>
#include <QVariant>

namespace {

const QLatin1String kSelectBranches("SELECT bid, number FROM branches WHERE number IS NOT NULL;");

const QLatin1String kCountMembership("SELECT COUNT(*) FROM brape WHERE bid = %1 AND uid = (SELECT "
                                     "uid FROM people WHERE pid = %2 LIMIT 1);");

const QLatin1String kSelectGroup(
    "SELECT gid FROM branches b LEFT JOIN mastergroups mg ON mg.mgid = b.mgid LEFT JOIN groups g "
    "ON g.parent = mg.mgid WHERE bid = %1 AND g.calendarID = %2 LIMIT 1;");

const QLatin1String
    kCountPlan("SELECT COUNT(*) FROM groups_plan WHERE gid = %1 AND uid = %2 AND since = %3;");

const QLatin1String kResetAttendance("UPDATE atten SET ok = -1 WHERE `lock` =0 AND `man`=0 AND "
                                     "`date` >= %1 AND uid =%2");

const QLatin1String
    kResetLastCalc("UPDATE people set lastCalc = %1, calc = 0 WHERE lastCalc > %1 AND uid=%2");

} // namespace

bool MHRWorker::dbLoadBranches()
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::dbLoadBranches()");
    m_branchIds.clear();
    QSqlQuery query(m_db);
    if (!SqlReport::exec(query, kSelectBranches, "MHRWorker::dbLoadBranches() - SQL ERROR"))
        return false;
    while (query.next())
        m_branchIds.insert(query.value(1).toUInt(), query.value(0).toUInt());
    return !m_branchIds.isEmpty();
}

quint32 MHRWorker::bidOfBranch(quint32 number) const
{
    return m_branchIds.value(number);
}

bool MHRWorker::doSyncBranchAndCalendar(const MirovaRonRecord &rec)
{
    if (m_debugLevel >= 3)
        qDebug("MHRWorker::doSyncBranchAndCalendar(%s)", qUtf8Printable(rec.getPamId()));

    const quint32 bid = bidOfBranch(rec.stredisko);
    if (bid == 0) {
        qWarning(RecordLog::kBranchNotFound, rec.stredisko, qUtf8Printable(rec.getString(false)));
        return false;
    }

    // A uid of 0 (no such person) is not rejected here: each step below refuses it with a log line
    // of its own, and the uid "0" in the list for the branch names nobody.
    const quint32 pid = rec.getPid();
    const quint32 uid = getUidByPid(pid);
    const bool queued = queueBranchMember(pid, uid, bid);
    return rec.kalendar == 0 ? queued : joinCalendarGroup(rec, uid, bid) || queued;
}

bool MHRWorker::queueBranchMember(quint32 pid, quint32 uid, quint32 bid)
{
    if (dbCheckPersonInBranch(pid, bid))
        return false;
    m_pendingMembers[bid].append(QString::number(uid));
    return true;
}

bool MHRWorker::joinCalendarGroup(const MirovaRonRecord &rec, quint32 uid, quint32 bid)
{
    const quint32 gid = dbGetGroupIdByCalendar(bid, rec.kalendar);
    if (gid == 0) {
        qWarning(RecordLog::kGroupNotFound, rec.stredisko, rec.kalendar,
                 qUtf8Printable(rec.getString(false)));
        return false;
    }

    const quint32 since = GroupsPlanRepo::monthFromDate(rec.kalendarPlatnostOd);
    if (dbCheckGroupsPlan(gid, uid, since))
        return true;
    if (!m_groupsPlan->add({gid, uid, since})) {
        qWarning(RecordLog::kPlanNotAdded, qUtf8Printable(rec.getString(false)));
        return false;
    }

    // An invalid date lies before every other one, so it asks for a recalculation, too.
    if (rec.kalendarPlatnostOd < QDate::currentDate())
        dbChangeLastCalc(uid, rec.kalendarPlatnostOd);
    return true;
}

bool MHRWorker::dbCheckPersonInBranch(unsigned int pid, unsigned int bid)
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::dbCheckPersonInBranch(%u, %u)", pid, bid);
    QSqlQuery query(m_db);
    if (!SqlReport::exec(query, Placeholders::filled(kCountMembership, bid, pid),
                         "MHRWorker::dbCheckPersonInBranch() - SQL ERROR"))
        return false;
    return SqlReport::nextNumber(query) != 0;
}

unsigned int MHRWorker::dbGetGroupIdByCalendar(unsigned int bid, unsigned int calendar) const
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::getGroupIdByCalendar(B: %u, C: %u)", bid, calendar);
    QSqlQuery query(m_db);
    if (!SqlReport::exec(query, Placeholders::filled(kSelectGroup, bid, calendar),
                         "MHRWorker::getGroupIdByCalendar() - SQL ERROR"))
        return 0;
    return SqlReport::nextNumber(query);
}

bool MHRWorker::dbCheckGroupsPlan(unsigned int gid, unsigned int uid, unsigned int since) const
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::dbCheckGroupsPlan(%u, %u, %u)", gid, uid, since);
    QSqlQuery query(m_db);
    if (!SqlReport::exec(query, Placeholders::filled(kCountPlan, gid, uid, since),
                         "MHRWorker::dbCheckGroupsPlan() - SQL ERROR"))
        return false;
    return SqlReport::nextNumber(query) != 0;
}

bool MHRWorker::dbChangeLastCalc(unsigned int uid, const QDate &date)
{
    if (m_debugLevel >= 2) {
        qDebug("MHRWorker::dbChangeLastCalc(%u, %s)", uid,
               qUtf8Printable(QLocale::system().toString(date, QLocale::ShortFormat)));
    }
    const qint64 firstDay = RecordDates::midnight(date);
    const qint64 dayBefore = RecordDates::midnight(date.addDays(-1));
    QSqlQuery attendance(m_db);
    if (!SqlReport::exec(attendance, Placeholders::filled(kResetAttendance, firstDay, uid),
                         "MHRWorker::dbChangeLastCalc() [UPDATE atten] - SQL ERROR"))
        return false;
    QSqlQuery person(m_db);
    return SqlReport::exec(person, Placeholders::filled(kResetLastCalc, dayBefore, uid),
                           "MHRWorker::dbChangeLastCalc() [UPDATE people] - SQL ERROR");
}
