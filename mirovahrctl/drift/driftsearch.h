#pragma once

#include "mirovahrctl/drift/driftpeople.h"
#include "mirovahrctl/drift/driftrows.h"

#include <QDate>
#include <QHash>
#include <QString>
#include <QVector>

class PluginView;
struct Rule;

/// One thing that the plugin counts as done, and that the database does not hold.
struct Drift {
    const Rule *rule;
    QString subject; ///< the person or thing
    QString message; ///< what is missing or differs, a whole sentence
    QString sql; ///< the statements that mend it; empty when a forced synchronisation does
};

/// Compares people of an export with what the database holds of them. What counts is decided by the
/// plugin's own code.
class DriftSearch {
public:
    /// \a backslash: what it is to the server. \a since: of what the plugin writes only when it
    /// creates a person or adds a member, only that which was created or added since this day;
    /// invalid: all of it.
    DriftSearch(PluginView &view, const DriftRows &rows, Backslash backslash, const QDate &since);

    /// Examines one person.
    void examine(const DriftPerson &person);
    /// Examines what belongs to nobody.
    void examineTerminals();

    const QVector<Drift> &found() const { return m_found; }
    /// People whose branch or calendar group is not in the database: the plugin tries again at
    /// every synchronisation.
    int waiting() const { return m_waiting; }
    /// People whose row cannot be told from the payroll id.
    int unclear() const { return m_unclear; }

private:
    struct Case;

    void examineRow(const Case &person);
    void examineType(const Case &person);
    void examineBalance(const Case &person);
    void examineSupervisor(const Case &person);
    void examinePayroll(const Case &person);
    void examinePlace(const Case &person);
    void examineMember(const Case &person, quint32 bid, qint64 since);
    void examineCalendar(const Case &person, quint32 bid);
    void examineMonths(const Case &person, uint firstMonth);
    QString describeDifferences(const Case &person) const;
    quint32 administratorOf(quint32 personalNumber);
    quint32 groupOf(quint32 bid, quint32 calendar);
    void add(const Case &person, const Rule &rule, const QString &message,
             const QString &sql = QString());

    PluginView &m_view;
    const DriftRows &m_rows;
    const Backslash m_backslash;
    const qint64 m_since; ///< Unix time
    const QDate m_today = QDate::currentDate();
    QHash<quint32, quint32> m_administrators; ///< personal number to aid
    QHash<DriftRows::Pair, quint32> m_groups; ///< bid and calendar to gid
    QVector<Drift> m_found;
    int m_waiting = 0;
    int m_unclear = 0;
};
