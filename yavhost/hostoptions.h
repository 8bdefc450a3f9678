#pragma once

#include "cli/databaseoptions.h"

#include <QString>
#include <QStringList>

/// The options of the command line.
struct HostOptions {
    QString library; ///< path of the plugin
    bool versionInfo = false; ///< print the version information instead of running the plugin
    bool once = false; ///< end after the first synchronisation
    unsigned char debugLevel = 1; ///< 0 none, 1 normal, 2 and more verbose
    DatabaseOptions database;
    QString warning; ///< what the user should know, a sentence without its full stop; may be empty
};

/// The outcome of reading a command line.
struct ParsedCommandLine {
    HostOptions options; ///< valid only when answer and error are empty
    QString answer; ///< the help text or the version, with a line feed, if requested
    QString error; ///< what is wrong with the command line; empty if nothing is
};

/// Reads the command line, whose first argument is the program's name, and the password from the
/// file that it names or else from YAVHOST_PASSWORD. The variable is then removed, so that the
/// programs that the plugin runs do not inherit it.
ParsedCommandLine parseCommandLine(const QStringList &arguments);
