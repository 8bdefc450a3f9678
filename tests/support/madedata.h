#pragma once

#include <QString>

/// The data folders that the build has made for the servers of the tests: to make one costs more
/// than what many tests do with the server.
namespace MadeData {

/// Lets private servers that this program and its children start from now on begin with the system
/// tables.
void use();

/// The data folder of a server with the reference database: its tables, without rows, its routines,
/// and the accounts with their rights.
QString referenceDatabase();

} // namespace MadeData
