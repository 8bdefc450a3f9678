#include "mirovahrctl/preview/previewsql.h"

#include "mirovahrctl/preview/previewdiff.h"
#include "mirovahrctl/preview/previewscript.h"
#include "mirovahrctl/report/moment.h"

#include <QDateTime>
#include <QIODevice>

namespace {

constexpr char kBegin[] = "SET @old_foreign_key_checks = @@SESSION.foreign_key_checks,\n"
                          "    SESSION foreign_key_checks = 0;\n"
                          "START TRANSACTION;\n";

constexpr char kEnd[] = "COMMIT;\n"
                        "SET SESSION foreign_key_checks = @old_foreign_key_checks;\n";

/// The condition that finds the row. Where rows may repeat, any of them will do.
QString condition(const PreviewChange &change)
{
    const PreviewTable &table = *change.table;
    QStringList conditions;
    for (int i = 0; i < table.columns.size(); ++i) {
        const PreviewColumn &column = table.columns.at(i);
        if (table.key.isEmpty() || table.key.contains(column.name)) {
            conditions +=
                QStringLiteral("%1 <=> %2")
                    .arg(SqlSession::name(column.name), column.literal(change.before.at(i)));
        }
    }
    return conditions.join(QStringLiteral(" AND "))
        + (table.key.isEmpty() ? QStringLiteral(" LIMIT 1") : QString());
}

QString comment(const PreviewSchema &schema)
{
    QString text =
        QStringLiteral("-- What a forced synchronisation would change in the database %1,\n"
                       "-- by a preview of %2.\n")
            .arg(schema.name.simplified(), Moment::fileText(QDateTime::currentDateTime()));
    if (!schema.triggers.isEmpty()) {
        text += QStringLiteral("-- The effects of triggers are included: triggers must not fire "
                               "again when this is run.\n");
    }
    return text;
}

} // namespace

PreviewSql::PreviewSql(const PreviewSchema &schema, const PreviewMoments &moments)
    : m_schema(schema)
    , m_moments(moments)
{
}

void PreviewSql::write(const QVector<PreviewChange> &changes, QIODevice &out) const
{
    out.write(comment(m_schema).toUtf8());
    out.write(PreviewScript::kExactValues);
    out.write(kBegin);
    for (const PreviewChange &change : changes)
        out.write((statement(change) + QStringLiteral(";\n")).toUtf8());
    out.write(kEnd);
    out.write(PreviewScript::kOwnSqlMode);
    out.write(PreviewScript::kOwnTimeZone);
}

QString PreviewSql::statement(const PreviewChange &change) const
{
    const QString table = SqlSession::name(change.table->name);
    if (change.isInsert()) {
        return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
            .arg(table, change.table->columnList(), values(change));
    }
    if (change.isDelete())
        return QStringLiteral("DELETE FROM %1 WHERE %2").arg(table, condition(change));
    return QStringLiteral("UPDATE %1 SET %2 WHERE %3")
        .arg(table, assignments(change), condition(change));
}

QString PreviewSql::assignments(const PreviewChange &change) const
{
    QStringList list;
    for (int i = 0; i < change.after.size(); ++i) {
        if (change.changes(i)) {
            list += SqlSession::name(change.table->columns.at(i).name) + QStringLiteral(" = ")
                + value(change, i);
        }
    }
    return list.join(QStringLiteral(", "));
}

QString PreviewSql::values(const PreviewChange &change) const
{
    QStringList list;
    for (int i = 0; i < change.after.size(); ++i)
        list += value(change, i);
    return list.join(QStringLiteral(", "));
}

QString PreviewSql::value(const PreviewChange &change, int column) const
{
    return m_moments.isNow(change, column)
        ? QStringLiteral("UNIX_TIMESTAMP()")
        : change.table->columns.at(column).literal(change.after.at(column));
}
