#pragma once

#include "tests/support/testdatabase.h"

/// What happened to the database, for a person to read and to write down: one line a row.
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

    /// What changed since start(), sorted.
    QStringList lines();

private:
    DatabaseState readable() const;

    TestDatabase &m_db;
    qint64 m_begin = 0;
    DatabaseState m_before;
};
