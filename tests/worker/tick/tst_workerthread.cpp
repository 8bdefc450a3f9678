#include "tests/support/exportfile.h"
#include "tests/support/logcapture.h"
#include "tests/support/testdatabase.h"
#include "tests/worker/support/commandgate.h"
#include "tests/worker/support/inthreadof.h"
#include "worker/mhrworker.h"

#include <QRegularExpression>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <memory>

namespace {

/// A worker in a thread of its own, as the plugin runs it: this thread is the host's, and it has no
/// event loop.
class ThreadedWorker {
public:
    explicit ThreadedWorker(TestDatabase &db)
        : m_worker(new MHRWorker)
    {
        m_worker->moveToThread(&m_thread);
        m_worker->setDebugLevel(2);
        m_worker->setTepDb(db.pluginConnection());
        QObject::connect(&m_thread, &QThread::started, m_worker, &MHRWorker::start);
        QObject::connect(&m_thread, &QThread::finished, m_worker, &MHRWorker::deleteLater);
    }
    ~ThreadedWorker() { end(); }
    ThreadedWorker(const ThreadedWorker &) = delete;
    ThreadedWorker &operator=(const ThreadedWorker &) = delete;

    MHRWorker *operator->() { return m_worker; }
    MHRWorker *get() { return m_worker; }
    void startThread() { m_thread.start(); }
    void end()
    {
        m_thread.quit();
        if (!m_thread.wait(kPatienceMs))
            qFatal("The worker's thread does not end.");
    }

    /// In the worker's thread, after all that was queued there.
    void tick()
    {
        runInThreadOf(m_worker, [this] { m_worker->checkSync(); });
    }
    /// Which of its timers run, the oldest first.
    QVector<bool> activity()
    {
        QVector<bool> activity;
        runInThreadOf(m_worker, [this, &activity] {
            for (const QTimer *timer : m_worker->findChildren<QTimer *>())
                activity += timer->isActive();
        });
        return activity;
    }

private:
    QThread m_thread;
    MHRWorker *m_worker;
};

} // namespace

class TestWorkerThread : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void theThreadsStartStartsTheWorker();
    void stopRightAfterTheThreadsStartGivesNoTick();
    void stopRightAfterStartGivesNoTick();
    void startAndStopAreLoggedAtOnceInTheCallersThread();
    void startFromTheHostsThreadLeavesEverythingInTheWorkersThread();
    void aSecondStartTicksTwiceAsOftenAndOneStopEndsTheNewestTimer();
    void theTimerTicksInTheWorkersThread();
    void theHostDoesNotWaitForARunningSynchronisation();
    void aStopDuringASynchronisationLetsItFinish();
    void theEndOfTheThreadDeletesTheWorkerInItsThread();
    void theEndOfTheThreadWaitsForARunningSynchronisation();

private:
    TestDatabase m_db;
    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<ExportFile> m_file;
};

void TestWorkerThread::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
}

void TestWorkerThread::init()
{
    m_db.reset();
    m_log = std::make_unique<LogCapture>();
    m_file = std::make_unique<ExportFile>();
}

void TestWorkerThread::cleanup()
{
    // Qt's own warnings begin with the name of a class of Qt.
    QCOMPARE(m_log->lines().filter(QRegularExpression("^[WC] Q")), QStringList());
    QSqlDatabase::removeDatabase("YAV.tepdb.MirovaHR");
    m_log.reset();
    m_file.reset();
}

void TestWorkerThread::theThreadsStartStartsTheWorker()
{
    ThreadedWorker worker(m_db);
    worker.startThread();
    QCOMPARE(worker.activity(), QVector<bool>{true});
    const auto threads = m_log->threadsOf("MHRWorker::start()");
    QCOMPARE(threads.size(), 1);
    QVERIFY(!threads.contains(QThread::currentThreadId()));
    QCOMPARE(m_log->threadsOf("MHRWorker::init()"), threads);
}

void TestWorkerThread::stopRightAfterTheThreadsStartGivesNoTick()
{
    ThreadedWorker worker(m_db);
    worker.startThread();
    worker->stop();
    QCOMPARE(worker.activity(), QVector<bool>{false});
}

void TestWorkerThread::stopRightAfterStartGivesNoTick()
{
    ThreadedWorker worker(m_db);
    worker.startThread();
    worker->stop();
    worker->start();
    worker->stop();
    QCOMPARE(worker.activity(), QVector<bool>({false, false}));
}

void TestWorkerThread::startAndStopAreLoggedAtOnceInTheCallersThread()
{
    ThreadedWorker worker(m_db);
    worker.startThread();
    QCOMPARE(worker.activity(), QVector<bool>{true});
    m_log->clear();

    worker->stop();
    QCOMPARE(m_log->lines(), QStringList("D MHRWorker::init()"));
    worker->start();
    QCOMPARE(m_log->lines().mid(0, 2),
             QStringList({"D MHRWorker::init()", "D MHRWorker::start()"}));
    QCOMPARE(worker.activity(), QVector<bool>({false, true}));
    const QVector<LogMessage> messages = m_log->messages();
    QCOMPARE(messages.size(), 3);
    QCOMPARE(messages.at(0).threadId, QThread::currentThreadId());
    QCOMPARE(messages.at(1).threadId, QThread::currentThreadId());
    // What start() sets up is set up where it is used.
    QCOMPARE(messages.at(2).text, QString("MHRWorker::init()"));
    QVERIFY(messages.at(2).threadId != QThread::currentThreadId());
}

