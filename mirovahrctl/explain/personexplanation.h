#pragma once

#include "mirovahrctl/explain/personid.h"
#include "mirovahrctl/explain/personlines.h"
#include "mirovahrctl/explain/recordexplanation.h"
#include "mirovahrctl/gatestate/siteexport.h"
#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/report/recordedreport.h"

#include <QString>

/// What a person's explanation is based on, besides the database.
struct ExplainedSource {
    PluginConfiguration configuration;
    SiteExport file; ///< the export
    SqlTexts::Route texts; ///< how its texts get into the database
    bool isForced = false; ///< the next synchronisation is a forced one
};

/// Why a person did not arrive, or not as expected: the whole report but its frame. It begins with
/// the answer, although that depends on everything after it.
class PersonExplanation {
public:
    /// \a source and \a view must live longer than this object.
    PersonExplanation(const PersonId &person, const ExplainedSource &source, PluginView &view);

    /// Reads the database and assesses everything. \a lines: the person's lines; null when there is
    /// no export. Where a statement fails, which the view's errorString() then says, nothing of it
    /// is true of the person.
    void assess(const PersonLines *lines);
    /// Writes what assess() has found. Returns the verdict in one sentence.
    QString writeTo(ReportWriter &report) const;

private:
    void explainConfiguration();
    void explainAbsentExport();
    void explainGate();
    void explainExport(const PersonLines &lines);
    void explainCommand();
    void explainNotFound(const PersonLines &lines);
    void explainOthers(const PersonLines &lines);
    void explainLine(const CheckedLine &line);
    void explainDatabase();
    /// The person's row as the plugin reads it, for when there is no line to compare it with.
    void explainRowOnly();
    void explainAbsence();
    void explainRecords(const QVector<CheckedLine> &lines);
    void explainMemory();
    RecordOutcome outcomeOfAll();
    void recordFacts();
    void recordRecalculation();
    /// Did the person arrive, what is different from HR, who must do what.
    void writeAnswer(ReportWriter &report) const;
    QString arrival() const;
    QString differences() const;
    QStringList duties() const;
    QString verdict() const;
    QString verdictWithoutRecord() const;

    const PersonId m_person;
    const ExplainedSource &m_source;
    RecordedReport m_details; ///< everything but the answer
    ExplainContext m_context;
    bool m_hasExport = false;
    bool m_isFound = false; ///< in the export, dropped or not
    QVector<RecordOutcome> m_outcomes; ///< of the lines that the plugin does not drop
    QVector<qint64> m_lineNumbers; ///< of the same lines
    std::optional<RecordOutcome> m_outcome; ///< of all of them together
};
