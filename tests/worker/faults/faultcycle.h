#pragma once

#include "tests/support/exportfile.h"
#include "tests/support/mysqlproxy.h"
#include "tests/support/testdatabase.h"
#include "tests/worker/support/statechanges.h"

#include <QStringList>
#include <QVector>

#include <memory>

/// The cycle into which the faults are injected, and the database that it starts from. It exercises
/// every step of a synchronisation:
///
/// - a new employee with a supervisor, a branch, a calendar and the payroll export,
/// - Mária, who goes on leave (a relationship state) and whose balance differs,
/// - Jana with a new surname, balance and supervisor, and attendance of the current months,
/// - Ján, who moves to another branch with a calendar that began in the past.
///
/// Each run has a new employee: the program looks up the uid of a person only once.
class FaultCycle {
public:
    /// True when the server runs; errorString() otherwise.
    bool start();
    /// As above, with a server that runs and has the reference database, which clients reach at \a
    /// socketPath.
    bool startWith(PrivateMariaDb &server, const QString &socketPath);
    QString errorString() const { return m_db.errorString(); }

    TestDatabase &db() { return m_db; }
    MySqlProxy &proxy() const { return *m_proxy; }
    QString exportPath() const { return m_export.path(); }
    /// The attendance server's connection, which leads through the proxy.
    QSqlDatabase serverConnection() const { return m_server; }
    /// The same with limits for a silent server.
    QSqlDatabase impatientConnection() const { return m_impatient; }

    /// Restores the tables, the export and the force flag to their initial state, once the clients
    /// of the previous run are gone. False when one stays connected.
    bool begin();
    /// Writes the same export again and forces a synchronisation.
    void repeat();

    /// The tables, with placeholders for what differs from run to run: "<number>" and "<pid>" for
    /// the new employee's numbers, "<uid>" for the uid, "now" for a moment of the run.
    DatabaseState state();
    /// The text of a command or of a line of the log, with the same replacements.
    QString plain(QString text) const;
    /// Of the new employee of this run.
    QString newPid() const { return QString::number(m_newNumber) + '1'; }

private:
    QVector<ExportRow> lines() const;
    void prepare(const QString &socketPath);
    void copyTables();

    TestDatabase m_db;
    ExportFile m_export;
    std::unique_ptr<MySqlProxy> m_proxy;
    QSqlDatabase m_server;
    QSqlDatabase m_impatient;
    std::unique_ptr<StateChanges> m_changes;
    int m_newNumber = 40000;
};
