#pragma once

#include <QString>

class ServerFolder;

/// Creates the data folder of a private server: the system tables, and the account `root` without a
/// password. False when that fails, with the reason in \a error.
bool makeDataFolder(const ServerFolder &folder, QString &error);

/// Copies a data folder that no server uses, which costs a tenth of making one. \a to does not
/// exist yet. False when that fails, with the reason in \a error.
bool copyDataFolder(const QString &from, const QString &to, QString &error);
