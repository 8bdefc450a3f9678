#pragma once

#include "mirovahrctl/report/finding.h"

#include <QVector>

struct GateLimit;

/// Why the gate refuses a file.
struct GateReason {
    Finding finding; ///< names nobody: the status file, which holds its message, is for everybody
    bool mayBeOverridden = false; ///< by --accept
    int field = -1; ///< of the values that are the reason; -1: no field
    QVector<int> people{}; ///< whose values are the reason, as indexes of ComparedPeople
};

/// Whether --accept admits a file with these reasons.
bool mayAllBeOverridden(const QVector<GateReason> &reasons);

/// Texts of reasons.
namespace GateWording {

/// "12.5": so many percent is the part.
QString percent(qint64 part, qint64 whole);
/// "the limits are 50 and 5 %."
QString allowance(const GateLimit &limit);

} // namespace GateWording
