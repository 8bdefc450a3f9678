#pragma once

#include "mirovahrctl/report/finding.h"

#include <QString>
#include <QVector>

#include <optional>

struct GateStatus;
struct StatusData;

/// From which age on the newest news of the plugin are too old, in seconds.
struct AgeLimits {
    std::optional<qint64> warning;
    std::optional<qint64> critical;
};

/// What is to be said about a status: the age of the newest news, and what is wrong.
struct StatusAssessment {
    /// Seconds since the last file was admitted where the gate's status says when, else since the
    /// plugin's last trace in the database. Nothing when there was neither.
    std::optional<qint64> age;
    QString ageOf; ///< of what: "admission of a file" or "trace of the plugin"
    QVector<Finding> findings; ///< an error is worse than a warning

    /// \a now by this machine's clock, for the gate's times. \a gate may be null.
    static StatusAssessment of(const StatusData &data, const GateStatus *gate,
                               const AgeLimits &limits, qint64 now);

    /// "12 seconds", "3 hours".
    static QString span(qint64 seconds);
};
