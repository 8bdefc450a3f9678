#include "mirovahrctl/site/payrollexports.h"

#include "db/tepdbsettings.h"

#include <QMap>
#include <QVariant>

QStringList payrollExports(const QSqlDatabase &database)
{
    return TepDbSettings(database).variableGetMultiple(QStringLiteral("exportPam.%.active")).keys();
}

bool isInPayrollSelection(const QSqlDatabase &database, const QString &payrollExport, quint32 pid)
{
    QString key = payrollExport;
    key.replace(QLatin1String("active"), QLatin1String("selPeople"));
    const QString selection = TepDbSettings(database).variableGet(key, QVariant()).toString();
    return selection.split(QLatin1Char(',')).contains(QString::number(pid));
}
