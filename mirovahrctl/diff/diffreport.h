#pragma once

#include <QString>

class ComparedPeople;
class ReportWriter;
struct ExportDifferences;

/// Writes what differs between two exports.
class DiffReport {
public:
    /// \a most: how many people a list shows at most.
    DiffReport(const ComparedPeople &people, const ExportDifferences &differences, int most,
               ReportWriter &report);

    /// Writes the sections, findings and facts.
    void write();
    /// The result in one sentence.
    QString verdict() const;

private:
    void writePeople();
    void writeFields();
    void writeField(int field);
    void writeBalances();
    void writeFindings();
    void writeFacts();
    bool isDifferent() const;

    const ComparedPeople &m_people;
    const ExportDifferences &m_differences;
    const int m_most;
    ReportWriter &m_report;
};
