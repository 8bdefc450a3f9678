#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

class MirovaRonRecord;

/// Whom somebody asks for: by the payroll id, such as "1234.1", or by the pid.
class SoughtPerson {
public:
    /// Nothing when the text is neither.
    static std::optional<SoughtPerson> parse(const QString &text);

    /// As it was asked for: "1234.1" or "pid 12341".
    QString name() const;

    /// What the plugin knows the person by; 0 when personal number and relationship do not fit.
    quint32 pid() const { return m_pid; }

    /// The personal number, also when it is only possible that the number meant one.
    quint32 personalNumber() const { return m_isPayrollId ? m_osobniCislo : m_pid; }

    /// True when the plugin takes the record for this person: also for somebody else with the same
    /// pid.
    bool matches(const MirovaRonRecord &record) const;

private:
    static std::optional<SoughtPerson> parsePayrollId(const QString &text);

    bool m_isPayrollId = false;
    quint32 m_osobniCislo = 0;
    quint32 m_poradoveCisloPP = 0;
    quint32 m_pid = 0;
};
