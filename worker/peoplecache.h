#pragma once

#include "worker/mirovaronrecord.h"

#include <QHash>
#include <QSet>
#include <QSqlQuery>

#include <optional>

/// The database's view of its active people during one cycle, by pid.
///
/// Converting a row into a record costs more than all other work on an unchanged employee, who is
/// never looked up. So the rows stay in the query's result until somebody is looked up; only the
/// rows of people who are expected to be looked up are converted at once.
class PeopleCache {
public:
    /// The query of the rows.
    static const QLatin1String kSelect;

    /// Replaces the people by those of an executed kSelect. `expected` (pids) affects what a lookup
    /// costs, never what it finds.
    void load(const QSqlQuery &rows, const QSet<quint32> &expected);

    /// The person (pid), to be read and changed until the next load() or clear(); nullptr when
    /// there is no such active person.
    MirovaRonRecord *find(quint32 pid);

    void clear();

private:
    /// Converts the rows of the people who are expected, or of all others.
    void convertRows(bool expected);

    QHash<quint32, MirovaRonRecord> m_people;
    QSet<quint32> m_expected;
    std::optional<QSqlQuery> m_rows; ///< while it holds rows that are not converted yet
};
