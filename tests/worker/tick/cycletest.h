#pragma once

#include "tests/support/exportfile.h"
#include "tests/support/logcapture.h"
#include "tests/support/testdatabase.h"
#include "worker/mhrworker.h"

#include <QObject>

#include <memory>

/// What the tests of the worker's tick have in common: a database, an export file and a started
/// worker. It lives in the test's thread and no event loop runs there, so it ticks only by tick().
class CycleTest : public QObject {
    Q_OBJECT

protected:
    /// A worker as the plugin sets it up, not yet started. Replaces an earlier one.
    MHRWorker &makeWorker(unsigned char debugLevel = 2);
    /// As above, started, with an empty log.
    MHRWorker &startWorker(unsigned char debugLevel = 2);
    /// One tick; the lines that it logged.
    QStringList tick();
    void tick(int times);
    /// Sets the key of the forced synchronisation in `vars`.
    void setForce(const QString &value);
    QString force();
    /// Statements that the server received from the worker since the last call.
    QStringList takeStatements();

    TestDatabase m_db;
    std::unique_ptr<LogCapture> m_log; ///< of one test function
    std::unique_ptr<ExportFile> m_file; ///< of one test function, not yet written
    std::unique_ptr<MHRWorker> m_worker;

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
};
