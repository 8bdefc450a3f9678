#include "mirovahrctl/preview/previewschema.h"

#include "mirovahrctl/site/sqlsession.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

struct TypeKind {
    const char *type;
    PreviewColumn::Kind kind;
};

constexpr TypeKind kTypeKinds[] = {
    {"tinyint", PreviewColumn::Kind::Number},   {"smallint", PreviewColumn::Kind::Number},
    {"mediumint", PreviewColumn::Kind::Number}, {"int", PreviewColumn::Kind::Number},
    {"bigint", PreviewColumn::Kind::Number},    {"decimal", PreviewColumn::Kind::Number},
    {"year", PreviewColumn::Kind::Number},      {"bit", PreviewColumn::Kind::Number},
    {"float", PreviewColumn::Kind::Real},       {"double", PreviewColumn::Kind::Real},
    {"char", PreviewColumn::Kind::Text},        {"varchar", PreviewColumn::Kind::Text},
    {"tinytext", PreviewColumn::Kind::Text},    {"text", PreviewColumn::Kind::Text},
    {"mediumtext", PreviewColumn::Kind::Text},  {"longtext", PreviewColumn::Kind::Text},
    {"enum", PreviewColumn::Kind::Text},        {"set", PreviewColumn::Kind::Text},
    {"json", PreviewColumn::Kind::Text},        {"date", PreviewColumn::Kind::Other},
    {"datetime", PreviewColumn::Kind::Other},   {"timestamp", PreviewColumn::Kind::Other},
    {"time", PreviewColumn::Kind::Other},       {"uuid", PreviewColumn::Kind::Other},
    {"inet4", PreviewColumn::Kind::Other},      {"inet6", PreviewColumn::Kind::Other},
};

constexpr char kPrimaryKey[] = "PRIMARY KEY";
constexpr char kUniqueKey[] = "PRIMARY KEY|UNIQUE KEY `(?:[^`]|``)+`";
constexpr char kKey[] = "PRIMARY KEY|(?:UNIQUE )?KEY `(?:[^`]|``)+`";

/// The columns of each key of a kind, in the order of the definition.
QVector<QStringList> keysOf(const QString &definition, const char *kind)
{
    const QRegularExpression key(QStringLiteral("^\\s*(?:%1) \\((.*)\\)").arg(QLatin1String(kind)),
                                 QRegularExpression::MultilineOption);
    static const QRegularExpression column(QStringLiteral("`((?:[^`]|``)+)`"));
    QVector<QStringList> keys;
    auto matches = key.globalMatch(definition);
    while (matches.hasNext()) {
        QStringList columns;
        auto names = column.globalMatch(matches.next().captured(1));
        while (names.hasNext())
            columns += names.next().captured(1);
        keys += columns;
    }
    return keys;
}

} // namespace

PreviewColumn::Kind PreviewColumn::kindOf(const QString &type)
{
    const QString word =
        type.section(QLatin1Char('('), 0, 0).section(QLatin1Char(' '), 0, 0).toLower();
    const auto *const end = std::end(kTypeKinds);
    const auto *const found =
        std::find_if(std::begin(kTypeKinds), end,
                     [&word](const TypeKind &kind) { return word == QLatin1String(kind.type); });
    // Binary strings and geometries are the bytes that they are.
    return found == end ? Kind::Bytes : found->kind;
}

QString PreviewColumn::expression(const QString &owner) const
{
    const QString column = owner + QLatin1Char('.') + SqlSession::name(name);
    switch (kind) {
    case Kind::Text:
        return column;
    case Kind::Bytes:
        return QStringLiteral("HEX(%1)").arg(column);
    case Kind::Real:
        // Seventeen digits, where a FLOAT by itself shows six.
        return QStringLiteral("CAST(CAST(%1 AS DOUBLE) AS CHAR)").arg(column);
    case Kind::Number:
        // The sum makes a number of bits.
        return QStringLiteral("CAST(%1 + 0 AS CHAR)").arg(column);
    case Kind::Other:
        break;
    }
    return QStringLiteral("CAST(%1 AS CHAR)").arg(column);
}

QString PreviewColumn::literal(const QString &cell) const
{
    if (cell.isNull())
        return QStringLiteral("NULL");
    switch (kind) {
    case Kind::Number:
    case Kind::Real:
        return cell;
    case Kind::Bytes:
        return QStringLiteral("X'%1'").arg(cell);
    case Kind::Text:
    case Kind::Other:
        break;
    }
    return SqlSession::literal(cell);
}

QStringList PreviewTable::primaryKey() const
{
    return keysOf(definition, kPrimaryKey).value(0);
}

QVector<QStringList> PreviewTable::uniqueKeys() const
{
    return keysOf(definition, kUniqueKey);
}

bool PreviewTable::isFoundBy(const QString &column) const
{
    const auto keys = keysOf(definition, kKey);
    return std::any_of(keys.cbegin(), keys.cend(),
                       [&column](const QStringList &some) { return some.first() == column; });
}

bool PreviewTable::isCounted(const QString &column) const
{
    const QRegularExpression counted(
        QStringLiteral("^\\s*`%1` .* AUTO_INCREMENT").arg(QRegularExpression::escape(column)),
        QRegularExpression::MultilineOption);
    return counted.match(definition).hasMatch();
}

int PreviewTable::indexOf(const QString &column) const
{
    for (int i = 0; i < columns.size(); ++i) {
        if (columns.at(i).name == column)
            return i;
    }
    return -1;
}

QString PreviewTable::columnList() const
{
    QStringList names;
    for (const PreviewColumn &column : columns)
        names += SqlSession::name(column.name);
    return names.join(QStringLiteral(", "));
}

QString PreviewTable::expressions(const QString &owner) const
{
    QStringList expressions;
    for (const PreviewColumn &column : columns)
        expressions += column.expression(owner);
    return expressions.join(QStringLiteral(", "));
}

QString PreviewTable::changingRows() const
{
    const QString table = SqlSession::name(name);
    return changing.isEmpty()
        ? table
        : QStringLiteral("(SELECT %1 FROM %2 WHERE %3)").arg(columnList(), table, changing);
}

QString PreviewTable::tuple(const QStringList &row) const
{
    QStringList values;
    for (int i = 0; i < columns.size(); ++i)
        values += columns.at(i).literal(row.at(i));
    return QLatin1Char('(') + values.join(QStringLiteral(", ")) + QLatin1Char(')');
}

qint64 PreviewSchema::rowEstimate() const
{
    qint64 rows = 0;
    for (const PreviewTable &table : tables)
        rows += table.rowEstimate;
    return rows;
}
