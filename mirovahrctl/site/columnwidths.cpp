#include "mirovahrctl/site/columnwidths.h"

#include "cli/text.h"
#include "mirovahrctl/site/sqlsession.h"

namespace {

constexpr char kSelectWidths[] =
    "SELECT COLUMN_NAME, CHARACTER_MAXIMUM_LENGTH FROM information_schema.COLUMNS WHERE "
    "TABLE_SCHEMA = DATABASE() AND TABLE_NAME = 'people' AND CHARACTER_MAXIMUM_LENGTH IS NOT NULL";

} // namespace

ColumnWidths readColumnWidths(SqlSession &site, QString &error)
{
    ColumnWidths widths;
    const QVector<QStringList> rows = site.rows(QLatin1String(kSelectWidths));
    for (const QStringList &row : rows)
        widths.insert(row.at(0), row.at(1).toInt());
    if (site.failed()) {
        error = site.failure();
    } else if (widths.isEmpty()) {
        error = Text::tr(
            "The database has no table 'people' with text columns, or the account may not see it");
    }
    return widths;
}
