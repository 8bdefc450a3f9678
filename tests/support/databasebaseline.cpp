#include "tests/support/databasebaseline.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

#include <algorithm>

#include <sys/stat.h>

namespace {

/// Holds a copy of every table that has rows.
const QString kRows = QStringLiteral("rows_of_the_baseline");

bool run(const QSqlDatabase &administrator, const QString &sql)
{
    return QSqlQuery(administrator).exec(sql);
}

/// The rows of a query, their columns joined; a line that no row has when it fails.
QStringList lines(const QSqlDatabase &administrator, const QString &sql)
{
    QStringList result;
    QSqlQuery query(administrator);
    if (!query.exec(sql))
        return {QStringLiteral("cannot be read")};
    const int columns = query.record().count();
    while (query.next()) {
        QStringList values;
        for (int i = 0; i < columns; ++i)
            values += query.value(i).toString();
        result += values.join('|');
    }
    return result;
}

/// When a file was written last, and whether it is still the same one.
QString stamp(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return QStringLiteral("gone");
    return QStringLiteral("%1 %2 %3 %4")
        .arg(path)
        .arg(status.st_ino)
        .arg(status.st_mtim.tv_sec)
        .arg(status.st_mtim.tv_nsec);
}

QString quoted(const QString &name)
{
    return QStringLiteral("`%1`").arg(name);
}

/// All columns of a table, the invisible ones too, as an SQL list.
QString columns(const QSqlDatabase &administrator, const QString &table)
{
    const QStringList names =
        lines(administrator,
              QStringLiteral("SELECT CONCAT('`', column_name, '`') FROM information_schema.columns"
                             " WHERE table_schema = DATABASE() AND table_name = '%1'"
                             " ORDER BY ordinal_position")
                  .arg(table));
    return names.join(QStringLiteral(", "));
}

} // namespace

bool DatabaseBaseline::takeEmpty(const QSqlDatabase &administrator, const QString &folder)
{
    m_folder = folder;
    m_tables = lines(administrator, QStringLiteral("SHOW TABLES"));
    m_definitions = definitions(administrator);
    m_empty = content(administrator, m_tables);
    return m_empty.size() == m_tables.size();
}

bool DatabaseBaseline::takeRows(const QSqlDatabase &administrator)
{
    m_full = content(administrator, m_tables);
    bool done = run(administrator, QStringLiteral("CREATE DATABASE IF NOT EXISTS ") + kRows);
    for (const QString &table : qAsConst(m_tables)) {
        if (m_full.value(table) == m_empty.value(table))
            continue;
        const QString names = columns(administrator, table);
        m_columns.insert(table, names);
        done = done
            && run(administrator,
                   QStringLiteral("CREATE OR REPLACE TABLE %1.%2 AS SELECT %3 FROM %2")
                       .arg(kRows, quoted(table), names));
    }
    return done && m_full.size() == m_tables.size();
}

bool DatabaseBaseline::restoreEmpty(const QSqlDatabase &administrator) const
{
    return restore(administrator, m_empty);
}

bool DatabaseBaseline::restoreRows(const QSqlDatabase &administrator) const
{
    return restore(administrator, m_full);
}

bool DatabaseBaseline::restore(const QSqlDatabase &administrator, const Content &wanted) const
{
    if (m_definitions.isEmpty() || definitions(administrator) != m_definitions)
        return false;
    // Rows of an open transaction would not be seen, and come afterwards.
    QStringList names;
    for (const QString &table : m_tables)
        names += quoted(table) + QStringLiteral(" WRITE");
    if (!run(administrator, QStringLiteral("LOCK TABLES ") + names.join(QStringLiteral(", ")))
        || !run(administrator, QStringLiteral("UNLOCK TABLES")))
        return false;
    const Content present = content(administrator, m_tables);
    QStringList changed;
    for (const QString &table : m_tables) {
        const TableContent before = present.value(table);
        const TableContent after = wanted.value(table);
        if (before == after)
            continue;
        changed += table;
        if (!clear(administrator, table, before.nextNumber != after.nextNumber)
            || (after.checksum != m_empty.value(table).checksum && !fill(administrator, table)))
            return false;
    }
    const Content restored = changed.isEmpty() ? Content() : content(administrator, changed);
    return std::all_of(changed.cbegin(), changed.cend(), [&](const QString &table) {
        return restored.value(table) == wanted.value(table);
    });
}

/// Only TRUNCATE lets the automatic numbers begin again, and it costs ten times as much.
bool DatabaseBaseline::clear(const QSqlDatabase &administrator, const QString &table,
                             bool restartsNumbers)
{
    return run(
        administrator,
        (restartsNumbers ? QStringLiteral("TRUNCATE TABLE ") : QStringLiteral("DELETE FROM "))
            + quoted(table));
}

bool DatabaseBaseline::fill(const QSqlDatabase &administrator, const QString &table) const
{
    return run(administrator,
               QStringLiteral("INSERT INTO %2 (%3) SELECT %3 FROM %1.%2")
                   .arg(kRows, quoted(table), m_columns.value(table)));
}

DatabaseBaseline::Content DatabaseBaseline::content(const QSqlDatabase &administrator,
                                                    const QStringList &tables)
{
    Content result;
    QStringList names;
    for (const QString &table : tables)
        names += quoted(table);
    QSqlQuery query(administrator);
    if (!query.exec(QStringLiteral("CHECKSUM TABLE ") + names.join(QStringLiteral(", "))))
        return {};
    while (query.next()) {
        const QString table = query.value(0).toString().section('.', 1);
        result[table].checksum = query.value(1).toString();
    }
    if (!query.exec(QStringLiteral("SELECT table_name, auto_increment FROM"
                                   " information_schema.tables WHERE table_schema = DATABASE()"
                                   " AND auto_increment IS NOT NULL")))
        return {};
    while (query.next()) {
        const auto table = result.find(query.value(0).toString());
        if (table != result.end())
            table->nextNumber = query.value(1).toString();
    }
    return result;
}

/// The files that define tables and triggers, and the routines.
QStringList DatabaseBaseline::definitions(const QSqlDatabase &administrator) const
{
    QStringList result;
    const QDir folder(m_folder);
    for (const QString &name : folder.entryList(
             {QStringLiteral("*.frm"), QStringLiteral("*.TR?"), QStringLiteral("*.opt")},
             QDir::Files))
        result += stamp(folder.filePath(name));
    return result
        + lines(administrator, QStringLiteral("SELECT * FROM mysql.proc WHERE db = DATABASE()"))
        + lines(administrator, QStringLiteral("SELECT * FROM mysql.event WHERE db = DATABASE()"));
}
