#pragma once

#include <QHash>
#include <QString>

class QSqlDatabase;

/// How many characters the text columns of `people` hold, by column name. Empty: not known, and
/// then no text is too long.
using ColumnWidths = QHash<QString, int>;

/// Asks the database's information schema. Empty when that fails or there is no such table; `error`
/// then says why, a sentence without its full stop.
ColumnWidths readColumnWidths(const QSqlDatabase &database, QString &error);
