#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QThread>

class MHRWorker;

/// A worker in service, from construction to destruction: in a thread of its own, started, ticking
/// by its timer. It synchronises at its first tick, and then only when it is forced to.
///
/// It ticks every millisecond, which no setting of the worker allows: the tests wait for ticks.
class ServingWorker {
public:
    /// \a database is the connection of the attendance server.
    ServingWorker(const QSqlDatabase &database, const QString &exportPath);
    /// Waits for the running tick, and removes the worker's connection.
    ~ServingWorker();
    ServingWorker(const ServingWorker &) = delete;
    ServingWorker &operator=(const ServingWorker &) = delete;

private:
    QThread m_thread;
    MHRWorker *m_worker; ///< deleted by the end of the thread
    const QString m_connectionName;
};
