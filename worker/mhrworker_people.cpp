// The people table: loading, finding, creating and updating persons.

#include "worker/mhrworker.h"

#include "db/placeholders.h"
#include "worker/recorddates.h"
#include "worker/recordlog.h"
#include "worker/sqlreport.h"

#include <QDebug>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <utility>

namespace {

const QLatin1String kSelectUid("SELECT uid FROM people WHERE pid = %1 LIMIT 1;");

const QLatin1String kCountPid("SELECT COUNT(*) FROM people WHERE pid = %1;");

// A returning person keeps the relationship state, calendar and branch of the old row and goes to
// department 1, whatever `departmentId` says. The behaviour is fixed.
const QLatin1String kInsertPerson(
    "INSERT INTO people (pid, pamId, title, name, surname, title2, phone, begin, end, created, "
    "rsBegin, rsEnd, rsText, type, did, calendarID, bid) VALUES('%1', '%2', '%3', '%4', '%5', "
    "'%6', '%7', %8, %9, UNIX_TIMESTAMP(), %10, %11, '%12', %13, %14, %15, %16) ON DUPLICATE KEY "
    "UPDATE pamId=VALUES(pamId), title=VALUES(title), name=VALUES(name), surname=VALUES(surname), "
    "title2=VALUES(title2), phone=VALUES(phone), begin=VALUES(begin), end=VALUES(end), "
    "edited=VALUES(created), status=1, type=VALUES(type), did=1");

const QLatin1String kUpdatePersonAndLastCalc(
    "UPDATE people SET pamId=%1, title='%2', name='%3', surname='%4', title2='%5', phone='%6', "
    "begin=%7, end=%8, edited=UNIX_TIMESTAMP(), editor=0, rsBegin=%10, rsEnd=%11, rsText='%12', "
    "lastCalc=%13, type=%14, did=%15, calendarID=%16, bid=%17 WHERE pid=%9");

const QLatin1String kUpdatePerson(
    "UPDATE people SET pamId=%1, title='%2', name='%3', surname='%4', title2='%5', phone='%6', "
    "begin=%7, end=%8, edited=UNIX_TIMESTAMP(), editor=0, rsBegin=%10, rsEnd=%11, rsText='%12', "
    "type=%13, did=%14, calendarID=%15, bid=%16  WHERE pid=%9");

} // namespace

bool MHRWorker::dbLoadPeople()
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::dbLoadPeople()");
    QSqlQuery query(m_db);
    if (!SqlReport::exec(query, PeopleCache::kSelect, "MHRWorker::dbLoadPeople() - SQL ERROR"))
        return false;
    m_people.load(query, std::exchange(m_changedPids, {}));
    return true;
}

std::optional<MirovaRonRecord> MHRWorker::knownPerson(quint32 pid)
{
    const MirovaRonRecord *known = m_people.find(pid);
    return known ? std::make_optional(*known) : std::nullopt;
}

uint MHRWorker::dbGetUidByPid(uint pid) const
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::dbGetUidByPid(%u)", pid);
    QSqlQuery query(m_db);
    if (!SqlReport::exec(query, Placeholders::filled(kSelectUid, pid),
                         "MHRWorker::dbGetUidByPid() - SQL ERROR"))
        return 0;
    return SqlReport::nextNumber(query);
}

uint MHRWorker::getUidByPid(uint pid) const
{
    // One cache for all workers of the process, without a lock: only one worker runs at a time.
    static QHash<uint, uint> uids;
    const uint cached = uids.value(pid);
    if (cached != 0)
        return cached;
    const uint uid = dbGetUidByPid(pid);
    if (uid != 0)
        uids.insert(pid, uid);
    return uid;
}

bool MHRWorker::dbCheckPerson(const MirovaRonRecord &rec)
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::dbCheckPerson(%s)", qUtf8Printable(rec.getPamId()));
    QSqlQuery query(m_db);
    if (!SqlReport::exec(query, Placeholders::filled(kCountPid, rec.getPid()),
                         "MHRWorker::dbCheckPerson() - SQL ERROR"))
        return false;
    return SqlReport::nextNumber(query) > 0;
}

