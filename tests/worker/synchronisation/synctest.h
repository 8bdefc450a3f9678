#pragma once

#include "tests/support/exportfile.h"
#include "tests/support/logcapture.h"
#include "tests/support/testdatabase.h"
#include "tests/support/trace.h"
#include "tests/worker/synchronisation/middayzone.h"
#include "worker/mhrworker.h"

#include <QCoreApplication>
#include <QObject>
#include <QStringList>
#include <QVector>
#include <QtTest>

#include <functional>
#include <memory>

/// What the test programs of the synchronisation share: a server of their own with the sample data
/// for every test function, an export file, and a worker that is set up and lives in the test's
/// thread. Its timer never fires there: a tick is a call of checkSync().
class SyncTest : public QObject {
    Q_OBJECT

protected:
    /// Puts a new worker, which has seen nobody, in the place of the old one. It synchronises at
    /// every tick.
    void newWorker(int debugLevel = 0);

    /// Runs a piece of work with the worker's connection open.
    Trace observe(const std::function<void()> &work);

    /// Writes the export and ticks once.
    Trace synchronise(const QVector<ExportRow> &lines);
    /// Ticks once, with the export as it is.
    Trace synchronise();

    /// Makes the next tick a forced one.
    void force();

    /// Makes every query fail that reads a column in a row of \a condition.
    void refuseColumn(const QString &table, const QString &column,
                      const QString &condition = QStringLiteral("TRUE"));

    /// A personal number that no other test of the program uses: the uid of a person is looked up
    /// only once in the life of a program.
    int newPersonalNumber() { return m_nextPersonalNumber++; }

    /// The uid of a person in the table; 0 when there is none.
    int uidOf(uint pid);

    /// Rows "debug level 0" to "debug level 3" with the column `debugLevel`.
    static void addDebugLevels();

    /// How the log shows that a statement failed because a table is not there.
    static QString missingTable(const QString &table);
    /// How the log shows that a statement failed because TestDatabase::refuse() refused it.
    static QString refused();
    /// The same of a query that refuseColumn() refused.
    static QString refusedColumn();

    TestDatabase m_db;
    ExportFile m_export;
    std::unique_ptr<MHRWorker> m_worker;

protected Q_SLOTS:
    void cleanup();

private Q_SLOTS:
    void initTestCase();
    void init();

private:
    void learnUids();

    int m_nextPersonalNumber = 5001;
};

/// Puts the program into the zone of middayZone() and the C locale. Before anything of Qt is used.
void settleProgram();

#define SYNC_TEST_MAIN(TestClass)                                                                  \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        settleProgram();                                                                           \
        QCoreApplication application(argc, argv);                                                  \
        TestClass test;                                                                            \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
