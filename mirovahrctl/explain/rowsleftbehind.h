#pragma once

#include <QString>
#include <QStringList>

class SqlSession;

/// Rows of people who were deleted, under uids that the next new people get: a new person takes
/// over those of the own uid. Which uid that is depends on everybody whom the plugin creates
/// before.
class RowsLeftBehind {
public:
    /// None.
    RowsLeftBehind() = default;
    /// Those of the database, in the tables that decide what the plugin does with a new person.
    static RowsLeftBehind read(SqlSession &sql);

    /// The first of the uids; 0 for none.
    quint64 nextUid() const { return m_nextUid; }
    /// The tables with such rows.
    const QStringList &tables() const { return m_tables; }
    bool areIn(const char *table) const { return m_tables.contains(QLatin1String(table)); }

private:
    quint64 m_nextUid = 0;
    QStringList m_tables;
};
