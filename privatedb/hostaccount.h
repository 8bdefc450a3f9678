#pragma once

#include <QSqlDatabase>
#include <QString>

/// The account that an attendance server would use on a private server, and its database.
namespace HostAccount {

constexpr char kName[] = "yav";
constexpr char kPassword[] = "yav-private";

enum class Rights {
    All, ///< every right on the database
    None ///< only what the administrator grants
};

/// Makes the database and the account where they are not there yet, over an open connection of the
/// administrator. False when that fails, with the database's error in \a error.
bool make(const QSqlDatabase &administrator, const QString &databaseName, Rights rights,
          QString &error);

/// Writes a file that holds the password and nothing else, readable by its owner only. False when
/// that fails, with the reason in \a error.
bool writePasswordFile(const QString &path, QString &error);

} // namespace HostAccount
