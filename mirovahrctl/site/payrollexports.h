#pragma once

#include <QStringList>

class QSqlDatabase;

/// The keys of the payroll exports in `vars`, by the plugin's own query: with exactly one, new
/// people join its selection.
QStringList payrollExports(const QSqlDatabase &database);

/// Whether the selection of the payroll export with this key contains the person (pid).
bool isInPayrollSelection(const QSqlDatabase &database, const QString &payrollExport, quint32 pid);
