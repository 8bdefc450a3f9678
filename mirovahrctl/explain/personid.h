#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

class MirovaRonRecord;

/// Whom somebody asks for: by the payroll id, such as "1234.1", or by the pid.
class PersonId {
public:
    /// Nothing when the text is neither a payroll id nor a pid such as "pid 12341".
    static std::optional<PersonId> parse(const QString &text);
    /// By the payroll id, of which both numbers must be above 0.
    static PersonId ofPayrollId(quint32 osobniCislo, quint32 poradoveCisloPP);
    static PersonId ofPid(quint32 pid);

    /// "1234.1" or "pid 12341".
    QString name() const;

    /// What the plugin knows the person by; 0 when personal number and relationship do not fit.
    quint32 pid() const { return m_pid; }

    /// 0 when it is not known.
    quint32 personalNumber() const { return m_osobniCislo; }

    /// True when the plugin takes the record for this person: also for somebody else with the same
    /// pid.
    bool matches(const MirovaRonRecord &record) const;

private:
    quint32 m_osobniCislo = 0;
    quint32 m_poradoveCisloPP = 0;
    quint32 m_pid = 0;
};
