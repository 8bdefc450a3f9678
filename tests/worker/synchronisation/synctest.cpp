#include "tests/worker/synchronisation/synctest.h"

#include <QSqlDatabase>

#include <ctime>

namespace {

constexpr uint kSamplePids[] = {10011, 10021, 10031, 12341, 12351, 12361, 12371, 20012};

} // namespace

void settleProgram()
{
    qputenv("TZ", middayZone());
    qputenv("LC_ALL", "C.UTF-8");
    tzset();
}

void SyncTest::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    newWorker();
    learnUids();
}

void SyncTest::learnUids()
{
    // The uids of the sample are the same in every test, so that none of them depends on which ran
    // before it.
    observe([this] {
        for (const uint pid : kSamplePids)
            m_worker->getUidByPid(pid);
    });
}

void SyncTest::init()
{
    m_db.reset();
    m_export.remove();
    newWorker();
}

void SyncTest::cleanup()
{
    const LogCapture log;
    m_worker->dbClose();
}

void SyncTest::newWorker(int debugLevel)
{
    const LogCapture log;
    m_worker = std::make_unique<MHRWorker>();
    m_worker->setDebugLevel(static_cast<unsigned char>(debugLevel));
    m_worker->setImportFile(m_export.path());
    m_worker->setSyncInterval(1);
    m_worker->setTepDb(m_db.pluginConnection(QStringLiteral("host")));
    m_worker->init();
    m_worker->dbClose();
}

Trace SyncTest::observe(const std::function<void()> &work)
{
    LogCapture log;
    m_worker->dbCheckOpen();
    log.clear();
    m_db.clearStatements();
    work();
    return {log.lines(), m_db.statements()};
}

Trace SyncTest::synchronise(const QVector<ExportRow> &lines)
{
    m_export.write(lines);
    return synchronise();
}

Trace SyncTest::synchronise()
{
    return observe([this] { m_worker->checkSync(); });
}

void SyncTest::force()
{
    m_db.run("UPDATE vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'");
}

int SyncTest::uidOf(uint pid)
{
    return m_db.value(QStringLiteral("SELECT uid FROM people WHERE pid = %1").arg(pid)).toInt();
}

void SyncTest::refuseColumn(const QString &table, const QString &column, const QString &condition)
{
    QStringList values;
    const TableRows columns = m_db.rows("SHOW COLUMNS FROM " + table);
    for (const QStringList &row : columns) {
        const QString name = "`" + row.first() + "`";
        values += row.first() == column
            ? "IF(" + condition + ", refuseValue(), " + name + ") " + name
            : name;
    }
    m_db.hideTable(table);
    m_db.run("CREATE FUNCTION refuseValue() RETURNS INT BEGIN "
             "SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = 'refused by the test'; RETURN 0; END");
    m_db.run("CREATE VIEW " + table + " AS SELECT " + values.join(", ") + " FROM " + table
             + "_hidden");
}

void SyncTest::addDebugLevels()
{
    QTest::addColumn<int>("debugLevel");
    for (int level = 0; level <= 3; ++level)
        QTest::addRow("debug level %d", level) << level;
}

QString SyncTest::missingTable(const QString &table)
{
    return QStringLiteral("[1146]: Table 'tepdb.%1' doesn't exist QMYSQL: Unable to execute query")
        .arg(table);
}

QString SyncTest::refused()
{
    return QStringLiteral("[1644]: refused by the test QMYSQL: Unable to execute query");
}

QString SyncTest::refusedColumn()
{
    return QStringLiteral("[1644]: refused by the test QMYSQL: Unable to store result");
}
