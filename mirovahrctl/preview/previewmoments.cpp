#include "mirovahrctl/preview/previewmoments.h"

#include "mirovahrctl/preview/previewdiff.h"

#include <algorithm>
#include <iterator>

namespace {

struct Moment {
    const char *table;
    const char *column;
};

/// Where the plugin writes UNIX_TIMESTAMP().
constexpr Moment kMoments[] = {
    {"people", "created"}, {"people", "edited"}, {"brape", "since"}, {"term_sync", "created"}};

} // namespace

bool PreviewMoments::isNow(const PreviewChange &change, int column) const
{
    if (change.isDelete() || !change.changes(column))
        return false;
    const QString &name = change.table->columns.at(column).name;
    const bool isMoment =
        std::any_of(std::begin(kMoments), std::end(kMoments), [&](const Moment &moment) {
            return change.table->name == QLatin1String(moment.table)
                && name == QLatin1String(moment.column);
        });
    const qint64 value = change.after.at(column).toLongLong();
    return isMoment && value >= m_begin && value <= m_end;
}
