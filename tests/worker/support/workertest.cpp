#include "tests/worker/operations/workertest.h"

#include "tests/support/verifysql.h"

#include <QtTest>

#include <ctime>

namespace {

const QString kHostConnection = "host";
const QString kWorkerConnection = "YAV.tepdb.MirovaHR";

} // namespace

void WorkerTest::initMain()
{
    qputenv("TZ", "Europe/Bratislava");
    qputenv("LC_ALL", "sk_SK.UTF-8");
    tzset();
}

void WorkerTest::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
}

void WorkerTest::setUp()
{
    m_db.resetEmpty();
    m_worker = std::make_unique<MHRWorker>();
    m_worker->setTepDb(m_db.pluginConnection(kHostConnection));
    m_worker->init();
    QVERIFY(m_worker->dbCheckOpen());
}

void WorkerTest::cleanup()
{
    m_worker.reset();
    QSqlDatabase::removeDatabase(kWorkerConnection);
    QSqlDatabase::removeDatabase(kHostConnection);
}

void WorkerTest::setDebugLevel(int level)
{
    m_worker->setDebugLevel(static_cast<unsigned char>(level));
}

Trace WorkerTest::observe(const std::function<void()> &work) const
{
    m_db.clearStatements();
    QStringList lines;
    {
        const LogCapture log;
        work();
        lines = log.lines();
    }
    return {lines, m_db.statements()};
}

QSqlDatabase WorkerTest::connection()
{
    return QSqlDatabase::database(kWorkerConnection, false);
}

void WorkerTest::freezeTime()
{
    QSqlQuery query(connection());
    VERIFY_SQL(query, query.exec(QString("SET timestamp = %1").arg(kFrozenTime)));
}

void WorkerTest::addDebugLevels()
{
    QTest::addColumn<int>("level");
    for (int level = 0; level <= 4; ++level)
        QTest::addRow("debug level %d", level) << level;
}

QString WorkerTest::missingText(const QString &table)
{
    return "Table 'tepdb." + table + "' doesn't exist QMYSQL: Unable to execute query";
}

QString WorkerTest::refusedText()
{
    return "refused by the test QMYSQL: Unable to execute query";
}

QString WorkerTest::goneText()
{
    return "Server has gone away QMYSQL: Unable to execute query";
}
