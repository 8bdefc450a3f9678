#include "mirovahrctl/status/statusdata.h"

#include "mirovahrctl/pluginside/forceflag.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>

namespace {

constexpr char kSelect[] =
    "SELECT UNIX_TIMESTAMP(), (SELECT COUNT(*) FROM people WHERE status),"
    " (SELECT NULLIF(MAX(created), 0) FROM people),"
    " (SELECT NULLIF(MAX(edited), 0) FROM people WHERE editor = 0),"
    " (SELECT COUNT(*) FROM term_sync), (SELECT MIN(created) FROM term_sync),"
    " (SELECT COUNT(*) FROM funds_move WHERE type = 3"
    " AND day = midnightFromTs(UNIX_TIMESTAMP()))";

std::optional<qint64> moment(const QVariant &value)
{
    return value.isNull() ? std::nullopt : std::make_optional(value.toLongLong());
}

} // namespace

std::optional<qint64> StatusData::lastTrace() const
{
    return std::max(created, edited);
}

std::optional<StatusData> StatusData::read(const QSqlDatabase &db, QString &error)
{
    QSqlQuery query(db);
    if (!query.exec(QLatin1String(kSelect)) || !query.next()) {
        error = QStringLiteral("The database cannot be used: %1").arg(query.lastError().text());
        return std::nullopt;
    }
    ForceFlag flag(db);
    const auto forced = flag.isSet();
    if (!forced) {
        error = QStringLiteral("The force flag cannot be read: %1").arg(flag.errorString());
        return std::nullopt;
    }
    StatusData data;
    data.now = query.value(0).toLongLong();
    data.forced = *forced;
    data.activePeople = query.value(1).toLongLong();
    data.created = moment(query.value(2));
    data.edited = moment(query.value(3));
    data.queued = query.value(4).toLongLong();
    data.oldestQueued = moment(query.value(5));
    data.correctionsToday = query.value(6).toLongLong();
    return data;
}
