// The vacation fund: today's correction of the balance (a move of type 3) from the HR figure.

#include "worker/mhrworker.h"

#include "db/placeholders.h"
#include "worker/recorddates.h"
#include "worker/sqlreport.h"
#include "worker/vacationbalance.h"

#include <QDateTime>
#include <QDebug>
#include <QSqlQuery>
#include <QVariant>

#include <limits>

namespace {

const QLatin1String kSelectFund("SELECT fid FROM funds WHERE iid = %1 AND unit=2;");

const QLatin1String kCountMovesOfToday(
    "SELECT COUNT(*) FROM funds_move WHERE type=3 AND day = midnightFromTs(UNIX_TIMESTAMP()) AND "
    "fid = %1 AND uid=(SELECT uid FROM people WHERE pid = %2);");

const QLatin1String kSelectCalculation(
    "SELECT p.uid, calc, (SELECT COUNT(*) FROM atten a WHERE a.uid = p.uid AND !a.lock AND a.ok = "
    "-1) uncalc FROM people p WHERE pid = %1");

const QLatin1String kCountOpenDays("SELECT COUNT(*) FROM atten WHERE uid = %1 AND `lock`=0 AND ok "
                                   "< 0 AND date >= midnightFromTs(UNIX_TIMESTAMP())");

// Everything before the current month, and of the current month only the corrections before today:
// what the person took this month is not yet in the HR figure.
const QLatin1String kSumBeforeMonth(
    "SELECT SUM(fm.value) FROM funds_move fm JOIN people p USING(uid) WHERE fm.day < %3  AND "
    "fm.fid = %1 AND p.pid = %2");

const QLatin1String kSumOfCorrections(
    "SELECT SUM(fm.value) FROM funds_move fm JOIN people p USING(uid) WHERE fm.type=3 AND fm.day "
    ">= %3 AND fm.day < midnightFromTs(UNIX_TIMESTAMP()) AND fm.fid = %1 AND p.pid = %2");

const QLatin1String
    kWriteMove("INSERT INTO funds_move (type, day, month, value, fid, uid) VALUES(3, %1, "
               "monthFromTimestamp(%1), %2, %3, %4) ON DUPLICATE KEY UPDATE value=VALUES(value)");

qint64 nextSum(QSqlQuery &query)
{
    return query.next() ? query.value(0).toLongLong() : 0;
}

int saturated(qint64 value)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(qBound(qint64(Limits::min()), value, qint64(Limits::max())));
}

} // namespace

void MHRWorker::dbCheckDovolenkaFond(unsigned short iid)
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::checkDovolenkaFond()");
    QSqlQuery query(m_db);
    if (SqlReport::exec(query, Placeholders::filled(kSelectFund, iid),
                        "MHRWorker::checkDovolenkaFond() - SQL ERROR")
        && query.next())
        m_vacationFundId = static_cast<quint16>(query.value(0).toUInt());
    if (m_debugLevel >= 1)
        qInfo("MHRWorker::checkDovolenkaFond(): fid=%u", m_vacationFundId);
}

quint16 MHRWorker::vacationFundId() const
{
    return m_vacationFundId;
}

bool MHRWorker::dbCheckFundMove(unsigned int pid)
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::dbCheckFundMove(pid: %u)", pid);
    QSqlQuery query(m_db);
    const bool none =
        SqlReport::exec(query, Placeholders::filled(kCountMovesOfToday, m_vacationFundId, pid),
                        "MHRWorker::dbCheckFundMove() - SQL ERROR")
        && query.next() && query.value(0).toUInt() == 0;
    if (m_debugLevel >= 1) {
        qInfo("MHRWorker::dbCheckFundMove(pid: %u): %s", pid, none ? "OK - non exists" : "exists");
    }
    return none;
}

bool MHRWorker::dbCheckAttendance(unsigned int pid, unsigned int &uid)
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::dbCheckAttendance(pid: %u)", pid);
    const bool calculated = isCalculated(pid, uid) && !hasOpenDays(uid);
    if (m_debugLevel >= 1)
        qInfo("MHRWorker::dbCheckAttendance(pid: %u): %s", pid, calculated ? "OK" : "NO OK");
    return calculated;
}

bool MHRWorker::isCalculated(quint32 pid, quint32 &uid)
{
    QSqlQuery query(m_db);
    if (!SqlReport::exec(query, Placeholders::filled(kSelectCalculation, pid),
                         "MHRWorker::dbCheckAttendance() - SQL ERROR")
        || !query.next())
        return false;
    uid = query.value(0).toUInt();
    const qint64 calc = query.value(1).toLongLong();
    const uint uncalculatedDays = query.value(2).toUInt();
    return !VacationBalance::isCalculating(calc, QDateTime::currentSecsSinceEpoch())
        && uncalculatedDays == 0;
}

bool MHRWorker::hasOpenDays(quint32 uid)
{
    // A failure here does not block the correction.
    QSqlQuery query(m_db);
    return SqlReport::exec(query, Placeholders::filled(kCountOpenDays, uid),
                           "MHRWorker::dbCheckAttendance() - SQL ERROR")
        && SqlReport::nextNumber(query) != 0;
}

int MHRWorker::loadFundStatusAndMove3(unsigned int pid, bool &ok)
{
    return saturated(loadFundBalance(pid, ok));
}

qint64 MHRWorker::loadFundBalance(quint32 pid, bool &ok)
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::loadFundStatusAndMove3(pid: %u)", pid);
    const QDate today = QDate::currentDate();
    const qint64 monthStart = RecordDates::midnight(QDate(today.year(), today.month(), 1));
    ok = true;
    const auto sum = [&](const QLatin1String &sql, const char *operation) {
        QSqlQuery query(m_db);
        const bool done = SqlReport::exec(
            query, Placeholders::filled(sql, m_vacationFundId, pid, monthStart), operation);
        ok = ok && done;
        return done ? nextSum(query) : 0;
    };

    qint64 balance = sum(kSumBeforeMonth, "MHRWorker::loadFundStatusAndMove3() - SQL 1 ERROR");
    balance += sum(kSumOfCorrections, "MHRWorker::loadFundStatusAndMove3() - SQL 2 ERROR");
    if (m_debugLevel >= 1) {
        qInfo("MHRWorker::loadFundStatusAndMove3(pid: %u): %i, load OK: %s", pid,
              saturated(balance), ok ? "YES" : "NO");
    }
    return balance;
}

bool MHRWorker::writeFundMove3(unsigned int uid, int value)
{
    if (m_debugLevel >= 1)
        qDebug("MHRWorker::writeFundMove3(uid: %u, value: %i)", uid, value);
    const qint64 today = RecordDates::midnight(QDate::currentDate());
    const QString sql = Placeholders::filled(kWriteMove, today, value, m_vacationFundId, uid);
    QSqlQuery query(m_db);
    return SqlReport::execShowingStatement(query, sql, "MHRWorker::writeFundMove3() - SQL ERROR")
        && query.numRowsAffected() > 0;
}
