#pragma once

#include "worker/mirovaronrecord.h"

#include <QHash>
#include <QSet>
#include <QSqlQuery>

#include <optional>

/// The database's view of its active people during one cycle, by pid.
///
/// Making a record of a row costs more than all else of an employee who has not changed, and nobody
/// asks for that person then. So the rows stay in the result of the query until somebody is looked
/// for, except those of people of whom it is expected.
class PeopleCache {
public:
    /// The query of the rows.
    static const QLatin1String kSelect;

    /// Replaces the people by those of an executed kSelect. Whom `expected` (pids) names decides
    /// what a look for a person costs, not what it finds.
    void load(const QSqlQuery &rows, const QSet<quint32> &expected);

    /// The person (pid), to be read and changed until the next load() or clear(); nullptr when
    /// there is no such active person.
    MirovaRonRecord *find(quint32 pid);

    void clear();

private:
    /// Takes in the rows of those who are expected, or of those who are not.
    void takeIn(bool expected);

    QHash<quint32, MirovaRonRecord> m_people;
    QSet<quint32> m_expected;
    std::optional<QSqlQuery> m_rows; ///< while the people who are not expected are still in there
};
