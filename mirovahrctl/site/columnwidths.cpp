#include "mirovahrctl/site/columnwidths.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace {

constexpr char kSelectWidths[] =
    "SELECT COLUMN_NAME, CHARACTER_MAXIMUM_LENGTH FROM information_schema.COLUMNS WHERE "
    "TABLE_SCHEMA = DATABASE() AND TABLE_NAME = 'people' AND CHARACTER_MAXIMUM_LENGTH IS NOT NULL";

} // namespace

ColumnWidths readColumnWidths(const QSqlDatabase &database, QString &error)
{
    QSqlQuery query(database);
    if (!query.exec(QLatin1String(kSelectWidths))) {
        error =
            QStringLiteral("The column lengths cannot be read: %1").arg(query.lastError().text());
        return {};
    }
    ColumnWidths widths;
    while (query.next())
        widths.insert(query.value(0).toString(), query.value(1).toInt());
    if (widths.isEmpty()) {
        error = QStringLiteral(
            "The database has no table 'people' with text columns, or the account may not see it");
    }
    return widths;
}
