#pragma once

#include "mirovahrctl/explain/rowsleftbehind.h"
#include "mirovahrctl/site/personrow.h"
#include "worker/mirovaronrecord.h"
#include "worker/recorddecisions.h"

#include <QDate>
#include <QMap>
#include <QSet>
#include <QVector>

#include <optional>

class PluginView;

/// The state of one person (pid) while a synchronisation handles the records of an export: the
/// database as it was when the synchronisation began, and what earlier records of the same person
/// have changed in it and in the plugin's memory. The plugin has handled nobody since it was
/// started.
class PersonState {
public:
    /// \a view must live longer than this object.
    PersonState(PluginView &view, quint32 pid, bool isForced);

    quint32 pid() const { return m_pid; }
    /// Whether the next synchronisation is a forced one.
    bool isForced() const { return m_isForced; }
    /// The row of `people` with this pid, as it was.
    const std::optional<PersonRow> &row() const { return m_row; }
    /// The row that the plugin recognises as this person, as it keeps it in memory.
    const std::optional<MirovaRonRecord> &known() const { return m_known; }
    /// Whether there is a row by now.
    bool exists() const { return m_row || m_isCreated; }
    /// 0 when there was no row when the synchronisation began.
    quint32 uid() const { return m_row ? m_row->uid : 0; }
    /// The previous record; nothing before the first one.
    const std::optional<MirovaRonRecord> &last() const { return m_last; }

    /// Compares a record with what the plugin remembers, and records the result. To be called once
    /// for each record, before anything else.
    RecordDecisions::Differences compare(const MirovaRonRecord &record);
    /// To be called when the record has been handled.
    void remember(const MirovaRonRecord &record) { m_last = record; }

    /// The record is written as a new person, or merged into the row.
    void add(const MirovaRonRecord &record);
    /// Whether an earlier record has created the row, or was merged into it.
    bool isAdded() const { return m_isCreated || m_added; }
    /// What a person whom a record has created may take over; none for everybody else.
    const RowsLeftBehind &leftBehind() const { return m_leftBehind; }
    /// Whether merging this record writes what an earlier one has just written. Within the same
    /// second that changes no row, which the plugin treats as a failure.
    bool isAddedAs(const MirovaRonRecord &record) const;
    /// Takes over what the plugin keeps of a known person whose attendance is to be calculated
    /// again.
    void adopt(const MirovaRonRecord &record);

    /// Whether the person is in the selection of the only payroll export, whose key this is.
    bool isSelected(const QString &payrollExport) const;
    void select() { m_isSelected = true; }
    /// The settings of the payroll export (`people_pam.id`); 0 for none.
    uint payrollSettings();
    void setPayrollSettings(uint settings) { m_payrollSettings = settings; }
    /// Whether they differ from those in the database.
    bool hasOtherPayrollSettings();

    /// The line whose record has corrected the balance; 0 for none.
    qint64 correctingLine() const { return m_correctingLine; }
    void correctBalance(qint64 line) { m_correctingLine = line; }

    /// The administrators (aid) who get the person's requests.
    QSet<quint32> administrators();
    void setAdministrator(quint32 aid) { m_administrators = QSet<quint32>{aid}; }
    /// Whether they differ from those in the database.
    bool hasOtherAdministrators();

    /// Whether the group is planned from that month (yyyyMM) on.
    bool isPlanned(quint32 gid, uint month);
    void plan(quint32 gid, uint month) { m_plan.insert(month, gid); }
    /// Whether the plan differs from the one in the database.
    bool hasOtherPlan();

    /// The row is written with the last calculation on the day before this one.
    void setLastCalculation(const QDate &firstDay);
    /// Attendance from this day on is calculated again; all of it for an invalid date.
    void recalculate(const QDate &firstDay);
    /// The last calculation (Unix time) as it was, and as it is now.
    qint64 lastCalculationBefore() const { return m_row ? m_row->lastCalc : 0; }
    qint64 lastCalculation() const { return m_lastCalc; }
    /// The number of days of attendance that recalculate() newly marks as not calculated; nothing
    /// when there may be days that were left behind.
    std::optional<int> recalculatedDays();

    /// Whether the record waits for its branch or calendar group.
    bool waits(const MirovaRonRecord &record) const { return m_waiting.contains(record); }
    void setWaiting(const MirovaRonRecord &record, bool waits);

private:
    bool isCalculated();
    bool hasOpenDays();
    uint payrollSettingsBefore();
    QSet<quint32> administratorsBefore();

    PluginView &m_view;
    const quint32 m_pid;
    const bool m_isForced;
    const std::optional<PersonRow> m_row;
    std::optional<MirovaRonRecord> m_known;
    std::optional<MirovaRonRecord> m_last;
    std::optional<MirovaRonRecord> m_added; ///< what the last merging has written
    bool m_isCreated = false;
    RowsLeftBehind m_leftBehind;
    bool m_isSelected = false;
    std::optional<uint> m_payrollSettings;
    bool m_fundRetry = false; ///< the previous record could not correct the balance
    qint64 m_correctingLine = 0;
    std::optional<QSet<quint32>> m_administrators;
    QMap<uint, quint32> m_plan; ///< month to gid, as earlier records have planned
    std::optional<qint64> m_recalculatedFrom; ///< Unix time
    qint64 m_lastCalc;
    qint64 m_calc;
    QVector<MirovaRonRecord> m_waiting;
};
