#include "tests/worker/support/workertest.h"

#include <QSqlDatabase>
#include <QTest>

namespace {

constexpr uint kSamplePids[] = {10011, 10021, 10031, 12341, 12351, 12361, 12371, 20012};

} // namespace

void WorkerTest::initTestCase()
{
    // What was committed survives killServer().
    QVERIFY2(m_db.start({"--innodb-flush-log-at-trx-commit=2"}), qPrintable(m_db.errorString()));
    if (m_tables == Tables::Sample)
        learnUids();
}

/// The uids of the sample are the same in every test, so that none of them depends on which ran
/// before it.
void WorkerTest::learnUids()
{
    WorkerTest::init();
    for (const uint pid : kSamplePids)
        m_worker->getUidByPid(pid);
    WorkerTest::cleanup();
}

void WorkerTest::init()
{
    if (m_tables == Tables::Empty)
        m_db.resetEmpty();
    else
        m_db.reset();
    m_log = std::make_unique<LogCapture>();
    m_export = std::make_unique<ExportFile>();
    newWorker();
}

void WorkerTest::cleanup()
{
    dropWorker();
    m_export.reset();
    m_log.reset();
}

void WorkerTest::dropWorker()
{
    m_worker.reset();
    QSqlDatabase::removeDatabase(QStringLiteral("YAV.tepdb.MirovaHR"));
}

MHRWorker &WorkerTest::makeWorker(int debugLevel)
{
    dropWorker();
    m_worker = std::make_unique<MHRWorker>();
    setDebugLevel(debugLevel);
    m_worker->setImportFile(m_export->path());
    m_worker->setTepDb(m_db.pluginConnection());
    return *m_worker;
}

MHRWorker &WorkerTest::startWorker(int debugLevel)
{
    makeWorker(debugLevel);
    m_worker->setDeleteFileAfterImport(true);
    m_worker->start();
    m_log->clear();
    return *m_worker;
}

MHRWorker &WorkerTest::newWorker(int debugLevel)
{
    makeWorker(debugLevel);
    m_worker->setSyncInterval(1);
    m_worker->init();
    m_worker->dbCheckOpen();
    m_log->clear();
    return *m_worker;
}

void WorkerTest::setDebugLevel(int level)
{
    m_worker->setDebugLevel(static_cast<unsigned char>(level));
}

void WorkerTest::addDebugLevels()
{
    QTest::addColumn<int>("debugLevel");
    for (int level = 0; level <= 4; ++level)
        QTest::addRow("debug level %d", level) << level;
}

Trace WorkerTest::observe(const std::function<void()> &work)
{
    m_worker->dbCheckOpen();
    m_log->clear();
    m_db.clearStatements();
    work();
    return {m_log->lines(), m_db.statements()};
}

QStringList WorkerTest::tick()
{
    m_log->clear();
    m_worker->checkSync();
    return m_log->lines();
}

void WorkerTest::tick(int times)
{
    for (int i = 0; i < times; ++i)
        m_worker->checkSync();
}

Trace WorkerTest::synchronise()
{
    return observe([this] { m_worker->checkSync(); });
}

Trace WorkerTest::synchronise(const QVector<ExportRow> &lines)
{
    m_export->write(lines);
    return synchronise();
}

void WorkerTest::force(const QString &value)
{
    m_db.run("REPLACE INTO vars (name, value) VALUES ('YAV.MHRWorker.forceSync', '" + value + "')");
}

QString WorkerTest::forceFlag()
{
    return m_db.value("SELECT value FROM vars WHERE name = 'YAV.MHRWorker.forceSync'").toString();
}

int WorkerTest::uidOf(uint pid)
{
    return m_db.value(QStringLiteral("SELECT uid FROM people WHERE pid = %1").arg(pid)).toInt();
}
