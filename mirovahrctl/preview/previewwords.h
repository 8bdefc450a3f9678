#pragma once

#include "mirovahrctl/preview/previewvalues.h"

#include <QString>
#include <QVector>

class PreviewMoments;
class PreviewNames;
struct PreviewChange;

/// The kinds of differences: sections of the report.
enum class PreviewKind {
    NewPeople,
    ChangedPeople,
    Recalculation,
    Branches,
    Calendars,
    Balances,
    Supervisors,
    Payroll,
    Terminals,
    Settings,
    Other,
};

/// One difference in readable form.
struct PreviewLine {
    PreviewKind kind = PreviewKind::Other;
    QString who; ///< whom or what it concerns: "1234.1 Jana Nováková", "terminal 1 (Sklad)"
    QString what; ///< what happens, or what differs: "surname"
    QString before;
    QString after;
};

/// Describes changed rows in readable form.
class PreviewWords {
public:
    using Lines = QVector<PreviewLine>;

    /// \a names and \a moments must live as long as this object.
    PreviewWords(PreviewNames &names, const PreviewMoments &moments);

    /// Describes a row in one or more lines.
    Lines describe(const PreviewChange &change) const;

    /// All kinds, in the order of the report.
    static const QVector<PreviewKind> &kinds();
    /// A stable name for scripts, such as "new-people".
    static QString idOf(PreviewKind kind);
    /// "New people".
    static QString headingOf(PreviewKind kind);

private:
    Lines describePerson(const PreviewChange &change) const;
    Lines describeAttendance(const PreviewChange &change) const;
    Lines describeBranchMember(const PreviewChange &change) const;
    Lines describePlan(const PreviewChange &change) const;
    Lines describeMonth(const PreviewChange &change) const;
    Lines describeMove(const PreviewChange &change) const;
    Lines describeAdministrator(const PreviewChange &change) const;
    Lines describePayrollSettings(const PreviewChange &change) const;
    Lines describeTerminal(const PreviewChange &change) const;
    Lines describeTerminalPerson(const PreviewChange &change) const;
    Lines describeQueue(const PreviewChange &change) const;
    Lines describeSetting(const PreviewChange &change) const;
    Lines describeSelection(const PreviewChange &change) const;
    /// For rows without a description of their own: the columns by name.
    Lines describePlainly(const PreviewChange &change) const;

    /// One column before and after; describePlainly() when more columns differ.
    Lines compare(PreviewKind kind, const QString &who, const QString &what,
                  const PreviewChange &change, const char *column) const;
    QString person(const PreviewChange &change) const;

    PreviewNames &m_names;
    const PreviewValues m_values;
};
