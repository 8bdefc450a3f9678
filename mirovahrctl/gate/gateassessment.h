#pragma once

#include "mirovahrctl/export/exportscan.h"
#include "mirovahrctl/gate/gatecomparison.h"
#include "mirovahrctl/gatestate/gateoptions.h"
#include "mirovahrctl/report/finding.h"

#include <QVector>

/// Why the gate refuses a file.
struct GateReason {
    Finding finding;
    bool mayBeOverridden = false; ///< by --accept
};

/// What is known about a file that was read to its end.
struct GateFacts {
    ExportScan::Counts counts;
    bool endsOpen = false; ///< without a final line feed
    bool isLastLineBroken = false;
    bool hasBaseline = false; ///< an admitted file exists, and the file was compared with it
    GateComparison::Result changes;
};

/// The rules that refuse a file. Pure functions.
namespace GateAssessment {

/// All reasons to refuse the file; empty when it may pass.
QVector<GateReason> assess(const GateFacts &facts, const GateLimits &limits, bool mayEndOpen);

/// HR's file does not exist.
GateReason missing(const QString &path);
/// The file is larger than the plugin reads.
GateReason tooLong();
/// The file changed while it was being copied.
GateReason changedMeanwhile();
/// The file is younger than \a settleSeconds.
GateReason justWritten(qint64 settleSeconds);
/// Another gate has locked the folder.
GateReason busy();

} // namespace GateAssessment
