#pragma once

#include <QStringList>

class QSqlDatabase;
class SqlSession;

/// The keys in `vars` that the plugin takes for payroll exports: with exactly one, new people join
/// its selection. Empty also when reading fails, which the session then says.
QStringList payrollExports(SqlSession &site);

/// The key of the selection of the payroll export with this key.
QString payrollSelectionKey(const QString &payrollExport);

/// Whether the selection of the payroll export with this key contains the person (pid).
bool isInPayrollSelection(const QSqlDatabase &database, const QString &payrollExport, quint32 pid);
