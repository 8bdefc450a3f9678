#pragma once

#include "tools/linecheck.h"
#include "worker/mirovaronrecord.h"

#include <QString>
#include <QStringList>

struct ExplainContext;

/// What becomes of a record step by step, in stable words for scripts.
struct RecordOutcome {
    QString person; ///< created, merged, updated, unchanged, never-created, test-mode,
                    ///< uncertain
    QString balance; ///< corrected, equal, later, impossible, no-fund, none
    QString supervisor; ///< set, kept, unknown, none
    QString branch; ///< joins, member, unknown, none
    QString calendar; ///< planned, kept, unknown, none
    QString recalculation; ///< the first day that is calculated again, or none
    bool waits = false; ///< the record waits for its branch or calendar afterwards
};

/// What the plugin does with one record of the export and why, in the order in which it decides.
/// The plugin's own functions are asked, of which only those that read are called.
class RecordExplanation {
public:
    /// \a previous is the record that the plugin has seen last of this person: that of an earlier
    /// line, or null when it has seen none since it was started. With \a numbered sections are told
    /// apart by the number of the line.
    RecordExplanation(ExplainContext &context, const CheckedLine &line,
                      const MirovaRonRecord *previous, bool numbered);

    /// Writes the sections of the report.
    RecordOutcome explain();

private:
    void explainState();

    // Row
    void explainRow();
    void explainHarmfulText();
    void explainUpdate();
    void explainComparison(const MirovaRonRecord &updated);
    void explainRelationshipState();
    void explainWriting(const MirovaRonRecord &updated, bool sameRow);
    void explainTerminalsOfPerson();
    void explainCreation();
    void explainPayroll();
    void explainPayrollSettings();
    bool hasPayrollSettings(ushort settings);
    bool isMadeBefore() const;
    void explainTestMode(const char *operation, const char *what);

    // Balance and supervisor
    void explainBalance();
    void explainCorrection(quint32 uid);
    void explainSupervisor();
    void explainAdministrator(quint32 aid);

    // Branch, calendar and what follows
    void explainPlace();
    void explainBranch(quint32 bid);
    void explainNewMember(quint32 bid);
    void explainCalendar(quint32 bid);
    void explainPlan(quint32 gid);
    void explainWaiting();
    void explainRecalculation();

    void section(const char *id, const char *heading);
    void say(const QString &sentence);
    /// The plugin's warnings when it looks for branch and calendar; nothing is written when one of
    /// them is not found.
    QString placingLog();
    bool isFirstLook() const { return m_previous == nullptr; }
    bool hasUid() const;
    bool isTypeOfSupervisors() const;

    ExplainContext &m_context;
    const CheckedLine &m_line;
    const MirovaRonRecord &m_record;
    const MirovaRonRecord *const m_previous;
    const bool m_numbered;
    bool m_active = false;
    RecordOutcome m_outcome;
};
