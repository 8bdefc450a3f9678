#pragma once

#include <QString>

class ServerFolder;

/// Creates the data folder of a private server: the system tables, and the account `root` without a
/// password. False when that fails, with the reason in \a error.
bool makeDataFolder(const ServerFolder &folder, QString &error);
