#include "tools/payrollexports.h"

#include "db/tepdbsettings.h"

#include <QMap>
#include <QVariant>

QStringList payrollExports(const QSqlDatabase &database)
{
    return TepDbSettings(database).variableGetMultiple(QStringLiteral("exportPam.%.active")).keys();
}
