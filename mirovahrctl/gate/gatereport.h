#pragma once

#include "mirovahrctl/gate/gateexamination.h"
#include "mirovahrctl/report/exitstatus.h"

#include <QString>
#include <QVector>

class Report;

/// The report of a run of the gate.
struct GateReport {
    bool isAdmitted = false;
    bool isUnchanged = false; ///< the file equals the last admitted one
    bool wasTaken = false; ///< a published file was still there
    const GateFacts *facts = nullptr; ///< null when the file was not examined
    const ComparedPeople *people = nullptr; ///< of both files, once these are examined
    QString rejects; ///< path of the file with the lines that have errors
    QVector<GateReason> reasons; ///< to refuse the file, also when they were overridden

    /// Writes and concludes the report. Returns the status to end with.
    ExitStatus writeTo(Report &report) const;

private:
    QVector<Finding> reasonFindings() const;
    QVector<Finding> notes() const;
    void reportFacts(Report &report) const;
    void reportChanges(Report &report) const;
    void reportPeople(Report &report) const;
    QString adviceOn(const GateReason &reason) const;
    QString verdict() const;
};
