#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

class MirovaRonRecord;

/// A person to explain, named by the payroll id, such as "1234.1", or by the pid.
class PersonId {
public:
    /// Nothing when the text is neither a payroll id nor a pid such as "pid 12341".
    static std::optional<PersonId> parse(const QString &text);
    /// From the two numbers of a payroll id, both above 0.
    static PersonId ofPayrollId(quint32 osobniCislo, quint32 poradoveCisloPP);
    static PersonId ofPid(quint32 pid);

    /// "1234.1" or "pid 12341".
    QString name() const;

    /// The plugin's key of the person; 0 when the joined numbers exceed 32 bits.
    quint32 pid() const { return m_pid; }

    /// 0 when only the pid is known.
    quint32 personalNumber() const { return m_osobniCislo; }

    /// Whether the plugin treats the record as this person's: also that of another person with the
    /// same pid.
    bool matches(const MirovaRonRecord &record) const;

private:
    quint32 m_osobniCislo = 0;
    quint32 m_poradoveCisloPP = 0;
    quint32 m_pid = 0;
};
