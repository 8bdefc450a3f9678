#include "mirovahrctl/status/statusdata.h"

#include "mirovahrctl/pluginside/forceflag.h"
#include "mirovahrctl/site/sqlsession.h"

#include <algorithm>

namespace {

constexpr char kSelect[] =
    "SELECT UNIX_TIMESTAMP(), (SELECT COUNT(*) FROM people WHERE status),"
    " (SELECT NULLIF(MAX(created), 0) FROM people),"
    " (SELECT NULLIF(MAX(edited), 0) FROM people WHERE editor = 0),"
    " (SELECT COUNT(*) FROM term_sync), (SELECT MIN(created) FROM term_sync),"
    " (SELECT COUNT(*) FROM funds_move WHERE type = 3"
    " AND day = midnightFromTs(UNIX_TIMESTAMP()))";

std::optional<qint64> moment(const QString &value)
{
    return value.isNull() ? std::nullopt : std::make_optional(value.toLongLong());
}

} // namespace

std::optional<qint64> StatusData::lastTrace() const
{
    return std::max(created, edited);
}

std::optional<StatusData> StatusData::read(SqlSession &site, QString &error)
{
    const QStringList row = site.row(QLatin1String(kSelect));
    if (site.failed()) {
        error = site.failure();
        return std::nullopt;
    }
    ForceFlag flag(site.database());
    const auto forced = flag.isSet();
    if (!forced) {
        error = flag.errorString();
        return std::nullopt;
    }
    StatusData data;
    data.now = row.at(0).toLongLong();
    data.forced = *forced;
    data.activePeople = row.at(1).toLongLong();
    data.created = moment(row.at(2));
    data.edited = moment(row.at(3));
    data.queued = row.at(4).toLongLong();
    data.oldestQueued = moment(row.at(5));
    data.correctionsToday = row.at(6).toLongLong();
    return data;
}
