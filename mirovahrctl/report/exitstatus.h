#pragma once

#include "cli/exitstatus.h"

#include <QString>

/// How mirovahrctl ends. Scripts and monitoring rely on the numbers: they are part of the help text
/// and of the manual, and never change their meaning.
enum class ExitStatus {
    Fine = CommonStatus::kSuccess, ///< nothing to object to
    Findings = 1, ///< there is something that a person should look at
    /// The command line, a file that it names, or the configuration cannot be used.
    Usage = CommonStatus::kUsage,
    NoDatabase = CommonStatus::kNoDatabase, ///< the database cannot be reached or used
    ContractBroken = 4, ///< the database is not what the plugin relies on
    GuardTripped = 5, ///< a guard refused what was asked for; nothing was changed
};

/// A stable word for scripts: "fine", "findings", "usage", "no-database", "contract-broken" or
/// "guard-tripped".
QString exitStatusWord(ExitStatus status);

/// The part of the help texts that lists every status with its meaning.
QString exitStatusHelp();
