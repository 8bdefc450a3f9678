#pragma once

#include <QByteArray>

class GateStatus;
struct StatusAssessment;
struct StatusData;

/// The answer to a monitoring system that collects samples: OpenMetrics text, which the textfile
/// collector of a node exporter reads as well.
///
/// Only gauges. Moments are Unix times in seconds, so that whoever evaluates them computes the age
/// of the moment of evaluation; what is not known has no sample.
namespace Metrics {

/// What was read of the database and of the gate. A null pointer says that it could not be read,
/// or was not requested.
struct Sources {
    const StatusData *data = nullptr;
    const GateStatus *gate = nullptr;
    const StatusAssessment *assessment = nullptr;
};

/// The whole text. \a complete: everything that the command line requests could be read.
QByteArray text(const Sources &sources, bool complete);

} // namespace Metrics
