#pragma once

#include "cli/exitstatus.h"

#include <QString>

/// How yavhost ends; the numbers are part of its --help.
enum class ExitStatus {
    Success = CommonStatus::kSuccess,
    NoPlugin = 1, ///< the library is not a plugin of the attendance server
    Usage = CommonStatus::kUsage,
    NoDatabase = CommonStatus::kNoDatabase,
    NotStarted = 4, ///< the plugin reported that it could not start
    Disabled = 5, ///< the plugin's INI file disables it
    NoPeople = 6, ///< the plugin could not load the people from the database
    Interrupted = 7, ///< a signal came before the first synchronisation was over
};

/// What the status means: a sentence without its full stop.
QString exitStatusSentence(ExitStatus status);

/// The part of the help text that lists every status.
QString exitStatusHelp();
