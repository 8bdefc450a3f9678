#pragma once

#include "tests/support/testdatabase.h"

/// The changes of the database in a readable form, one line a row.
///
///     people uid=4: surname Nováková -> Malá, edited 0 -> now
///     brape + bid=1 uid=9 since=now
///     term_sync - ...
///
/// Rows are known by the key of their table. Timestamps show as days ("2019-04-01"; with the time
/// when it is not midnight), the moments of creating and editing as "now" when they lie between
/// start() and now.
class StateChanges {
public:
    explicit StateChanges(TestDatabase &db);

    /// Changes count from here on.
    void start();

    /// What changed since start(), in the order of sorted().
    QStringList lines();

    /// The database as it is, with timestamps to read.
    DatabaseState state() const;
    /// What differs between two of them, sorted.
    static QStringList between(const DatabaseState &before, const DatabaseState &after);

private:
    TestDatabase &m_db;
    qint64 m_begin = 0;
    DatabaseState m_before;
};

/// Lines in the order in which StateChanges gives them.
QStringList sorted(QStringList lines);
