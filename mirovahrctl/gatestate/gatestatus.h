#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the status file of `mirovahrctl gate` tells: a JSON object. Members that are missing or of
/// another kind count as not known; further ones do not matter.
///
///     {"result": "admitted" or "refused", "time": when the gate ran last,
///      "reasons": [why it refused, ...],
///      "lastAdmitted": {"time": when, "file": path, "lines": number}}
///
/// Times are texts such as "2026-11-21T05:10:00+01:00".
struct GateStatus {
    bool refused = false; ///< the last run refused its file
    std::optional<qint64> time; ///< of the last run, Unix time
    QStringList reasons;
    std::optional<qint64> admittedTime; ///< of the last file that was admitted, Unix time
    QString admittedFile;
    std::optional<qint64> admittedLines;

    /// Nothing when the file cannot be read or is no JSON object; `error` then says why, a sentence
    /// without its full stop.
    static std::optional<GateStatus> read(const QString &path, QString &error);
};
