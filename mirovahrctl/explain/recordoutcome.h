#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// From which day attendance is calculated again, and why.
struct Recalculation {
    std::optional<QDate> from; ///< nothing: not at all; an invalid date: all of it
    QStringList causes; ///< state, calendar, moved, balance
    bool isUncertain = false; ///< it may not be needed

    /// Adds a cause; the earliest day counts.
    void add(const QDate &day, const QString &cause);
    /// For people: "2026-03-01", "all", "none" or "uncertain".
    QString text() const;
};

/// The outcome of a record, or of all records of one person, in stable words for scripts.
struct RecordOutcome {
    QString person; ///< created, merged, updated, unchanged, never-created, missed, test-mode,
                    ///< uncertain
    QString payroll; ///< joins, member, none, uncertain
    QString payrollSettings; ///< set, kept, none, uncertain
    QString balance; ///< corrected, equal, later, impossible, kept, no-fund, none
    QString supervisor; ///< set, kept, unknown, none, uncertain
    QString branch; ///< joins, member, unknown, none, uncertain
    QString calendar; ///< planned, kept, unknown, none, uncertain
    Recalculation recalculation;
    QStringList differences; ///< fields of the row, such as "Surname (HR: Malá, here: Nováková)"
    bool waits = false; ///< the record waits for its branch or calendar afterwards

    /// The outcome when nothing happens.
    static RecordOutcome none();
    /// The outcome of several records of one person that one synchronisation handles in turn.
    static RecordOutcome combined(const QVector<RecordOutcome> &outcomes);
};
