#pragma once

class QString;
struct PreviewTable;

/// What decides whether a row still is as the synchronisation left it, beyond its cells being
/// equal: the columns of the plugin's tables that hold no plain value.
namespace PreviewUndoColumns {

/// A column of the contract. What the site has added to its tables, nobody but the site's own
/// programs writes: where the synchronisation changes it all the same, with a time stamp or a
/// trigger, a real one may write anything.
bool isKnown(const QString &table, const QString &column);

/// The moment of writing. A real synchronisation writes another one than the preview, a later one.
bool isMoment(const QString &table, const QString &column);

/// The day of the synchronisation, in the key. One on another day than the preview adds another
/// row.
bool isDay(const QString &table, const QString &column);

/// The attendance server writes the column when it calculates what the plugin has asked for. So it
/// is taken back where it still is as the synchronisation left it, and is no reason to leave the
/// rest of the row.
bool isCalculated(const QString &table, const QString &column);

/// The same of all rows of a table: none is a reason to leave the other tables.
bool isCalculated(const QString &table);

/// The uid of a person. A person who is created may get another one than in the preview.
bool holdsUid(const QString &table, const QString &column);

/// A number that the server gives to each row and that nobody uses. The site's rows have others.
bool isRowNumber(const PreviewTable &table, const QString &column);

/// The queue from which terminals take rows away.
bool isQueue(const QString &table);

/// The table whose column `syn` marks what a terminal has to fetch.
bool isMarks(const QString &table);

} // namespace PreviewUndoColumns
