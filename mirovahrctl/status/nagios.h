#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QString>

struct AgeLimits;
struct StatusData;
struct StatusAssessment;

/// The answer to a monitoring system in the convention of Nagios and its kin: one line, and an exit
/// status of the convention's own.
namespace Nagios {

/// The convention's numbers.
enum class Level { Ok = 0, Warning = 1, Critical = 2, Unknown = 3 };

/// As the program's exit status: the number is what counts, and means what the convention says.
ExitStatus exitStatus(Level level);

/// "MIROVAHR CRITICAL - " and a text, made fit for the line.
QString line(Level level, const QString &text);

Level level(const StatusAssessment &assessment);

/// The whole line of a status, with its performance data.
QString statusLine(const StatusData &data, const StatusAssessment &assessment,
                   const AgeLimits &limits);

} // namespace Nagios
