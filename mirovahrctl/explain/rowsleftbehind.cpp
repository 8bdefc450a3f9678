#include "mirovahrctl/explain/rowsleftbehind.h"

#include "mirovahrctl/site/sqlsession.h"

namespace {

constexpr char kNextUid[] = "SELECT AUTO_INCREMENT FROM information_schema.TABLES WHERE "
                            "TABLE_SCHEMA = DATABASE() AND TABLE_NAME = 'people'";

constexpr char kAny[] = "SELECT 1 FROM %1 WHERE uid >= %2 LIMIT 1";

constexpr const char *kTables[] = {"admins_people", "atten", "brape", "groups_plan", "people_pam"};

} // namespace

RowsLeftBehind RowsLeftBehind::read(SqlSession &sql)
{
    RowsLeftBehind rows;
    rows.m_nextUid = sql.value(QLatin1String(kNextUid)).toULongLong();
    if (rows.m_nextUid == 0)
        return rows;
    for (const char *table : kTables) {
        const QString name = QString::fromLatin1(table);
        if (!sql.value(QString(QLatin1String(kAny)).arg(name).arg(rows.m_nextUid)).isNull())
            rows.m_tables += name;
    }
    return rows;
}