void TestWorkerThread::startFromTheHostsThreadLeavesEverythingInTheWorkersThread()
{
    ThreadedWorker worker(m_db);
    worker.startThread();
    worker->stop();
    worker->start();
    QStringList strays;
    runInThreadOf(worker.get(), [&worker, &strays] {
        for (const QObject *child : worker->findChildren<QObject *>()) {
            if (child->thread() != worker->thread())
                strays += child->metaObject()->className();
        }
    });
    QCOMPARE(strays, QStringList());
    QCOMPARE(worker.activity().size(), 2);
}

void TestWorkerThread::aSecondStartTicksTwiceAsOftenAndOneStopEndsTheNewestTimer()
{
    ThreadedWorker worker(m_db);
    worker->setInterval(1000);
    worker.startThread();
    worker->start();
    QCOMPARE(worker.activity(), QVector<bool>({true, true}));
    // Each timer ticks before either ticks for the second time.
    runInThreadOf(worker.get(), [&worker] {
        int number = 0;
        for (const QTimer *timer : worker->findChildren<QTimer *>()) {
            const int mark = ++number;
            QObject::connect(timer, &QTimer::timeout, worker.get(),
                             [mark] { qDebug("timer %i", mark); });
        }
    });
    QVERIFY(m_log->waitForLine("D timer 1"));
    QVERIFY(m_log->waitForLine("D timer 2"));
    QVERIFY(m_log->contains("D MHRWorker::checkSync(): #2"));

    worker->stop();
    QCOMPARE(worker.activity(), QVector<bool>({true, false}));
    worker->stop();
    QCOMPARE(worker.activity(), QVector<bool>({true, false}));
}

void TestWorkerThread::theTimerTicksInTheWorkersThread()
{
    ThreadedWorker worker(m_db);
    worker->setInterval(1000);
    worker->setImportFile(m_file->path());
    worker.startThread();
    // The timer of a start from the host's thread is to tick, not the first one.
    worker->stop();
    worker->start();
    QVERIFY(m_log->waitForLine("D MHRWorker: END synchronization #1 (waiting records: 0)"));
    const auto workersThread =
        m_log->threadsOf("MHRWorker: END synchronization #1 (waiting records: 0)");
    QVERIFY(!workersThread.contains(QThread::currentThreadId()));
    for (const char *text : {"MHRWorker::checkSync(): #1", "MHRWorker::loadAndParseData()",
                             "MHRWorker: BEGIN synchronization #1 (force: NO)"})
        QCOMPARE(m_log->threadsOf(text), workersThread);
}

void TestWorkerThread::theHostDoesNotWaitForARunningSynchronisation()
{
    CommandGate gate;
    ThreadedWorker worker(m_db);
    worker->setSyncCommand(gate.command());
    worker->setSyncCommandRunCondition(2);
    worker.startThread();
    QMetaObject::invokeMethod(worker.get(), "checkSync", Qt::QueuedConnection);
    gate.waitForCommand();
    m_log->clear();

    worker->stop();
    worker->start();
    worker->stop();
    QCOMPARE(m_log->lines(),
             QStringList({"D MHRWorker::init()", "D MHRWorker::start()", "D MHRWorker::init()"}));
    gate.open();
    QCOMPARE(worker.activity(), QVector<bool>({false, false}));
}

void TestWorkerThread::aStopDuringASynchronisationLetsItFinish()
{
    CommandGate gate;
    m_file->write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    ThreadedWorker worker(m_db);
    worker->setImportFile(m_file->path());
    worker->setSyncCommand(gate.command());
    worker->setSyncCommandRunCondition(2);
    worker.startThread();
    QMetaObject::invokeMethod(worker.get(), "checkSync", Qt::QueuedConnection);
    gate.waitForCommand();
    worker->stop();
    gate.open();
    QCOMPARE(worker.activity(), QVector<bool>{false});
    QVERIFY(m_log->contains("D MHRWorker: END synchronization #1 (waiting records: 0)"));
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people WHERE pid = 77771").toInt(), 1);
}

void TestWorkerThread::theEndOfTheThreadDeletesTheWorkerInItsThread()
{
    ThreadedWorker worker(m_db);
    QObject::connect(worker.get(), &QObject::destroyed, [] { qDebug("deleted"); });
    worker.startThread();
    worker.tick();
    worker.end();
    QCOMPARE(m_log->count("D deleted"), 1);
    QCOMPARE(m_log->threadsOf("deleted"), m_log->threadsOf("MHRWorker::checkSync(): #1"));
}

void TestWorkerThread::theEndOfTheThreadWaitsForARunningSynchronisation()
{
    CommandGate gate;
    QVector<ExportRow> people;
    for (int number = 7001; number <= 7050; ++number)
        people += ExportRow().with(&ExportRow::osobniCislo, number);
    m_file->write(people);
    ThreadedWorker worker(m_db);
    worker->setImportFile(m_file->path());
    worker->setSyncCommand(gate.command());
    worker->setSyncCommandRunCondition(2);
    worker.startThread();
    QMetaObject::invokeMethod(worker.get(), "checkSync", Qt::QueuedConnection);
    gate.waitForCommand();
    gate.open();
    worker.end();
    QVERIFY(m_log->contains("D MHRWorker: END synchronization #1 (waiting records: 0)"));
    QCOMPARE(
        m_db.value("SELECT COUNT(*) FROM people WHERE pid DIV 10 BETWEEN 7001 AND 7050").toInt(),
        50);
}

QTEST_GUILESS_MAIN(TestWorkerThread)
#include "tst_workerthread.moc"
