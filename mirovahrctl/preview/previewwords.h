#pragma once

#include "mirovahrctl/preview/previewvalues.h"

#include <QString>
#include <QVector>
#include <QtGlobal>

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
    /// What happens to the row.
    enum class Row { Added, Changed, Removed };

    PreviewKind kind = PreviewKind::Other;
    Row row = Row::Changed;
    /// Something that HR would not recognise: an id, a moment of writing, a row of a queue.
    bool isBookkeeping = false;
    quint32 uid = 0; ///< of the person whom it concerns; 0: it concerns no person
    QString who; ///< whom or what it concerns: "1234.1 Jana Nováková", "terminal 1 (Sklad)"
    QString what; ///< what happens, or what differs: "surname", "is known to %1"
    QString thing; ///< what belongs into the place in \a what; null: there is none
    QString before;
    QString after;
    /// What happens when the row comes or goes, with places for the thing, "%1", and the value,
    /// "%2". Empty: \a what, a colon and the value say it.
    QString sentence;
    bool isName = false; ///< a part of the name in \a who
    bool isYes = false; ///< the value is a "yes" that goes without saying

    /// What happens, or what differs, with the thing in its place.
    QString text() const;
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
    /// One column of a person who is created or changed.
    PreviewLine describePersonColumn(const PreviewChange &change, int column) const;
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

    /// A line about the person of the change's uid, or about nobody without one.
    PreviewLine lineAbout(PreviewKind kind, const PreviewChange &change, const QString &what,
                          const QString &thing = QString()) const;
    PreviewLine lineAboutPid(const QString &pid, const QString &what, const QString &thing) const;
    /// The line with one column before and after; describePlainly() when more columns differ.
    Lines compare(PreviewLine line, const PreviewChange &change, const char *column) const;

    PreviewNames &m_names;
    const PreviewMoments &m_moments;
    const PreviewValues m_values;
};
