#pragma once

#include "tests/support/testdatabase.h"

#include <QObject>
#include <QSqlDatabase>

/// What the test programs of the repositories share: a server of their own with empty tables for
/// every test function, and the connection that the code under test uses, with the rights of a
/// server that uses the repositories itself.
class RepositoryTest : public QObject {
    Q_OBJECT

protected:
    /// Runs one statement on the connection of the code under test, unseen by statements().
    void runOnConnection(const QString &sql);

    TestDatabase m_database;
    QSqlDatabase m_connection;

protected Q_SLOTS:
    void initTestCase();
    virtual void init();
};
