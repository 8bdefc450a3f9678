#pragma once

#include "mirovahrctl/preview/previewvalues.h"

#include <QString>
#include <QVector>

class PreviewMoments;
class PreviewNames;
struct PreviewChange;

/// What a difference is about: the sections of the report.
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

/// One difference in the words of people.
struct PreviewLine {
    PreviewKind kind = PreviewKind::Other;
    QString who; ///< whom or what it is about: "1234.1 Jana Nováková", "terminal 1 (Sklad)"
    QString what; ///< what happens, or what differs: "surname"
    QString before;
    QString after;
};

/// Tells changed rows in the words of people.
class PreviewWords {
public:
    using Lines = QVector<PreviewLine>;

    /// \a names and \a moments must live as long as this object.
    PreviewWords(PreviewNames &names, const PreviewMoments &moments);

    /// A row in one or more lines.
    Lines tell(const PreviewChange &change) const;

    /// All of them, in the order of the report.
    static const QVector<PreviewKind> &kinds();
    /// A stable name for scripts, such as "new-people".
    static QString idOf(PreviewKind kind);
    /// "New people".
    static QString headingOf(PreviewKind kind);

private:
    Lines tellPerson(const PreviewChange &change) const;
    Lines tellAttendance(const PreviewChange &change) const;
    Lines tellBranchMember(const PreviewChange &change) const;
    Lines tellPlan(const PreviewChange &change) const;
    Lines tellMonth(const PreviewChange &change) const;
    Lines tellMove(const PreviewChange &change) const;
    Lines tellAdministrator(const PreviewChange &change) const;
    Lines tellPayrollSettings(const PreviewChange &change) const;
    Lines tellTerminal(const PreviewChange &change) const;
    Lines tellTerminalPerson(const PreviewChange &change) const;
    Lines tellQueue(const PreviewChange &change) const;
    Lines tellSetting(const PreviewChange &change) const;
    Lines tellSelection(const PreviewChange &change) const;
    /// For what has no words: the columns by their names.
    Lines tellPlainly(const PreviewChange &change) const;

    /// One column before and after; the plain words when more than that differs.
    Lines compare(PreviewKind kind, const QString &who, const QString &what,
                  const PreviewChange &change, const char *column) const;
    QString person(const PreviewChange &change) const;

    PreviewNames &m_names;
    const PreviewValues m_values;
};
