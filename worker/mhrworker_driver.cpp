// The driver: which writing steps run for each record, and what the worker remembers of it.

#include "worker/mhrworker.h"

#include "db/branchesrepository.h"
#include "worker/recordcodes.h"
#include "worker/recorddates.h"
#include "worker/recorddecisions.h"
#include "worker/recordlog.h"
#include "worker/vacationbalance.h"

#include <QDebug>

#include <utility>

/// What the steps find out about one record.
struct MHRWorker::Reconciliation {
    quint32 pid = 0;
    quint32 uid = 0; ///< known once the attendance is checked
    bool active = false;
    RecordDecisions::FundState fund;
    RecordDecisions::Differences differences;
    bool lastCalcNeeded = false;
};

void MHRWorker::doSync()
{
    if (m_records.isEmpty())
        return;
    if (m_debugLevel > 1)
        qDebug("MHRWorker::doSync() - stack count: %i", m_records.size());

    dbLoadBranches();
    dbCheckDovolenkaFond(kVacationIid);
    // Iterated, not taken from the front one by one, which would move all other records each time.
    const QVector<MirovaRonRecord> records = std::exchange(m_records, {});
    for (const MirovaRonRecord &rec : records)
        doSyncRecord(rec);
    flushBranchMembers();
}

void MHRWorker::flushBranchMembers()
{
    const QMap<quint32, QStringList> pending = std::exchange(m_pendingMembers, {});
    for (auto it = pending.cbegin(); it != pending.cend(); ++it) {
        // The repository takes 16 bits: 65536 becomes 0, which it refuses.
        m_branches->addPeopleToBranch(static_cast<ushort>(it.key()), it->join(QLatin1Char(',')));
    }
}

void MHRWorker::doSyncRecord(const MirovaRonRecord &rec)
{
    if (m_debugLevel > 2)
        qDebug("MHRWorker::doSyncRecord(%s)", qUtf8Printable(rec.getString(false)));

    Reconciliation work;
    work.pid = rec.getPid();
    // Looked up only for a record with a last day: it costs as much as all the rest of an unchanged
    // record.
    const QDate today = rec.datumVystupu.isValid() ? QDate::currentDate() : QDate();
    work.active = RecordCodes::isActive(rec, today);
    checkFund(work);
    const auto last = m_lastRecords.constFind(work.pid);
    work.differences = RecordDecisions::differences(
        rec, last == m_lastRecords.constEnd() ? nullptr : &*last, work.fund, m_force);
    noteFundRetry(work);

    const bool changed = work.differences.changed;
    const bool written = (changed || m_force) && reconcile(rec, work);
    // A changed record is remembered even when writing it failed: an unchanged line does not try
    // again, only a changed line or a forced synchronisation does. The behaviour is fixed.
    if (written || changed || !work.active)
        m_lastRecords[work.pid] = rec;

    if (work.active)
        placeOrWait(rec, work);
    if (work.lastCalcNeeded)
        requestRecalculation(rec);
}

void MHRWorker::checkFund(Reconciliation &work)
{
    work.fund.exists = m_vacationFundId != 0;
    if (!work.fund.exists)
        return;
    // Both checks always run: the second also looks up the uid.
    work.fund.moveAllowed = dbCheckFundMove(work.pid);
    work.fund.attendanceAllows = dbCheckAttendance(work.pid, work.uid);
    work.fund.retry = work.fund.isWritable() && m_fundRetry.contains(work.pid);
}

void MHRWorker::noteFundRetry(const Reconciliation &work)
{
    if (!work.fund.exists)
        return;
    if (work.fund.isWritable())
        m_fundRetry.remove(work.pid);
    else
        m_fundRetry.insert(work.pid);
}

bool MHRWorker::reconcile(const MirovaRonRecord &rec, Reconciliation &work)
{
    MirovaRonRecord *known = m_people.find(work.pid);
    switch (RecordDecisions::personStep(known != nullptr, work.active)) {
    case RecordDecisions::PersonStep::Update:
        return updateKnownPerson(rec, *known, work);
    case RecordDecisions::PersonStep::Create:
        return createPerson(rec, work);
    case RecordDecisions::PersonStep::LeaveOut:
        break;
    }
    return false;
}

bool MHRWorker::createPerson(const MirovaRonRecord &rec, const Reconciliation &work)
{
    if (!dbAddPerson(updateRs(rec, MirovaRonRecord())))
        return false;

    const uint payrollId = pamSettingsIdFromTPP(rec.typPracovnihoPomeru);
    if (payrollId != 0 && !dbAddPersonIntoPam(rec.getPid(), payrollId)) {
        qWarning(RecordLog::kPayrollSettingsFailed, qUtf8Printable(rec.getString(false)),
                 rec.getPid(), payrollId);
    }
    assignSupervisor(rec, true, work);
    return true;
}

bool MHRWorker::updateKnownPerson(const MirovaRonRecord &rec, MirovaRonRecord &known,
                                  Reconciliation &work)
{
    using namespace RecordDecisions;
    work.lastCalcNeeded = movesElsewhere(rec, known);

    const MirovaRonRecord updated = updateRs(rec, known);
    const bool written = rowStep(updated, known, work.differences) != RowStep::Keep
        && dbUpdatePerson(updated, work.differences.registerState);

    if (work.differences.balance == BalanceStep::Compare && correctVacation(rec, work))
        work.lastCalcNeeded = true;
    if (work.lastCalcNeeded)
        adopt(rec, known);

    assignSupervisor(rec, false, work);
    return written;
}

void MHRWorker::assignSupervisor(const MirovaRonRecord &rec, bool isNew, const Reconciliation &work)
{
    using namespace RecordDecisions;
    if (supervisorStep(rec, isNew, work.differences) == SupervisorStep::Assign)
        processNadOsCis(rec);
}

bool MHRWorker::correctVacation(const MirovaRonRecord &rec, const Reconciliation &work)
{
    bool loaded = false;
    const qint64 balance = loadFundBalance(work.pid, loaded);
    if (!loaded) {
        qWarning("MHRWorker::doSyncRecord() - loadFundStatusAndMove3(): not loaded correctly!");
        return false;
    }

    qint32 value = 0;
    const bool writable = VacationBalance::correction(rec.dovolenaZustatek, balance, value);
    if (writable && value == 0)
        return false;
    if (writable && writeFundMove3(work.uid, value))
        return true;
    qWarning(RecordLog::kMoveNotWritten, value, work.uid, work.pid);
    return false;
}

void MHRWorker::placeOrWait(const MirovaRonRecord &rec, const Reconciliation &work)
{
    // A record waits until an equal one arrives. When the line changes meanwhile, the old one
    // stays: the changed one is placed on its own account.
    const bool waiting = m_waiting.contains(work.pid, rec);
    if (!RecordDecisions::isPlaced(rec, m_force || work.differences.changed, waiting))
        return;
    const bool placed = doSyncBranchAndCalendar(rec);
    if (!placed && !waiting)
        m_waiting.insert(work.pid, rec);
    else if (placed && waiting)
        m_waiting.remove(work.pid, rec);
}

void MHRWorker::requestRecalculation(const MirovaRonRecord &rec)
{
    const quint32 pid = rec.getPid();
    const quint32 uid = getUidByPid(pid);
    if (uid == 0) {
        qWarning(RecordLog::kRecalculationLost, pid, qUtf8Printable(rec.getString(false)));
        return;
    }
    dbChangeLastCalc(uid, RecordDates::firstDayOfPreviousMonth(QDate::currentDate()));
}
