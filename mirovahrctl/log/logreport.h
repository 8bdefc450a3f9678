#pragma once

#include "mirovahrctl/log/loghistory.h"

#include <QString>

class ReportWriter;
struct MissingTick;

/// Writes what a log says of the plugin's work.
class LogReport {
public:
    /// \a most: how many synchronisations the table shows at most; the last ones.
    LogReport(const LogHistory &history, int most, ReportWriter &report);

    /// Writes the sections, findings and facts.
    void write();
    /// The result in one sentence.
    QString verdict() const;

private:
    void writeSynchronisations();
    void writeProblems();
    void writeMissing();
    void writeMissingEnds();
    void writeMissingTicks();
    void writeInterruptions();
    void writeNoSynchronisation();
    void writeUnknownLines();
    void writeKnowledge();
    void writeFacts();

    const LogHistory &m_history;
    const LoggedProblems m_problems;
    const int m_most;
    ReportWriter &m_report;
};
