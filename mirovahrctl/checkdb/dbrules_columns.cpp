// Columns: they can hold what the plugin writes.

#include "mirovahrctl/checkdb/columnneeds.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/site/columnrange.h"
#include "mirovahrctl/site/dbschema.h"

#include <QDateTime>
#include <QStringList>

namespace {

QString fieldName(const char *table, const char *column)
{
    return QString::fromLatin1(table) + QLatin1Char('.') + QString::fromLatin1(column);
}

const DbColumn *find(const DbSchema &schema, const char *table, const char *column)
{
    return schema.column(QString::fromLatin1(table), QString::fromLatin1(column));
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

QString narrowNumber(const QString &field, const DbColumn &column, const ColumnRange &written,
                     const QString &meaning)
{
    return QStringLiteral("The column %1 is %2; the plugin writes %3 into it (%4)")
        .arg(field, column.fullType, shown(written), meaning);
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

QString narrowTime(const QString &field, const DbColumn &column, const ColumnRange &held,
                   const ColumnRange &written, const QString &meaning)
{
    return QStringLiteral("The column %1 is %2, which holds only times %3; the plugin writes %4 "
                          "into it")
        .arg(field, column.fullType, heldTimes(held, written), meaning);
}

void checkNumbers(DbAssessment &check, const QString &field, const DbColumn &column,
                  const ColumnRange &written, const QString &meaning, bool isTime)
{
    const auto held = ColumnRange::of(column);
    if (!held) {
        reportWrongKind(check, field, column, QStringLiteral("numbers"));
    } else if (!held->holds(written)) {
        reportTooNarrow(check, field,
                        isTime ? narrowTime(field, column, *held, written, meaning)
                               : narrowNumber(field, column, written, meaning));
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

void checkNumber(DbAssessment &check, const DbSchema &schema, const ColumnNeeds::Number &need)
{
    const DbColumn *const column = find(schema, need.table, need.column);
    if (column == nullptr)
        return;
    const QString field = fieldName(need.table, need.column);
    checkNumbers(check, field, *column, {need.from, need.to}, QString::fromLatin1(need.meaning),
                 need.isTime);
    if (need.null)
        checkNull(check, field, *column);
}

void checkReference(DbAssessment &check, const DbSchema &schema, const ColumnNeeds::Reference &need)
{
    const DbColumn *const column = find(schema, need.table, need.column);
    const DbColumn *const owner = find(schema, need.ownerTable, need.ownerColumn);
    if (column == nullptr || owner == nullptr)
        return;
    const ColumnRange ids{0, ColumnRange::of(*owner).value_or(ColumnRange()).to};
    checkNumbers(check, fieldName(need.table, need.column), *column, ids,
                 QStringLiteral("what %1 holds").arg(fieldName(need.ownerTable, need.ownerColumn)),
                 false);
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

void checkText(DbAssessment &check, const DbSchema &schema, const ColumnNeeds::Text &need)
{
    const DbColumn *const column = find(schema, need.table, need.column);
    if (column == nullptr)
        return;
    const QString field = fieldName(need.table, need.column);
    if (!isText(*column)) {
        reportWrongKind(check, field, *column, QStringLiteral("texts"));
        return;
    }
    if (column->length < need.length) {
        reportTooNarrow(
            check, field,
            QStringLiteral("The column %1 is %2; the plugin writes up to %3 characters into it")
                .arg(field, column->fullType)
                .arg(need.length));
    }
    checkCharset(check, field, *column);
}

void reportWidths(DbAssessment &check, const DbSchema &schema)
{
    Table table{QStringLiteral("texts"),
                {{QStringLiteral("column"), QStringLiteral("Text column")},
                 {QStringLiteral("length"), QStringLiteral("Characters")},
                 {QStringLiteral("charset"), QStringLiteral("Character set")}},
                {}};
    for (const ColumnNeeds::Text &need : ColumnNeeds::kTexts) {
        const DbColumn *const column = find(schema, need.table, need.column);
        if (column != nullptr && isText(*column)) {
            table.rows.append(
                {fieldName(need.table, need.column), column->length, column->charset});
        }
    }
    check.writer().table(table);
}

} // namespace

void DbRules::checkColumns(DbAssessment &check, const DbSchema &schema)
{
    check.begin("columns", "Columns");
    for (const ColumnNeeds::Number &need : ColumnNeeds::kNumbers)
        checkNumber(check, schema, need);
    for (const ColumnNeeds::Reference &need : ColumnNeeds::kReferences)
        checkReference(check, schema, need);
    for (const ColumnNeeds::Text &need : ColumnNeeds::kTexts)
        checkText(check, schema, need);
    check.end(QStringLiteral("The columns can hold what the plugin writes."));
    reportWidths(check, schema);
}
