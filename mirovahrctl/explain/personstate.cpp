#include "mirovahrctl/explain/personstate.h"

#include "mirovahrctl/pluginside/pluginview.h"
#include "mirovahrctl/site/payrollexports.h"
#include "worker/recordcodes.h"
#include "worker/recorddates.h"
#include "worker/vacationbalance.h"

#include <QDateTime>
#include <QVariant>

namespace {

constexpr char kSelectPayrollSettings[] = "SELECT id FROM people_pam WHERE uid = %1";

constexpr char kSelectAdministrators[] = "SELECT aid FROM admins_people WHERE request AND uid = %1";

constexpr char kSelectPlan[] = "SELECT gid FROM groups_plan WHERE uid = %1 AND since = %2";

/// The days that keep the plugin from correcting the balance, once the days from a moment on are
/// marked as not calculated.
constexpr char kCountOpenDays[] =
    "SELECT COUNT(*) FROM atten WHERE uid = %1 AND `lock` = 0 AND (ok = -1 OR (man = 0 AND `date` "
    ">= %2) OR (ok < 0 AND `date` >= midnightFromTs(UNIX_TIMESTAMP())))";

constexpr char kCountDaysToMark[] =
    "SELECT COUNT(*) FROM atten WHERE uid = %1 AND `lock` = 0 AND man = 0 AND `date` >= %2 AND ok "
    "<> -1";

/// What merging a record into a row writes, apart from the moment.
QStringList mergedColumns(const MirovaRonRecord &record)
{
    return {record.getPamId(),
            record.titul,
            record.jmeno,
            record.prijmeni,
            record.titulZa,
            record.telefon,
            RecordDates::personBeginForSql(record.datumNastupu),
            RecordDates::personEndForSql(record.datumVystupu, true),
            QString::number(RecordCodes::employmentTypeFromTPP(record.typPracovnihoPomeru))};
}

} // namespace

PersonState::PersonState(PluginView &view, quint32 pid, bool isForced)
    : m_view(view)
    , m_pid(pid)
    , m_isForced(isForced)
    , m_row(PersonRow::read(view.sql(), pid))
    , m_known(view.worker().knownPerson(pid))
    , m_lastCalc(m_row ? m_row->lastCalc : 0)
    , m_calc(m_row ? m_row->calc : 0)
{
}

RecordDecisions::Differences PersonState::compare(const MirovaRonRecord &record)
{
    RecordDecisions::FundState fund;
    fund.exists = m_view.worker().vacationFundId() != 0;
    if (fund.exists) {
        fund.moveAllowed = m_correctingLine == 0 && m_view.worker().dbCheckFundMove(m_pid);
        fund.attendanceAllows = isCalculated();
        fund.retry = fund.isWritable() && m_fundRetry;
        m_fundRetry = !fund.isWritable();
    }
    return RecordDecisions::differences(record, m_last ? &*m_last : nullptr, fund, m_isForced);
}

bool PersonState::isCalculated()
{
    const bool isAsBefore = !m_recalculatedFrom && m_calc == (m_row ? m_row->calc : 0);
    if (m_row && isAsBefore) {
        uint uid = 0;
        return m_view.worker().dbCheckAttendance(m_pid, uid);
    }
    // Somebody who has just been created has no attendance.
    if (!m_row)
        return m_isCreated;
    return !VacationBalance::isCalculating(m_calc, QDateTime::currentSecsSinceEpoch())
        && !hasOpenDays();
}

bool PersonState::hasOpenDays()
{
    return m_view.sql()
               .value(QString(QLatin1String(kCountOpenDays)).arg(uid()).arg(*m_recalculatedFrom))
               .toInt()
        != 0;
}

void PersonState::add(const MirovaRonRecord &record)
{
    // Creating a row does not set `edited`, so the first merging always changes the row.
    if (exists()) {
        m_added = record;
        return;
    }
    m_isCreated = true;
    m_leftBehind = RowsLeftBehind::read(m_view.sql());
}

bool PersonState::isAddedAs(const MirovaRonRecord &record) const
{
    return m_added && mergedColumns(*m_added) == mergedColumns(record);
}

void PersonState::adopt(const MirovaRonRecord &record)
{
    RecordDecisions::adopt(record, *m_known);
}

bool PersonState::isSelected(const QString &payrollExport) const
{
    return m_isSelected || isInPayrollSelection(m_view.database(), payrollExport, m_pid);
}

uint PersonState::payrollSettings()
{
    if (!m_payrollSettings)
        m_payrollSettings = payrollSettingsBefore();
    return *m_payrollSettings;
}

bool PersonState::hasOtherPayrollSettings()
{
    return m_payrollSettings && *m_payrollSettings != payrollSettingsBefore();
}

uint PersonState::payrollSettingsBefore()
{
    return m_view.sql().value(QString(QLatin1String(kSelectPayrollSettings)).arg(uid())).toUInt();
}

QSet<quint32> PersonState::administrators()
{
    if (!m_administrators)
        m_administrators = administratorsBefore();
    return *m_administrators;
}

bool PersonState::hasOtherAdministrators()
{
    return m_administrators && *m_administrators != administratorsBefore();
}

QSet<quint32> PersonState::administratorsBefore()
{
    QSet<quint32> aids;
    const auto rows = m_view.sql().rows(QString(QLatin1String(kSelectAdministrators)).arg(uid()));
    for (const QStringList &row : rows)
        aids += row.first().toUInt();
    return aids;
}

bool PersonState::isPlanned(quint32 gid, uint month)
{
    const auto own = m_plan.constFind(month);
    if (own != m_plan.constEnd())
        return *own == gid;
    return uid() != 0 && m_view.worker().dbCheckGroupsPlan(gid, uid(), month);
}

bool PersonState::hasOtherPlan()
{
    for (auto own = m_plan.cbegin(); own != m_plan.cend(); ++own) {
        const QString select = QString(QLatin1String(kSelectPlan)).arg(uid()).arg(own.key());
        if (m_view.sql().value(select).toUInt() != *own)
            return true;
    }
    return false;
}

void PersonState::setLastCalculation(const QDate &firstDay)
{
    m_lastCalc = RecordDates::midnight32(firstDay.addDays(-1));
}

void PersonState::recalculate(const QDate &firstDay)
{
    const qint64 from = RecordDates::midnight(firstDay);
    const qint64 dayBefore = RecordDates::midnight(firstDay.addDays(-1));
    m_recalculatedFrom = m_recalculatedFrom ? qMin(*m_recalculatedFrom, from) : from;
    if (m_lastCalc > dayBefore) {
        m_lastCalc = dayBefore;
        m_calc = 0;
    }
}

std::optional<int> PersonState::recalculatedDays()
{
    if (!m_recalculatedFrom)
        return 0;
    if (m_leftBehind.areIn("atten"))
        return std::nullopt;
    return m_view.sql()
        .value(QString(QLatin1String(kCountDaysToMark)).arg(uid()).arg(*m_recalculatedFrom))
        .toInt();
}

void PersonState::setWaiting(const MirovaRonRecord &record, bool waits)
{
    if (!waits)
        m_waiting.removeAll(record);
    else if (!m_waiting.contains(record))
        m_waiting.append(record);
}
