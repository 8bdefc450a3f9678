#include "tools/soughtperson.h"

#include "worker/exportline.h"
#include "worker/mirovaronrecord.h"

#include <QStringList>

std::optional<SoughtPerson> SoughtPerson::parse(const QString &text)
{
    if (text.contains(QLatin1Char('.')))
        return parsePayrollId(text);
    SoughtPerson person;
    person.m_pid = ExportLine::toNumber(text);
    return person.m_pid == 0 ? std::nullopt : std::make_optional(person);
}

std::optional<SoughtPerson> SoughtPerson::parsePayrollId(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('.'));
    SoughtPerson person;
    person.m_isPayrollId = true;
    person.m_osobniCislo = ExportLine::toNumber(parts.value(0));
    person.m_poradoveCisloPP = ExportLine::toNumber(parts.value(1));
    if (parts.size() != 2 || person.m_osobniCislo == 0 || person.m_poradoveCisloPP == 0)
        return std::nullopt;
    MirovaRonRecord record;
    record.osobniCislo = person.m_osobniCislo;
    record.poradoveCisloPP = person.m_poradoveCisloPP;
    person.m_pid = record.getPid();
    return person;
}

QString SoughtPerson::name() const
{
    return m_isPayrollId ? QStringLiteral("%1.%2").arg(m_osobniCislo).arg(m_poradoveCisloPP)
                         : QStringLiteral("pid %1").arg(m_pid);
}

bool SoughtPerson::matches(const MirovaRonRecord &record) const
{
    if (m_isPayrollId && record.osobniCislo == m_osobniCislo
        && record.poradoveCisloPP == m_poradoveCisloPP)
        return true;
    // With pid 0 there are many, who have nothing else in common.
    return m_pid != 0 && record.getPid() == m_pid;
}
