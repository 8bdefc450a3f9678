#include "mirovahrctl/pluginside/pluginrights.h"

#include <algorithm>

namespace PluginRights {

const TableRights *find(const QString &table)
{
    const auto *const end = std::end(kTables);
    const auto *const found =
        std::find_if(std::begin(kTables), end, [&table](const TableRights &rights) {
            return table == QLatin1String(rights.table);
        });
    return found == end ? nullptr : found;
}

bool usesColumn(const QString &table, const QString &column)
{
    const TableRights *const rights = find(table);
    return rights != nullptr
        && (names(rights->select) + names(rights->insert) + names(rights->update)).contains(column);
}

bool writesColumn(const QString &table, const QString &column)
{
    const TableRights *const rights = find(table);
    return rights != nullptr && (names(rights->insert) + names(rights->update)).contains(column);
}

bool writesTo(const QString &table)
{
    const TableRights *const rights = find(table);
    return rights != nullptr && (*rights->insert != '\0' || *rights->update != '\0');
}

bool insertsInto(const QString &table)
{
    const TableRights *const rights = find(table);
    return rights != nullptr && *rights->insert != '\0';
}

} // namespace PluginRights
