#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QDateTime>
#include <QString>

#include <optional>

class Console;

/// How a log is followed.
struct LogFollowOptions {
    QString path; ///< see LogSource::kStandardInput
    int last = 0; ///< it begins with so many synchronisations that a file has already; 0: with all
    std::optional<QDateTime> since; ///< what was logged before is left out
};

/// Shows what a log says while it is written, until SIGINT or SIGTERM comes or standard input ends.
/// The status is Findings after a warning or an error, otherwise Fine; or the reason why the log
/// cannot be followed was printed.
ExitStatus followLog(const LogFollowOptions &options, Console &console);