bool MHRWorker::dbAddPerson(const MirovaRonRecord &rec)
{
    const QString payrollId = rec.getPamId();
    if (m_debugLevel != 0)
        qDebug("MHRWorker::dbAddPerson(%s)", qUtf8Printable(payrollId));
    if (m_testMode) {
        if (m_debugLevel != 0) {
            qWarning("MHRWorker::dbAddPerson(%s) - Testing mode is active, person not really add!",
                     qUtf8Printable(payrollId));
        }
        return true;
    }

    const QString sql = Placeholders::filled(
        kInsertPerson,
        {QString::number(rec.getPid()), payrollId, rec.titul, rec.jmeno, rec.prijmeni, rec.titulZa,
         rec.telefon, personBeginForSql(rec.datumNastupu), personEndForSql(rec.datumVystupu, true),
         personEndForSql(rec.rsFrom, false), personEndForSql(rec.rsTo, false), rec.rsText,
         QString::number(employmentTypeFromTPP(rec.typPracovnihoPomeru)), departmentIdForSql(),
         QString::number(rec.kalendar), branchIdForSql(rec.stredisko)});
    QSqlQuery query(m_db);
    if (!query.exec(sql)) {
        qCritical("MHRWorker::dbAddPerson(%s) - SQL ERROR: %s", qUtf8Printable(payrollId),
                  qUtf8Printable(query.lastError().text()));
        return false;
    }

    const bool added = query.lastInsertId().toLongLong() > 0 || query.numRowsAffected() > 0;
    if (!addPersonIntoPam(rec.getPid())) {
        qWarning(RecordLog::kPayrollExportFailed, qUtf8Printable(payrollId));
    }
    return added;
}

bool MHRWorker::dbUpdatePerson(const MirovaRonRecord &rec, bool esChanged)
{
    const QString payrollId = rec.getPamId();
    if (m_debugLevel != 0)
        qDebug("MHRWorker::dbUpdatePerson(%s)", qUtf8Printable(payrollId));
    if (m_testMode) {
        if (m_debugLevel != 0) {
            qWarning("MHRWorker::dbUpdatePerson(%s) - Testing mode is active, person not really "
                     "update!",
                     qUtf8Printable(payrollId));
        }
        return true;
    }

    QSqlQuery query(m_db);
    if (!query.exec(updateStatement(rec, esChanged))) {
        qCritical("MHRWorker::dbUpdatePerson(%s) - SQL ERROR: %s", qUtf8Printable(payrollId),
                  qUtf8Printable(query.lastError().text()));
        return false;
    }
    if (query.numRowsAffected() > 0)
        addTermSyncPerson(rec.getPid(), QLatin1Char('U'), QStringLiteral("people"));
    return true;
}

QString MHRWorker::updateStatement(const MirovaRonRecord &rec, bool esChanged) const
{
    // A new relationship state moves the last calculation back to the day before its first one.
    const bool recalculate = esChanged && rec.rsFrom.isValid();
    QStringList values = {rec.getPamId(),
                          rec.titul,
                          rec.jmeno,
                          rec.prijmeni,
                          rec.titulZa,
                          rec.telefon,
                          personBeginForSql(rec.datumNastupu),
                          personEndForSql(rec.datumVystupu, true),
                          QString::number(rec.getPid()),
                          personEndForSql(rec.rsFrom, false),
                          personEndForSql(rec.rsTo, false),
                          rec.rsText};
    if (recalculate)
        values += QString::number(RecordDates::midnight32(rec.rsFrom.addDays(-1)));
    values += {QString::number(employmentTypeFromTPP(rec.typPracovnihoPomeru)),
               departmentIdForSql(), QString::number(rec.kalendar), branchIdForSql(rec.stredisko)};
    return Placeholders::filled(recalculate ? kUpdatePersonAndLastCalc : kUpdatePerson, values);
}

QString MHRWorker::departmentIdForSql() const
{
    return m_departmentId != 0 ? QString::number(m_departmentId) : QStringLiteral("NULL");
}

QString MHRWorker::branchIdForSql(quint32 number) const
{
    const quint32 bid = bidOfBranch(number);
    return bid != 0 ? QString::number(bid) : QStringLiteral("NULL");
}
