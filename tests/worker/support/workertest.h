#pragma once

#include "tests/support/exportfile.h"
#include "tests/support/logcapture.h"
#include "tests/support/testdatabase.h"
#include "tests/support/trace.h"
#include "tests/worker/support/middayzone.h"
#include "worker/mhrworker.h"

#include <QObject>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

/// What the test programs of the worker share: a server of their own, an export file, the captured
/// log, and a worker. The worker lives in the test's thread, where no event loop runs: it ticks
/// only by tick() and synchronise().
class WorkerTest : public QObject {
    Q_OBJECT
public:
    /// What a test function finds in the database.
    enum class Tables { Sample, Empty };

    explicit WorkerTest(Tables tables = Tables::Sample)
        : m_tables(tables)
    {
    }

    /// QtTest calls it before anything of Qt is used.
    static void initMain() { settleProgram(); }

protected:
    // Each of the first three replaces an earlier worker and its connection.

    /// A worker that knows its database and its export, and is not set up.
    MHRWorker &makeWorker(int debugLevel = 2);
    /// As above, started as the plugin starts it. It removes the export. The log is empty then.
    MHRWorker &startWorker(int debugLevel = 2);
    /// A worker that is set up, with its connection open, and has no timer. It synchronises at
    /// every tick. The log is empty then. init() makes one.
    MHRWorker &newWorker(int debugLevel = 0);
    void dropWorker();

    void setDebugLevel(int level);
    /// Rows "debug level 0" to "debug level 4" with the column `debugLevel`.
    static void addDebugLevels();

    /// Runs a piece of work with the worker's connection open.
    Trace observe(const std::function<void()> &work);
    /// One tick; the lines that it logged.
    QStringList tick();
    void tick(int times);
    /// One tick, with the worker's connection open beforehand and the export as it is.
    Trace synchronise();
    /// Writes the export first.
    Trace synchronise(const QVector<ExportRow> &lines);

    /// Sets the flag of the forced synchronisation in `vars`.
    void force(const QString &value = QStringLiteral("1"));
    QString forceFlag();

    /// A personal number that no other test of the program uses: the uid of a person is looked up
    /// only once in the life of a program.
    int newPersonalNumber() { return m_nextPersonalNumber++; }
    /// The uid of a person in the table; 0 when there is none.
    int uidOf(uint pid);

    TestDatabase m_db;
    std::unique_ptr<LogCapture> m_log; ///< of one test function
    std::unique_ptr<ExportFile> m_export; ///< of one test function, not yet written
    std::unique_ptr<MHRWorker> m_worker;

protected Q_SLOTS:
    void init();
    void cleanup();

private Q_SLOTS:
    void initTestCase();

private:
    void learnUids();

    const Tables m_tables;
    int m_nextPersonalNumber = 5001;
};
