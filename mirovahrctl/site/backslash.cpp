#include "mirovahrctl/site/backslash.h"

#include "mirovahrctl/site/sqlsession.h"

namespace {

constexpr char kSelectSqlMode[] = "SELECT @@SESSION.sql_mode";

} // namespace

std::optional<Backslash> readBackslash(SqlSession &site)
{
    const QString modes = site.value(QLatin1String(kSelectSqlMode));
    if (site.failed())
        return std::nullopt;
    return modes.split(QLatin1Char(',')).contains(QLatin1String("NO_BACKSLASH_ESCAPES"))
        ? Backslash::IsLiteral
        : Backslash::Escapes;
}
