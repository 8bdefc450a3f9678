#pragma once

#include <QString>

#include <memory>

class Database;
class QSqlDatabase;
struct DatabaseOptions;

/// What a subcommand does with the site's database.
enum class DatabaseAccess {
    ReadOnly, ///< the server itself refuses every write
    ReadWrite
};

/// Opens a connection to the site's database. Null when that fails; `error` then says why, a
/// sentence without its full stop.
std::unique_ptr<Database> openDatabase(const DatabaseOptions &options, DatabaseAccess access,
                                       QString &error);

/// Makes the server itself refuse every write on this open connection. False when
/// that fails; `error` then says why, a sentence without its full stop.
bool refuseWriting(const QSqlDatabase &connection, QString &error);
