#pragma once

#include <QString>

/// The data and log directories of a component of the server, derived from the application name.
///
/// The plugin carries this helper for the server's other components and does not call it itself.
class DataDirHelper {
public:
    DataDirHelper() = delete;

    /// "/etc/" and the application name in lower case; with `validate` the directory is created
    /// when missing and checked. `name` is accepted and not used. The path is returned, and kept
    /// in dataDir, whatever the check finds.
    static QString getDataDir(bool validate, const QString &name);

    /// "/var/log/" and the application name in lower case, always created when missing and
    /// checked. `name` is accepted and not used. The path is returned, and kept in logsDir,
    /// whatever the check finds.
    static QString getLogsDir(const QString &name);

    /// Creates the directory with its parents when it is missing and checks that the process can
    /// write to it; each failure is logged, none stops the caller.
    static void validateDir(const QString &path);

    /// The last result of getDataDir(), "data" before the first.
    static QString dataDir;
    /// The last result of getLogsDir(), "logs" before the first.
    static QString logsDir;
};
