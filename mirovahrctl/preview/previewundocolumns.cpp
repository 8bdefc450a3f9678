#include "mirovahrctl/preview/previewundocolumns.h"

#include "db/tepdbcontract.h"
#include "mirovahrctl/preview/previewschema.h"

#include <algorithm>
#include <iterator>

namespace {

struct NamedColumn {
    const char *table;
    const char *column;
};

constexpr NamedColumn kDays[] = {{"funds_move", "day"}};
constexpr NamedColumn kCalculated[] = {{"people", "calc"}, {"people", "lastCalc"}};

template <std::size_t size>
bool contains(const NamedColumn (&list)[size], const QString &table, const QString &column)
{
    return std::any_of(std::begin(list), std::end(list), [&](const NamedColumn &named) {
        return table == QLatin1String(named.table) && column == QLatin1String(named.column);
    });
}

} // namespace

bool PreviewUndoColumns::isKnown(const QString &table, const QString &column)
{
    return std::any_of(std::begin(TepDbContract::kTables), std::end(TepDbContract::kTables),
                       [&](const TepDbContract::Table &known) {
                           return table == QLatin1String(known.name)
                               && TepDbContract::columnsOf(known).contains(column);
                       });
}

bool PreviewUndoColumns::isMoment(const QString &table, const QString &column)
{
    const TepDbContract::Column *const known = TepDbContract::findColumn(table, column);
    return known != nullptr && known->written.isNow;
}

bool PreviewUndoColumns::isDay(const QString &table, const QString &column)
{
    return contains(kDays, table, column);
}

bool PreviewUndoColumns::isCalculated(const QString &table, const QString &column)
{
    return contains(kCalculated, table, column);
}

bool PreviewUndoColumns::isCalculated(const QString &table)
{
    return table == QLatin1String("atten");
}

bool PreviewUndoColumns::holdsUid(const QString &table, const QString &column)
{
    // The contract says whose ids a column holds only where the plugin writes it.
    const TepDbContract::Column *const known = TepDbContract::findColumn(table, column);
    return known != nullptr
        && (column == QLatin1String("uid")
            || QLatin1String(known->written.owner) == QLatin1String("people.uid"));
}

bool PreviewUndoColumns::isRowNumber(const PreviewTable &table, const QString &column)
{
    return table.isCounted(column) && !isKnown(table.name, column);
}

bool PreviewUndoColumns::isQueue(const QString &table)
{
    return TepDbContract::rowsMayRepeat(table) && TepDbContract::isWritten(table);
}

bool PreviewUndoColumns::isMarks(const QString &table)
{
    return table == QLatin1String("term");
}
