#pragma once

#include <QByteArray>

#include <optional>

class GateStatus;
struct StatusAssessment;
struct StatusData;

/// The answer to a monitoring system that collects samples: OpenMetrics text, which the textfile
/// collector of a node exporter reads as well.
///
/// Only gauges. Moments are Unix times in seconds, so that whoever evaluates them computes the age
/// of the moment of evaluation; what is not known has no sample.
namespace Metrics {

/// What was read of the database, the gate and the log. What is null or nothing could not be read,
/// is not known, or was not requested.
struct Sources {
    const StatusData *data = nullptr;
    const GateStatus *gate = nullptr;
    std::optional<qint64> waitingRecords; ///< see WaitingRecords
    const StatusAssessment *assessment = nullptr;
};

/// The whole text. \a complete: everything that the command line requests could be read.
QByteArray text(const Sources &sources, bool complete);

} // namespace Metrics
