#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QStringList>
#include <QVector>

class Console;

/// One thing that mirovahrctl can do.
struct Subcommand {
    const char *name; ///< as on the command line
    const char *summary; ///< one line for the overview, without a full stop
    /// Does it. The arguments are those after the name. Options and texts are all its own: see
    /// CommandLine.
    ExitStatus (*run)(const QStringList &arguments, Console &console);
};

/// All of them, in the order of the overview.
const QVector<Subcommand> &subcommands();

/// The program without its process: picks the subcommand and runs it. The arguments are those after
/// the program's name.
ExitStatus runMirovahrctl(const QStringList &arguments, Console &console);
