#pragma once

#include "tests/support/logcapture.h"
#include "tests/support/testdatabase.h"
#include "tests/support/trace.h"
#include "tests/worker/operations/samplerecord.h"
#include "worker/mhrworker.h"

#include <QObject>
#include <QSqlDatabase>
#include <QStringList>

#include <functional>
#include <memory>

/// What the test programs of the worker's database operations share: a server of their own with
/// empty tables for every test function, and a worker with its connection open. The worker lives in
/// the test's thread and does only what it is told to.
class WorkerTest : public QObject {
    Q_OBJECT
public:
    /// Dates are those of Bratislava, in the log as in Slovakia.
    static void initMain();

protected:
    static constexpr qint64 kFrozenTime = 1700000000;

    /// Empty tables and a new worker. A test program that needs more before each test function has
    /// an init() of its own, which begins with this.
    void setUp();

    void setDebugLevel(int level);

    /// Runs a piece of work.
    Trace observe(const std::function<void()> &work) const;

    /// The worker's own connection.
    static QSqlDatabase connection();
    /// From now on UNIX_TIMESTAMP() gives kFrozenTime to the worker.
    void freezeTime();

    /// Rows "debug level 0" to "debug level 4" with the column `level`.
    static void addDebugLevels();

    /// How the log shows that a statement failed because a table is not there: the code, and the
    /// text.
    static QString missingCode() { return QStringLiteral("1146"); }
    static QString missingText(const QString &table);
    /// How the log shows that a statement failed because TestDatabase::refuse() refused it.
    static QString refusedText();
    /// How the log shows that the server is gone.
    static QString goneText();

    mutable TestDatabase m_db;
    std::unique_ptr<MHRWorker> m_worker;

private Q_SLOTS:
    void initTestCase();
    void init() { setUp(); }
    void cleanup();
};
