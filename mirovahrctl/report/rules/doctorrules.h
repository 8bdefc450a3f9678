#pragma once

#include "mirovahrctl/report/rule.h"

/// The rules of doctor beside those of the subcommands that it runs.
namespace DoctorRules {

inline constexpr Rule kCheckFailed{
    "check-failed", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "A check could not be made: a file or the database cannot be read."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Run that subcommand by itself until it answers; what it would find is not known.")};

inline constexpr Rule kServiceNotRunning{
    "service-not-running", Severity::Warning,
    QT_TRANSLATE_NOOP("Text", "yavhost.service is enabled or was started, but does not run."),
    QT_TRANSLATE_NOOP("Text", "See what ended it: systemctl status yavhost.")};

inline constexpr Rule kServiceCannotSee{
    "service-cannot-see", Severity::Error,
    QT_TRANSLATE_NOOP("Text", "The confinement of yavhost.service hides a file or folder from it."),
    QT_TRANSLATE_NOOP("Text", "Choose another place, such as the folders in /var/lib/yav.")};

inline constexpr Rule kServiceCannotWrite{
    "service-cannot-write", Severity::Error,
    QT_TRANSLATE_NOOP(
        "Text",
        "The user or the confinement of yavhost.service keeps it from writing to a folder."),
    QT_TRANSLATE_NOOP(
        "Text",
        "Give the folder to that user, and name it in ReadWritePaths (systemctl edit yavhost).")};

/// All of them, in the order of `mirovahrctl rules`.
inline constexpr const Rule *kAll[] = {
    &kCheckFailed,
    &kServiceNotRunning,
    &kServiceCannotSee,
    &kServiceCannotWrite,
};

} // namespace DoctorRules
