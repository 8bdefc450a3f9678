#pragma once

#include "mirovahrctl/gate/gateexamination.h"
#include "mirovahrctl/report/exitstatus.h"

#include <QString>
#include <QVector>

class Report;

/// What there is to tell of a run of the gate.
struct GateReport {
    bool isAdmitted = false;
    bool isUnchanged = false; ///< the file is the last admitted one
    bool wasTaken = false; ///< a file lay in the place where the plugin reads
    const GateFacts *facts = nullptr; ///< nothing when the file was not looked at
    QString rejects; ///< path of the file with the rejected lines
    QVector<GateReason> reasons; ///< against the file, also when they were overridden

    ExitStatus writeTo(Report &report) const;

private:
    QVector<Finding> reasonFindings() const;
    QVector<Finding> notes() const;
    void reportFacts(Report &report) const;
    QString verdict() const;
};
