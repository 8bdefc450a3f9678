#include "db/tepdbcontract.h"

#include <algorithm>

namespace TepDbContract {

QString Column::fullName() const
{
    return QString::fromLatin1(table) + QLatin1Char('.') + QString::fromLatin1(name);
}

QStringList names(const char *list)
{
    return QString::fromLatin1(list).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QStringList columnsOf(const Table &table)
{
    return columnsWith(S | I | U, QString::fromLatin1(table.name)) + names(table.columnsElsewhere);
}

QStringList columnsWith(unsigned rights, const QString &table)
{
    QStringList columns;
    for (const Column &column : kColumns) {
        if ((column.rights & rights) != 0 && table == QLatin1String(column.table))
            columns += QString::fromLatin1(column.name);
    }
    return columns;
}

const Column *findColumn(const QString &table, const QString &name)
{
    const auto *const end = std::end(kColumns);
    const auto *const found = std::find_if(std::begin(kColumns), end, [&](const Column &column) {
        return table == QLatin1String(column.table) && name == QLatin1String(column.name);
    });
    return found == end ? nullptr : found;
}

bool rowsMayRepeat(const QString &table)
{
    return std::any_of(std::begin(kTables), std::end(kTables), [&table](const Table &candidate) {
        return table == QLatin1String(candidate.name) && candidate.keys[0].use == KeyUse::None;
    });
}

} // namespace TepDbContract
