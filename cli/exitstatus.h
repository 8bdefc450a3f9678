#pragma once

/// The exit statuses that mean the same in every program of the project.
namespace CommonStatus {

constexpr int kSuccess = 0;
constexpr int kUsage = 2; ///< the command line makes no sense
constexpr int kNoDatabase = 3; ///< the attendance database cannot be reached or used

} // namespace CommonStatus
