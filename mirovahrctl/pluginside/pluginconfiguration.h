#pragma once

#include "mirovahrctl/report/exitstatus.h"
#include "plugin/configuration.h"

#include <QString>

#include <optional>

class CommandLine;
class Console;

/// The plugin's INI file, as a subcommand with the option --config reads it.
class PluginConfiguration {
public:
    /// Adds the option to a command line.
    static void addTo(CommandLine &line);

    /// Reads the file of --config, or else the plugin's own, which may be missing. Has a status
    /// when the subcommand must end with it: the file cannot be used, which was said on the
    /// console.
    std::optional<ExitStatus> read(const CommandLine &line, Console &console);

    /// What is in force: the defaults without a file.
    const Configuration &values() const { return m_values; }

    /// The file, which may be missing.
    const QString &path() const { return m_path; }
    /// Whether there is a file.
    bool exists() const { return m_exists; }
    /// Where the values come from: a whole sentence for the report.
    QString origin() const;

private:
    QString m_path;
    bool m_exists = false;
    Configuration m_values;
};
