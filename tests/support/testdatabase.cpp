#include "tests/support/testdatabase.h"

#include "db/tepdbcontract.h"
#include "tests/support/madedata.h"
#include "tests/support/sqlscript.h"

#include <QFile>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUuid>

#include <algorithm>

namespace {

QString referenceFile(const char *name)
{
    return QStringLiteral(MIROVAHR_REFERENCE_DB_DIR "/%1").arg(name);
}

QString text(const QVariant &value)
{
    return value.isNull() ? QStringLiteral("NULL") : value.toString();
}

/// Calls \a take with each row of a query. The query's record is asked for once: it is made anew
/// each time.
template <typename Take> void forEachRow(QSqlQuery &query, Take take)
{
    const QSqlRecord record = query.record();
    while (query.next())
        take(record);
}

QStringList columns(const QSqlQuery &query, const QSqlRecord &record)
{
    QStringList texts;
    for (int i = 0; i < record.count(); ++i)
        texts += text(query.value(i));
    return texts;
}

QStringList namedColumns(const QSqlQuery &query, const QSqlRecord &record)
{
    QStringList texts;
    for (int i = 0; i < record.count(); ++i)
        texts += record.fieldName(i) + '=' + text(query.value(i));
    return texts;
}

/// Lines of \a rows that \a others lack, a row that occurs twice counted twice.
QStringList missingIn(const QString &mark, const TableRows &rows, TableRows others)
{
    QStringList lines;
    for (const QStringList &row : rows) {
        if (!others.removeOne(row))
            lines += mark + row.join(' ');
    }
    return lines;
}

bool isOfTheDriver(const ServerEvent &event)
{
    const bool statement =
        event.command == "Query" || event.command == "Prepare" || event.command == "Execute";
    // On opening, the driver sets the character set and tries out whether statements can be
    // prepared.
    return !statement || event.text.startsWith("SET NAMES ") || event.text == "SELECT ? + ?";
}

QString hiddenName(const QString &table)
{
    return table + "_hidden";
}

QString triggerName(const QString &event, const QString &table)
{
    return QStringLiteral("refuse_%1_%2").arg(event.toLower(), table);
}

} // namespace

template <> char *QTest::toString(const TableRows &rows)
{
    QStringList lines;
    for (const QStringList &row : rows)
        lines += row.join(" | ");
    return qstrdup(lines.join('\n').toUtf8());
}

TestDatabase::TestDatabase()
    : m_prefix(QStringLiteral("test.%1").arg(QUuid::createUuid().toString(QUuid::Id128)))
{
}

TestDatabase::~TestDatabase()
{
    closeAdministrator();
    for (const QString &name : qAsConst(m_connectionNames))
        QSqlDatabase::removeDatabase(name);
}

bool TestDatabase::attach(PrivateMariaDb &server)
{
    m_server = &server;
    return openAdministrator();
}

bool TestDatabase::start(const QStringList &serverOptions)
{
    // A test that leaves a transaction open must fail at the next reset, not hang. The right to
    // call a routine outlives the routine, so that a test may put another one in its place.
    m_server->setServerOptions(QStringList{"--general-log=1", "--log-output=TABLE",
                                           "--lock-wait-timeout=60", "--automatic-sp-privileges=0"}
                               + serverOptions);
    m_server->setHostRights(PrivateMariaDb::HostRights::None);
    MadeData::use(); // for the other private servers of the test, such as that of a preview
    m_server->setMadeDataFolder(MadeData::referenceDatabase());
    if (!m_server->start() || !openAdministrator())
        return false;
    takeSchema();
    // Its days are those of the server's time zone.
    loadFiles({referenceFile("sample.sql")});
    check(m_baseline.takeRows(m_administrator), "The baseline has no rows", __FILE__, __LINE__);
    return !QTest::currentTestFailed();
}

void TestDatabase::grant(const char *file)
{
    // Once is enough: the server keeps rights on the tables and routines of a dropped database.
    loadFiles({referenceFile(file)});
}

void TestDatabase::reset()
{
    if (!m_baseline.restoreRows(m_administrator)) {
        loadSchema();
        loadFiles({referenceFile("sample.sql")});
    }
    clearStatements();
}

void TestDatabase::resetEmpty()
{
    if (!m_baseline.restoreEmpty(m_administrator))
        loadSchema();
    clearStatements();
}

