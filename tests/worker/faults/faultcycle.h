#pragma once

#include "tests/support/exportfile.h"
#include "tests/support/testdatabase.h"
#include "tests/worker/faults/mysqlproxy.h"
#include "tests/worker/support/statechanges.h"

#include <QStringList>
#include <QVector>

#include <memory>

/// The cycle that the faults are tried on, and the database that it starts from. It uses every step
/// of a synchronisation:
///
/// - a new employee with a supervisor, a branch, a calendar and the payroll export,
/// - Mária, who goes on leave (a relationship state) and whose balance differs,
/// - Jana with a new surname, balance and supervisor, and attendance of the current months,
/// - Ján, who moves to another branch with a calendar that began in the past.
///
/// Each run has a new employee of its own: the program finds the uid of a person only once.
class FaultCycle {
public:
    /// True when the server runs; errorString() otherwise.
    bool start();
    QString errorString() const { return m_db.errorString(); }

    TestDatabase &db() { return m_db; }
    MySqlProxy &proxy() const { return *m_proxy; }
    QString exportPath() const { return m_export.path(); }
    /// The attendance server's connection, which leads through the proxy.
    QSqlDatabase serverConnection() const { return m_server; }

    /// Restores the tables, the export and the force flag to their initial state, once the clients
    /// of the previous run are gone. False when one stays connected.
    bool begin();
    /// Puts the same export there once more and forces a synchronisation.
    void repeat();

    /// The tables. What is peculiar to the run is replaced: the new employee's numbers are
    /// "<number>" and "<pid>", his uid is "<uid>", and a moment of the run is "now".
    DatabaseState state();
    /// The text of a command or of a line of the log, with the same replacements.
    QString plain(QString text) const;

private:
    QVector<ExportRow> lines() const;
    void copyTables();

    TestDatabase m_db;
    ExportFile m_export;
    std::unique_ptr<MySqlProxy> m_proxy;
    QSqlDatabase m_server;
    std::unique_ptr<StateChanges> m_changes;
    int m_newNumber = 40000;
};
