#pragma once

#include <QHash>
#include <QString>

class SqlSession;

/// The lengths in characters of the text columns of `people`, by column name. Empty when they are
/// not known: then no text is too long.
using ColumnWidths = QHash<QString, int>;

/// Reads them from the information schema. Empty when that fails or there is no such table; `error`
/// then says why, a sentence without its full stop.
ColumnWidths readColumnWidths(SqlSession &site, QString &error);
