#include "tests/worker/tick/cycletest.h"

#include <QtTest>

MHRWorker &CycleTest::makeWorker(unsigned char debugLevel)
{
    m_worker = std::make_unique<MHRWorker>();
    m_worker->setDebugLevel(debugLevel);
    m_worker->setTepDb(m_db.pluginConnection());
    m_worker->setImportFile(m_file->path());
    m_worker->setDeleteFileAfterImport(true);
    return *m_worker;
}

MHRWorker &CycleTest::startWorker(unsigned char debugLevel)
{
    makeWorker(debugLevel);
    m_worker->start();
    m_log->clear();
    return *m_worker;
}

QStringList CycleTest::tick()
{
    m_log->clear();
    m_worker->checkSync();
    return m_log->lines();
}

void CycleTest::tick(int times)
{
    for (int i = 0; i < times; ++i)
        m_worker->checkSync();
}

void CycleTest::setForce(const QString &value)
{
    m_db.run("REPLACE INTO vars (name, value) VALUES ('YAV.MHRWorker.forceSync', '" + value + "')");
}

QString CycleTest::force()
{
    return m_db.value("SELECT value FROM vars WHERE name = 'YAV.MHRWorker.forceSync'").toString();
}

QStringList CycleTest::takeStatements()
{
    const QStringList statements = m_db.statements();
    m_db.clearStatements();
    return statements;
}

void CycleTest::initTestCase()
{
    // What was committed survives killServer().
    QVERIFY2(m_db.start({"--innodb-flush-log-at-trx-commit=2"}), qPrintable(m_db.errorString()));
}

void CycleTest::init()
{
    m_db.reset();
    m_log = std::make_unique<LogCapture>();
    m_file = std::make_unique<ExportFile>();
}

void CycleTest::cleanup()
{
    m_worker.reset();
    QSqlDatabase::removeDatabase("YAV.tepdb.MirovaHR");
    m_file.reset();
    m_log.reset();
}
