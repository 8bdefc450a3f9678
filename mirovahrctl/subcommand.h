#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QStringList>
#include <QVector>

class Console;

/// A subcommand of mirovahrctl.
struct Subcommand {
    const char *name; ///< as on the command line
    const char *summary; ///< one line for the overview, without a full stop, for Text::tr()
    /// Runs it with the arguments after its name. Options and help texts are its own: see
    /// CommandLine.
    ExitStatus (*run)(const QStringList &arguments, Console &console);
};

/// All of them, in the order of the overview.
const QVector<Subcommand> &subcommands();

/// The program without its process: uses the language that the arguments request, finds the
/// subcommand and runs it. \a arguments: those after the program's name.
ExitStatus runMirovahrctl(const QStringList &arguments, Console &console);

/// The same in the language in use, for a subcommand that runs others.
ExitStatus runInThisLanguage(const QStringList &arguments, Console &console);
