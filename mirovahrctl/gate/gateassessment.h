#pragma once

#include "mirovahrctl/comparison/exportdifferences.h"
#include "mirovahrctl/export/exportscan.h"
#include "mirovahrctl/gate/gatereason.h"
#include "mirovahrctl/gatestate/gatelimits.h"

#include <QVector>

/// What is known about a file that was read to its end.
struct GateFacts {
    ExportScan::Counts counts;
    bool endsOpen = false; ///< without a final line feed
    bool isLastLineBroken = false;
    bool hasBaseline = false; ///< an admitted file exists, and the file was compared with it
    qint64 oldLines = 0; ///< of the last admitted file, read as people
    qint64 newLines = 0; ///< read as people
    qint64 oldRepetitions = 0; ///< of the older lines, those about somebody of an earlier one
    qint64 newRepetitions = 0; ///< of the newer ones
    /// Lines with texts that look as if HR's program had written them for SQL, before the gate
    /// does.
    qint64 writtenTexts = 0;
    ExportDifferences changes; ///< from the last admitted file, or from an empty one

    qint64 lostLines() const { return qMax(qint64(0), oldLines - newLines); }
    qint64 repeatedLines() const { return qMax(qint64(0), newRepetitions - oldRepetitions); }
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
