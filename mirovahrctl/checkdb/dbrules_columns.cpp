// Columns: they can hold what the plugin writes.

#include "db/tepdbcontract.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/site/columnrange.h"
#include "mirovahrctl/site/dbschema.h"

#include <QDateTime>
#include <QStringList>

namespace {

using TepDbContract::Kind;

QString fieldName(const TepDbContract::Column &column)
{
    return QString::fromLatin1(column.table) + QLatin1Char('.') + QString::fromLatin1(column.name);
}

/// Null when the site has no such column.
const DbColumn *find(const DbSchema &schema, const TepDbContract::Column &column)
{
    return schema.column(QString::fromLatin1(column.table), QString::fromLatin1(column.name));
}

QString shown(double number)
{
    return QString::number(number, 'f', 0);
}

QString shown(const ColumnRange &range)
{
    return range.from == range.to
        ? shown(range.from)
        : QStringLiteral("%1 to %2").arg(shown(range.from), shown(range.to));
}

void reportWrongKind(DbAssessment &check, const QString &field, const DbColumn &column,
                     const QString &kind)
{
    check.reportViolation(CheckDbRules::kColumnKind, field,
                          QStringLiteral("The column %1 is %2; the plugin writes %3 into it")
                              .arg(field, column.fullType, kind));
}

void reportTooNarrow(DbAssessment &check, const QString &field, const QString &message)
{
    check.report(
        CheckDbRules::kColumnTooNarrow, field,
        message
            + QStringLiteral(
                ". Values that do not fit are refused, or altered where no strict SQL mode is on"));
}

QString day(double seconds)
{
    return QDateTime::fromSecsSinceEpoch(qint64(seconds)).date().toString(Qt::ISODate);
}

/// The times that the column can hold, in words that name the bound that is too narrow.
QString heldTimes(const ColumnRange &held, const ColumnRange &written)
{
    const bool startsLate = held.from > written.from;
    const bool endsEarly = held.to < written.to;
    if (startsLate && endsEarly)
        return QStringLiteral("from %1 to %2").arg(day(held.from), day(held.to));
    return startsLate ? QStringLiteral("from %1 on").arg(day(held.from))
                      : QStringLiteral("up to %1").arg(day(held.to));
}

void checkNumbers(DbAssessment &check, const QString &field, const DbColumn &column,
                  const ColumnRange &written, const QString &meaning)
{
    const auto held = ColumnRange::of(column);
    if (!held) {
        reportWrongKind(check, field, column, QStringLiteral("numbers"));
    } else if (!held->holds(written)) {
        reportTooNarrow(check, field,
                        QStringLiteral("The column %1 is %2; the plugin writes %3 into it (%4)")
                            .arg(field, column.fullType, shown(written), meaning));
    }
}

void checkTimes(DbAssessment &check, const QString &field, const DbColumn &column,
                const ColumnRange &written, const QString &meaning)
{
    const auto held = ColumnRange::of(column);
    if (!held) {
        reportWrongKind(check, field, column, QStringLiteral("numbers"));
    } else if (!held->holds(written)) {
        reportTooNarrow(check, field,
                        QStringLiteral("The column %1 (%2) is %3, which holds only times %4; the "
                                       "plugin may write others into it")
                            .arg(field, meaning, column.fullType, heldTimes(*held, written)));
    }
}

void checkNull(DbAssessment &check, const QString &field, const DbColumn &column)
{
    if (column.nullable)
        return;
    check.reportViolation(CheckDbRules::kColumnNotNull, field,
                          QStringLiteral("The column %1 does not allow NULL, which the plugin "
                                         "writes where HR leaves a value open")
                              .arg(field));
}

/// The ids that a column holds, given as "people.uid".
ColumnRange idsOf(const DbSchema &schema, const QString &owner)
{
    const DbColumn *const column =
        schema.column(owner.section(QLatin1Char('.'), 0, 0), owner.section(QLatin1Char('.'), 1));
    const auto held = column == nullptr ? std::nullopt : ColumnRange::of(*column);
    return {0, held.value_or(ColumnRange()).to};
}

bool isText(const DbColumn &column)
{
    return column.type.endsWith(QLatin1String("char"))
        || column.type.endsWith(QLatin1String("text"));
}

void checkCharset(DbAssessment &check, const QString &field, const DbColumn &column)
{
    if (column.charset.startsWith(QLatin1String("utf8")))
        return;
    check.report(
        CheckDbRules::kColumnCharset, field,
        QStringLiteral("The column %1 has the character set %2: letters that it lacks are refused, "
                       "or stored as question marks where no strict SQL mode is on")
            .arg(field, column.charset));
}

void checkText(DbAssessment &check, const QString &field, const DbColumn &column, int length)
{
    if (!isText(column)) {
        reportWrongKind(check, field, column, QStringLiteral("texts"));
        return;
    }
    if (column.length < length) {
        reportTooNarrow(
            check, field,
            QStringLiteral("The column %1 is %2; the plugin writes up to %3 characters into it")
                .arg(field, column.fullType)
                .arg(length));
    }
    checkCharset(check, field, column);
}

void checkColumn(DbAssessment &check, const DbSchema &schema, const TepDbContract::Column &need)
{
    const DbColumn *const column = find(schema, need);
    if (column == nullptr)
        return;
    const QString field = fieldName(need);
    const QString label = QString::fromLatin1(need.label);
    const TepDbContract::Written &written = need.written;
    const QString owner = QString::fromLatin1(written.owner);
    switch (written.kind) {
    case Kind::Nothing:
        break;
    case Kind::Number:
        checkNumbers(check, field, *column, {written.from, written.to}, label);
        break;
    case Kind::Time:
        checkTimes(check, field, *column, {written.from, written.to}, label);
        break;
    case Kind::Id:
        checkNumbers(check, field, *column, idsOf(schema, owner),
                     QStringLiteral("what %1 holds").arg(owner));
        break;
    case Kind::Text:
        checkText(check, field, *column, written.length);
        break;
    }
    if (written.null)
        checkNull(check, field, *column);
}

void reportWidths(DbAssessment &check, const DbSchema &schema)
{
    Table table{QStringLiteral("texts"),
                {{QStringLiteral("column"), QStringLiteral("Text column")},
                 {QStringLiteral("length"), QStringLiteral("Characters")},
                 {QStringLiteral("charset"), QStringLiteral("Character set")}},
                {}};
    for (const TepDbContract::Column &need : TepDbContract::kColumns) {
        const DbColumn *const column = find(schema, need);
        if (need.written.kind == Kind::Text && column != nullptr && isText(*column))
            table.rows.append({fieldName(need), column->length, column->charset});
    }
    check.writer().table(table);
}

} // namespace

void DbRules::checkColumns(DbAssessment &check, const DbSchema &schema)
{
    check.begin("columns", "Columns");
    for (const TepDbContract::Column &column : TepDbContract::kColumns)
        checkColumn(check, schema, column);
    check.end(QStringLiteral("The columns can hold what the plugin writes."));
    reportWidths(check, schema);
}
