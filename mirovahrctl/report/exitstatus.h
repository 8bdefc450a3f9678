#pragma once

#include "cli/exitstatus.h"

#include <QString>

/// How mirovahrctl ends. The help text and the manual promise the numbers to scripts and
/// monitoring: none changes its meaning.
enum class ExitStatus {
    Fine = CommonStatus::kSuccess, ///< no warning and no error
    Findings = 1, ///< there is a warning or an error
    /// The command line, a file that it names, or the configuration cannot be used.
    Usage = CommonStatus::kUsage,
    NoDatabase = CommonStatus::kNoDatabase, ///< the database cannot be reached or used
    ContractBroken = 4, ///< the database violates what the plugin relies on
    GuardTripped = 5, ///< a safeguard refused the request; nothing was changed
};

/// A stable word for scripts: "fine", "findings", "usage", "no-database", "contract-broken" or
/// "guard-tripped".
QString exitStatusWord(ExitStatus status);

/// The part of the help texts that lists every status with its meaning.
QString exitStatusHelp();
