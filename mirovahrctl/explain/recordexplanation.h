#pragma once

#include "mirovahrctl/explain/personstate.h"
#include "mirovahrctl/explain/recordoutcome.h"
#include "mirovahrctl/export/linecheck.h"
#include "mirovahrctl/pluginside/pluginview.h"
#include "mirovahrctl/report/recordedreport.h"
#include "plugin/configuration.h"

/// What the steps of one person's explanation share.
struct ExplainContext {
    const Configuration &configuration;
    PluginView &view;
    RecordedReport &report;
    Backslash backslash; ///< what it is to the server
    PersonState person;
};

/// What the plugin does with one record of the export and why, in the order of its decisions. Calls
/// only those functions of the plugin that read. What the record changes is noted in the person's
/// state, for the records that follow.
class RecordExplanation {
public:
    /// With \a numbered the sections carry the number of the line.
    RecordExplanation(ExplainContext &context, const CheckedLine &line, bool numbered);

    /// Writes the sections of the report.
    RecordOutcome explain();

private:
    void explainSteps();
    void explainRepetition();
    void explainState();

    // Row
    void explainRow();
    void explainLeaver();
    void explainUpdate();
    void explainComparison(const MirovaRonRecord &updated);
    void explainRelationshipState();
    void explainWriting(const MirovaRonRecord &updated);
    void explainWrittenRow(const MirovaRonRecord &updated, RecordDecisions::RowStep step);
    void explainStateBegin(const QDate &day);
    void explainTerminalsOfPerson();
    void explainCreation();
    void explainAddition();
    void explainPayroll();
    void explainPayrollSettings();
    void explainKeptSettings(ushort settings);
    void explainHarmfulText(const QString &stateText);
    void explainRowsLeftBehind();
    void explainTestMode(const char *operation, const char *what);

    // Balance and supervisor
    void explainBalance();
    void explainCorrection();
    void explainSupervisor();
    void explainAdministrator(quint32 aid);
    void explainUnknownAdministrator();

    // Branch, calendar and what follows
    void explainPlace();
    /// Returns whether the plugin puts the person on the list of new members.
    bool explainBranch(quint32 bid);
    void explainNewMember(quint32 bid);
    /// Returns whether the calendar group is planned afterwards.
    bool explainCalendar(quint32 bid);
    void explainPlan(quint32 gid);
    void explainWaiting(bool isPlaced);
    void explainRecalculation();
    void requestRecalculation(bool moves, bool isCorrected);
    /// Takes back what does not hold for somebody who takes over rows of a deleted person.
    void doubtOutcome();

    void section(const char *id, const QString &heading);
    void say(const QString &sentence);
    /// Whether the plugin handles the record at all.
    bool isHandled() const { return m_differences.changed || m_person.isForced(); }
    bool isPerson(const char *word) const { return m_outcome.person == QLatin1String(word); }

    ExplainContext &m_context;
    PersonState &m_person;
    const CheckedLine &m_line;
    const MirovaRonRecord &m_record;
    const bool m_numbered;
    const RecordDecisions::Differences m_differences;
    bool m_active = false;
    bool m_isHarmful = false; ///< a text may break the statement that writes the row
    bool m_mayNotAdd = false; ///< merging may change no row, which the plugin counts as a failure
    RecordOutcome m_outcome = RecordOutcome::none();
};
