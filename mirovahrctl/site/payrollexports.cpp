#include "mirovahrctl/site/payrollexports.h"

#include "db/tepdbsettings.h"
#include "mirovahrctl/site/sqlsession.h"

#include <QVariant>

namespace {

/// The plugin's condition, which also fits names that go on after it.
constexpr char kSelectExports[] =
    "SELECT name FROM vars WHERE name LIKE 'exportPam.%.active%' ORDER BY name";

} // namespace

QStringList payrollExports(SqlSession &site)
{
    QStringList names = site.column(QLatin1String(kSelectExports));
    names.removeDuplicates();
    return names;
}

QString payrollSelectionKey(const QString &payrollExport)
{
    QString key = payrollExport;
    return key.replace(QLatin1String("active"), QLatin1String("selPeople"));
}

bool isInPayrollSelection(const QSqlDatabase &database, const QString &payrollExport, quint32 pid)
{
    const QString selection = TepDbSettings(database)
                                  .variableGet(payrollSelectionKey(payrollExport), QVariant())
                                  .toString();
    return selection.split(QLatin1Char(',')).contains(QString::number(pid));
}
