#include "mirovahrctl/explain/personid.h"

#include "worker/exportline.h"
#include "worker/mirovaronrecord.h"

#include <QRegularExpression>

std::optional<PersonId> PersonId::parse(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\A(?:pid ?(\\d+)|(\\d+)\\.(\\d+))\\z"));
    const QRegularExpressionMatch match = form.match(text);
    const quint32 pid = ExportLine::toNumber(match.capturedView(1));
    const quint32 osobniCislo = ExportLine::toNumber(match.capturedView(2));
    const quint32 poradoveCisloPP = ExportLine::toNumber(match.capturedView(3));
    if (pid != 0)
        return ofPid(pid);
    if (osobniCislo != 0 && poradoveCisloPP != 0)
        return ofPayrollId(osobniCislo, poradoveCisloPP);
    return std::nullopt;
}

PersonId PersonId::ofPayrollId(quint32 osobniCislo, quint32 poradoveCisloPP)
{
    MirovaRonRecord record;
    record.osobniCislo = osobniCislo;
    record.poradoveCisloPP = poradoveCisloPP;
    PersonId person;
    person.m_osobniCislo = osobniCislo;
    person.m_poradoveCisloPP = poradoveCisloPP;
    person.m_pid = record.getPid();
    return person;
}

PersonId PersonId::ofPid(quint32 pid)
{
    PersonId person;
    person.m_pid = pid;
    return person;
}

QString PersonId::name() const
{
    return m_osobniCislo != 0 ? QStringLiteral("%1.%2").arg(m_osobniCislo).arg(m_poradoveCisloPP)
                              : QStringLiteral("pid %1").arg(m_pid);
}

bool PersonId::matches(const MirovaRonRecord &record) const
{
    // Also for pid 0, which many can have: the plugin treats all of them as one person.
    return record.getPid() == m_pid;
}
