#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QString>

#include <optional>

class Console;
class QFile;

/// An export that the command line names.
namespace NamedExport {

/// Opens it as the plugin opens its own. Has a status when the subcommand must end with it: there
/// is no such file, or it cannot be opened, and the error was printed.
std::optional<ExitStatus> open(const QString &path, QFile &file, Console &console);

/// Ends the subcommand because reading has failed. \a reason: a sentence without its full stop.
ExitStatus failReading(const QString &path, const QString &reason, Console &console);

} // namespace NamedExport
