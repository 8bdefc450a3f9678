#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QString>

struct AgeLimits;
struct StatusData;
struct StatusAssessment;

/// The answer to a monitoring system in the convention of Nagios plugins: one line, and the exit
/// status of that convention.
namespace Nagios {

/// The convention's numbers.
enum class Level { Ok = 0, Warning = 1, Critical = 2, Unknown = 3 };

/// The level as the program's exit status: only the number counts, with the convention's meaning.
ExitStatus exitStatus(Level level);

/// The line "MIROVAHR CRITICAL - " and a text, whose bars and control characters are replaced.
QString line(Level level, const QString &text);

/// The level of the worst finding; Ok without any.
Level level(const StatusAssessment &assessment);

/// The whole line of a status, with its performance data.
QString statusLine(const StatusData &data, const StatusAssessment &assessment,
                   const AgeLimits &limits);

} // namespace Nagios