void TestDatabase::loadSchema()
{
    run(QStringLiteral("DROP DATABASE `%1`").arg(m_server->databaseName()));
    run(QStringLiteral("CREATE DATABASE `%1` CHARACTER SET utf8mb4").arg(m_server->databaseName()));
    run(QStringLiteral("USE `%1`").arg(m_server->databaseName()));
    loadFiles({referenceFile("schema.sql"), referenceFile("routines.sql")});
    takeSchema();
}

void TestDatabase::takeSchema()
{
    const bool taken =
        m_baseline.takeEmpty(m_administrator, m_server->dataDir() + '/' + m_server->databaseName());
    check(taken, "The database cannot be read", __FILE__, __LINE__);
}

void TestDatabase::loadFiles(const QStringList &files)
{
    const QString name = m_prefix + ".load";
    {
        // The files set the session's character set and SQL mode.
        QSqlDatabase session =
            m_server->addConnection(name, PrivateMariaDb::Account::Administrator);
        session.setDatabaseName(m_server->databaseName());
        check(session.open(), session.lastError().text(), __FILE__, __LINE__);
        for (const QString &file : files) {
            QSqlQuery query(session);
            for (const QString &statement : statementsOf(file))
                execute(query, statement, __FILE__, __LINE__);
        }
    }
    QSqlDatabase::removeDatabase(name);
}

QSqlDatabase TestDatabase::pluginConnection(const QString &name)
{
    const QString unique =
        name.isEmpty() ? QStringLiteral("%1.%2").arg(m_prefix).arg(++m_connectionCount) : name;
    if (!m_connectionNames.contains(unique))
        m_connectionNames += unique;
    return m_server->addConnection(unique);
}

QSqlDatabase TestDatabase::openPluginConnection(const QString &name)
{
    QSqlDatabase database = pluginConnection(name);
    const bool open = database.open();
    check(open, database.lastError().text(), __FILE__, __LINE__);
    return database;
}

void TestDatabase::run(const QString &sql, const char *file, int line)
{
    QSqlQuery query(m_administrator);
    execute(query, sql, file, line);
}

QVariant TestDatabase::value(const QString &sql, const char *file, int line)
{
    QSqlQuery query(m_administrator);
    if (!execute(query, sql, file, line) || !query.next())
        return QVariant();
    return query.value(0);
}

TableRows TestDatabase::rows(const QString &sql, const char *file, int line)
{
    TableRows rows;
    QSqlQuery query(m_administrator);
    execute(query, sql, file, line);
    forEachRow(query, [&](const QSqlRecord &record) { rows += columns(query, record); });
    return rows;
}

QString TestDatabase::dump(const QString &table, const char *file, int line)
{
    QStringList lines;
    const TableRows rows = tableRows(table, file, line);
    for (const QStringList &row : rows)
        lines += row.join(' ');
    return lines.join('\n');
}

TableRows TestDatabase::tableRows(const QString &table, const char *file, int line)
{
    TableRows rows;
    QSqlQuery query(m_administrator);
    execute(query, QStringLiteral("SELECT * FROM `%1`").arg(table), file, line);
    forEachRow(query, [&](const QSqlRecord &record) { rows += namedColumns(query, record); });
    std::sort(rows.begin(), rows.end());
    return rows;
}

DatabaseState TestDatabase::dumpAll(const QStringList &exceptTables, const char *file, int line)
{
    DatabaseState state;
    const TableRows tables = rows("SHOW TABLES", file, line);
    for (const QStringList &table : tables) {
        if (!exceptTables.contains(table.first()))
            state.insert(table.first(), tableRows(table.first(), file, line));
    }
    return state;
}

QString TestDatabase::difference(const DatabaseState &before, const DatabaseState &after)
{
    QStringList names = before.keys() + after.keys();
    names.removeDuplicates();
    names.sort();
    QStringList lines;
    for (const QString &table : qAsConst(names)) {
        lines += missingIn("- " + table + ": ", before.value(table), after.value(table));
        lines += missingIn("+ " + table + ": ", after.value(table), before.value(table));
    }
    return lines.join('\n');
}

void TestDatabase::addOwnNumbers()
{
    const TableRows numbered = rows("SELECT table_name FROM information_schema.columns WHERE"
                                    " table_schema = DATABASE() AND extra LIKE 'auto_increment%'");
    for (const TepDbContract::Table &table : TepDbContract::kTables) {
        if (numbered.contains({table.name}))
            continue;
        run(QStringLiteral(
                "ALTER TABLE `%1` DROP PRIMARY KEY, ADD UNIQUE KEY (`%2`), ADD own_number"
                " INT UNSIGNED NOT NULL INVISIBLE AUTO_INCREMENT PRIMARY KEY")
                .arg(table.name, QString(table.keys[0].columns).replace(' ', "`, `")));
    }
}

