#include "mirovahrctl/preview/previewcopy.h"

#include "cli/text.h"
#include "mirovahrctl/preview/previewportions.h"
#include "mirovahrctl/preview/previewschema.h"
#include "mirovahrctl/preview/previewselection.h"

#include <algorithm>

namespace {

/// Characters of rows in one statement.
constexpr int kBatch = 256 * 1024;

// A table may be copied before the one that it refers to, and its rows must not be checked.
constexpr char kNoChecks[] = "SET SESSION foreign_key_checks = 0, unique_checks = 0, "
                             "check_constraint_checks = 0";
constexpr char kChecks[] = "SET SESSION foreign_key_checks = 1, unique_checks = 1, "
                           "check_constraint_checks = 1";

} // namespace

PreviewCopy::PreviewCopy(const PreviewSchema &schema, const PreviewSelection &selection,
                         const QSqlDatabase &server)
    : m_schema(schema)
    , m_selection(selection)
    , m_server(server)
{
}

QString PreviewCopy::baselineName(const PreviewSchema &schema)
{
    return SqlSession::name(schema.name.left(50) + QStringLiteral("_before"));
}

bool PreviewCopy::copyTables(SqlSession &site, const Listener &listener)
{
    if (!createDatabases())
        return false;
    for (const PreviewTable &table : m_schema.tables) {
        if (!copyTable(site, table, listener))
            return false;
    }
    return true;
}

bool PreviewCopy::createDatabases()
{
    const QString ownName = SqlSession::name(m_schema.name);
    const QString kind =
        QStringLiteral("CHARACTER SET %1 COLLATE %2").arg(m_schema.charset, m_schema.collation);
    for (const QString &name : {ownName, baselineName(m_schema)}) {
        m_server.run(QStringLiteral("DROP DATABASE IF EXISTS ") + name);
        m_server.run(QStringLiteral("CREATE DATABASE %1 %2").arg(name, kind));
    }
    return (m_server.run(QStringLiteral("USE ") + ownName) && m_server.prepareForCopying()
            && m_server.run(QLatin1String(kNoChecks)))
        || fail(Text::tr("The copy cannot be created"), m_server);
}

bool PreviewCopy::copyTable(SqlSession &site, const PreviewTable &table, const Listener &listener)
{
    if (!m_server.run(table.definition))
        return fail(Text::tr("The table %1 cannot be created in the copy").arg(table.name),
                    m_server);
    return copyRows(site, table, listener) && keepBaseline(table);
}

bool PreviewCopy::copyRows(SqlSession &site, const PreviewTable &table, const Listener &listener)
{
    const auto take = [&](const QStringList &row) {
        m_tuples += m_tuples.isEmpty() ? QString() : QStringLiteral(", ");
        m_tuples += table.tuple(row);
        listener(++m_copied, m_schema.rowEstimate());
        return m_tuples.size() < kBatch || flush(table);
    };
    const QString select =
        QStringLiteral("SELECT %1 FROM %2 t")
            .arg(table.expressions(QStringLiteral("t")), SqlSession::name(table.name));
    PreviewPortions wholeTable(site, table, table.primaryKey(), QStringLiteral("t"));
    const QStringList portions = m_selection.portionsOf(table);
    const bool isRead =
        std::all_of(portions.cbegin(), portions.cend(), [&](const QString &condition) {
            return condition.isEmpty()
                ? wholeTable.forEachRow(select, QStringLiteral("TRUE"), take)
                : site.forEachRow(select + QStringLiteral(" WHERE ") + condition, take);
        });
    if (isRead && flush(table))
        return true;
    const QString what = Text::tr("The table %1 cannot be copied").arg(table.name);
    return fail(what, site.failed() ? site : m_server);
}

bool PreviewCopy::flush(const PreviewTable &table)
{
    if (m_tuples.isEmpty())
        return true;
    const QString sql = QStringLiteral("INSERT INTO %1 (%2) VALUES ")
                            .arg(SqlSession::name(table.name), table.columnList())
        + m_tuples;
    m_tuples.clear();
    return m_server.run(sql);
}

bool PreviewCopy::keepBaseline(const PreviewTable &table)
{
    const QString name = SqlSession::name(table.name);
    const QString copy = baselineName(m_schema) + QLatin1Char('.') + name;
    return (m_server.run(QStringLiteral("CREATE TABLE %1 LIKE %2").arg(copy, name))
            && m_server.run(QStringLiteral("INSERT INTO %1 (%2) SELECT %2 FROM %3 t")
                                .arg(copy, table.columnList(), table.changingRows())))
        || fail(Text::tr("The table %1 cannot be kept for comparison").arg(table.name), m_server);
}

bool PreviewCopy::createPrograms()
{
    for (const auto *programs : {&m_schema.routines, &m_schema.triggers}) {
        for (const PreviewProgram &program : *programs) {
            if (!createProgram(program))
                return false;
        }
    }
    return m_server.prepareForCopying() && m_server.run(QLatin1String(kChecks));
}

bool PreviewCopy::createProgram(const PreviewProgram &program)
{
    return (m_server.run(QStringLiteral("SET SESSION sql_mode = %1, collation_connection = %2")
                             .arg(SqlSession::literal(program.sqlMode), program.collation))
            && m_server.run(program.definition))
        || fail(Text::tr("%1 cannot be created in the copy").arg(program.name), m_server);
}

bool PreviewCopy::fail(const QString &what, const SqlSession &session)
{
    m_error = QStringLiteral("%1: %2").arg(what, session.errorString());
    return false;
}
