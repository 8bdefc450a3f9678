#pragma once

#include <QMap>
#include <QString>

/// The exit statuses that mean the same in every program of the project.
namespace CommonStatus {

constexpr int kSuccess = 0;
constexpr int kUsage = 2; ///< the command line makes no sense
constexpr int kNoDatabase = 3; ///< the attendance database cannot be reached or used

/// The part of a help text that lists exit statuses: \a sentences by number, each without its full
/// stop.
QString help(const QMap<int, QString> &sentences);

} // namespace CommonStatus
