#pragma once

#include <QStringList>

class QSqlDatabase;

/// The keys in `vars` of the payroll exports, as the plugin looks for them: with exactly one, new
/// people join its selection.
QStringList payrollExports(const QSqlDatabase &database);

/// Whether the selection of the payroll export with this key names the person (pid).
bool isInPayrollSelection(const QSqlDatabase &database, const QString &payrollExport, quint32 pid);
