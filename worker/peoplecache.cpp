#include "worker/peoplecache.h"

#include "worker/exportline.h"
#include "worker/recorddates.h"

#include <QVariant>

#include <utility>

const QLatin1String PeopleCache::kSelect(
    "SELECT p.pid, p.pamId, p.title, p.name, p.surname, p.title2, p.phone, p.begin, p.end, "
    "p.rsBegin, p.rsEnd, p.rsText, p.calendarID, b.number FROM people p LEFT JOIN branches b "
    "USING(bid) WHERE p.status;");

namespace {

/// A person with only personal number and relationship set, from a payroll id such as "1234.2". The
/// key of a person is the pid that the payroll id makes, not the pid column: records of the export
/// are looked up by the same pid.
MirovaRonRecord numberedPerson(const QSqlQuery &row)
{
    const QString payrollId = row.value(1).toString();
    const ExportLine::Parts parts = ExportLine::split(payrollId, QLatin1Char('.'));
    MirovaRonRecord person;
    person.osobniCislo = ExportLine::toNumber(parts.first());
    person.poradoveCisloPP = ExportLine::toNumber(parts.value(1));
    return person;
}

void readRest(MirovaRonRecord &person, const QSqlQuery &row)
{
    person.titul = row.value(2).toString();
    person.jmeno = row.value(3).toString();
    person.prijmeni = row.value(4).toString();
    person.titulZa = row.value(5).toString();
    person.telefon = row.value(6).toString();
    person.datumNastupu = RecordDates::datNastFromTimestamp(row.value(7).toUInt());
    person.datumVystupu = RecordDates::datVystFromTimestamp(row.value(8).toUInt());
    person.rsFrom = RecordDates::datVystFromTimestamp(row.value(9).toUInt());
    person.rsTo = RecordDates::datVystFromTimestamp(row.value(10).toUInt());
    person.rsText = row.value(11).toString();
    person.kalendar = row.value(12).toUInt();
    person.stredisko = row.value(13).toUInt();
}

} // namespace

void PeopleCache::load(const QSqlQuery &rows, const QSet<quint32> &expected)
{
    m_people.clear();
    m_expected = expected;
    m_rows = rows;
    if (!m_expected.isEmpty())
        convertRows(true);
}

MirovaRonRecord *PeopleCache::find(quint32 pid)
{
    if (m_rows && !m_expected.contains(pid)) {
        convertRows(false);
        m_rows.reset();
    }
    const auto person = m_people.find(pid);
    return person == m_people.end() ? nullptr : &*person;
}

void PeopleCache::clear()
{
    m_people.clear();
    m_expected.clear();
    m_rows.reset();
}

void PeopleCache::convertRows(bool expected)
{
    for (bool more = m_rows->first(); more; more = m_rows->next()) {
        MirovaRonRecord person = numberedPerson(*m_rows);
        const quint32 pid = person.getPid();
        if (m_expected.contains(pid) != expected)
            continue;
        readRest(person, *m_rows);
        m_people[pid] = std::move(person);
    }
}
