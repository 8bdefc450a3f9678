#pragma once

#include <QString>

/// MariaDB's programs on this machine.
namespace MariaDbPrograms {

enum class Program { Server, InstallDb, Client };

/// Path of a program; empty when it is not installed.
QString find(Program program);
/// A sentence that names a missing program, and the package that brings it.
QString missing(Program program);

} // namespace MariaDbPrograms