void TestDatabase::removeOwnNumbers()
{
    for (const TepDbContract::Table &table : TepDbContract::kTables) {
        if (*table.ownNumber != '\0')
            run(QStringLiteral("ALTER TABLE `%1` DROP `%2`").arg(table.name, table.ownNumber));
    }
}

void TestDatabase::widenIds()
{
    const TableRows ids = rows(
        "SELECT CONCAT('ALTER TABLE `', table_name, '` MODIFY ', column_name, ' INT UNSIGNED ',"
        " IF(is_nullable = 'YES', 'NULL ', 'NOT NULL '), extra) FROM"
        " information_schema.columns WHERE table_schema = DATABASE() AND data_type ="
        " 'smallint' AND column_name IN ('bid', 'aid')");
    for (const QStringList &id : ids)
        run(id.first());
}

void TestDatabase::clearStatements()
{
    run("TRUNCATE TABLE mysql.general_log");
}

QStringList TestDatabase::statements()
{
    QStringList statements;
    const QVector<ServerEvent> all = events();
    for (const ServerEvent &event : all) {
        if (isOfTheDriver(event))
            continue;
        statements +=
            event.command == "Query" ? event.text : event.command.toUpper() + ": " + event.text;
    }
    return statements;
}

QVector<ServerEvent> TestDatabase::events()
{
    QVector<ServerEvent> events;
    QSqlQuery query(m_administrator);
    execute(query,
            "SELECT command_type, CONVERT(argument USING utf8mb4), thread_id"
            " FROM mysql.general_log WHERE user_host LIKE '"
                + m_server->userName() + "[%' OR user_host LIKE '[" + m_server->userName() + "]%'",
            __FILE__, __LINE__);
    while (query.next())
        events.append(
            {query.value(0).toString(), query.value(1).toString(), query.value(2).toULongLong()});
    return events;
}

void TestDatabase::stopServer()
{
    closeAdministrator();
    const bool stopped = m_server->stop();
    check(stopped, m_server->errorString(), __FILE__, __LINE__);
}

void TestDatabase::killServer()
{
    // The server writes its log to the file once a second only, unless told otherwise. What the
    // test did before must not be lost with the process.
    run("SET GLOBAL innodb_flush_log_at_trx_commit = 1");
    run("FLUSH ENGINE LOGS");
    closeAdministrator();
    m_server->kill();
}

void TestDatabase::startServer()
{
    const bool started = m_server->start() && openAdministrator();
    check(started, m_server->errorString(), __FILE__, __LINE__);
}

void TestDatabase::hideTable(const QString &table)
{
    run(QStringLiteral("RENAME TABLE `%1` TO `%2`").arg(table, hiddenName(table)));
}

void TestDatabase::restoreTable(const QString &table)
{
    run(QStringLiteral("RENAME TABLE `%1` TO `%2`").arg(hiddenName(table), table));
}

void TestDatabase::refuse(const QString &event, const QString &table, const QString &message,
                          const QString &condition)
{
    run(QStringLiteral("CREATE TRIGGER `%1` BEFORE %2 ON `%3` FOR EACH ROW IF %4 THEN"
                       " SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = '%5'; END IF")
            .arg(triggerName(event, table), event, table, condition, message));
}

void TestDatabase::allow(const QString &event, const QString &table)
{
    run(QStringLiteral("DROP TRIGGER `%1`").arg(triggerName(event, table)));
}

bool TestDatabase::openAdministrator()
{
    m_administrator =
        m_server->addConnection(m_prefix + ".root", PrivateMariaDb::Account::Administrator);
    m_administrator.setDatabaseName(m_server->databaseName());
    return m_administrator.open();
}

void TestDatabase::closeAdministrator()
{
    m_administrator = QSqlDatabase();
    if (QSqlDatabase::contains(m_prefix + ".root"))
        QSqlDatabase::removeDatabase(m_prefix + ".root");
}

bool TestDatabase::execute(QSqlQuery &query, const QString &sql, const char *file, int line)
{
    const bool done = query.exec(sql);
    return check(done, query.lastError().text() + " - " + sql, file, line);
}

bool TestDatabase::check(bool ok, const QString &error, const char *file, int line)
{
    if (!ok)
        QTest::qFail(qPrintable(error), file, line);
    return ok;
}
