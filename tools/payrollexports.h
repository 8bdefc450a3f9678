#pragma once

#include <QStringList>

class QSqlDatabase;

/// The keys in `vars` of the payroll exports, as the plugin looks for them: with exactly one, new
/// people join its selection.
QStringList payrollExports(const QSqlDatabase &database);
