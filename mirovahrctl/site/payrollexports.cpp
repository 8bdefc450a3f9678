#include "mirovahrctl/site/payrollexports.h"

#include "db/tepdbsettings.h"
#include "mirovahrctl/site/sqlsession.h"

#include <QVariant>

namespace {

/// The plugin's condition, which also fits names that go on after it.
constexpr char kSelect[] =
    "SELECT name FROM vars WHERE name LIKE 'exportPam.%.active%' ORDER BY name";

} // namespace

QStringList payrollExports(SqlSession &site)
{
    QStringList names = site.column(QLatin1String(kSelect));
    names.removeDuplicates();
    return names;
}

bool isInPayrollSelection(const QSqlDatabase &database, const QString &payrollExport, quint32 pid)
{
    QString key = payrollExport;
    key.replace(QLatin1String("active"), QLatin1String("selPeople"));
    const QString selection = TepDbSettings(database).variableGet(key, QVariant()).toString();
    return selection.split(QLatin1Char(',')).contains(QString::number(pid));
}
