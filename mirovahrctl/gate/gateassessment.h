#pragma once

#include "mirovahrctl/export/exportscan.h"
#include "mirovahrctl/gate/gatecomparison.h"
#include "mirovahrctl/gatestate/gateoptions.h"
#include "mirovahrctl/report/finding.h"

#include <QVector>

/// Why the gate does not let a file pass.
struct GateReason {
    Finding finding;
    bool mayBeOverridden = false; ///< by --accept
};

/// What is known of a file that was read to its end.
struct GateFacts {
    ExportScan::Counts counts;
    bool endsOpen = false; ///< without a final line feed
    bool isLastLineBroken = false;
    bool hasBaseline = false; ///< there is an admitted file, with which it was compared
    GateComparison::Result changes;
};

/// What the gate has against a file, apart from how it was read. Pure functions.
namespace GateAssessment {

/// Everything that is against the file; nothing when it may pass.
QVector<GateReason> assess(const GateFacts &facts, const GateLimits &limits, bool mayEndOpen);

GateReason missing(const QString &path);
GateReason tooLong();
GateReason changedMeanwhile();
GateReason justWritten(qint64 settleSeconds);
GateReason busy();

} // namespace GateAssessment
