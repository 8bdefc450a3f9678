#pragma once

#include "mirovahrctl/report/finding.h"

#include <QString>
#include <QVector>

#include <optional>

class GateStatus;
struct StatusData;

/// The age in seconds from which the latest sign of the plugin's work is too old.
struct AgeLimits {
    std::optional<qint64> warning;
    std::optional<qint64> critical;
};

/// What is wrong with a status, and the age of the latest sign of the plugin's work.
struct StatusAssessment {
    /// Seconds since the last admission of a file if the gate's status has one, otherwise since the
    /// plugin's last trace in the database. Nothing when there is neither.
    std::optional<qint64> age;
    bool isAgeOfAdmission = false; ///< otherwise it is that of a trace
    QVector<Finding> findings; ///< an error is worse than a warning

    /// \a now: Unix time by this machine's clock, for the gate's times. \a gate may be null.
    static StatusAssessment of(const StatusData &data, const GateStatus *gate,
                               const AgeLimits &limits, qint64 now);

    /// The log has so many statements that were interrupted: see Interruptions.
    void noteInterruptions(qint64 count);
};
