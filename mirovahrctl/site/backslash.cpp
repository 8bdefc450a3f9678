#include "mirovahrctl/site/backslash.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>

namespace {

constexpr char kSelectSqlMode[] = "SELECT @@SESSION.sql_mode";

} // namespace

std::optional<Backslash> readBackslash(const QSqlDatabase &database, QString &error)
{
    QSqlQuery query(database);
    if (!query.exec(QLatin1String(kSelectSqlMode)) || !query.next()) {
        error = QStringLiteral("The SQL mode cannot be read: %1").arg(query.lastError().text());
        return std::nullopt;
    }
    const QStringList modes = query.value(0).toString().split(QLatin1Char(','));
    return modes.contains(QLatin1String("NO_BACKSLASH_ESCAPES")) ? Backslash::IsLiteral
                                                                 : Backslash::Escapes;
}
