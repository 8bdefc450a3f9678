#include "mirovahrctl/comparison/exportdifferences.h"

#include "mirovahrctl/comparison/comparedpeople.h"
#include "mirovahrctl/export/fieldreading.h"
#include "worker/recordcodes.h"

#include <QHash>

namespace {

using FieldReading::Kind;
using People = ComparedPeople;

/// The state alone, without the last day.
bool continues(MirovaRonRecord record, const QDate &today)
{
    record.datumVystupu = QDate();
    return RecordCodes::isActive(record, today);
}

/// Whether the new record has a last day, or an earlier one than the old record.
bool endsEarlier(const MirovaRonRecord &before, const MirovaRonRecord &now)
{
    return now.datumVystupu.isValid()
        && (!before.datumVystupu.isValid() || now.datumVystupu < before.datumVystupu);
}

/// Somebody of both exports.
struct Records {
    MirovaRonRecord before;
    MirovaRonRecord now;
};

/// A later last day is the end of a contract for a fixed term, of which nobody takes notice yet.
constexpr int kMonthsOfNotice = 3;

/// Whether the person goes on working in the same place and state, and has not given notice.
bool staysInPlace(const Records &records, const QDate &today)
{
    const MirovaRonRecord &before = records.before;
    const MirovaRonRecord &now = records.now;
    const bool leavesSoon =
        now.datumVystupu.isValid() && now.datumVystupu <= today.addMonths(kMonthsOfNotice);
    return RecordCodes::isActive(now, today) && !leavesSoon && !endsEarlier(before, now)
        && now.stredisko == before.stredisko && now.evidencniStav == before.evidencniStav;
}

/// One comparison.
class Comparison {
public:
    Comparison(const ComparedPeople &people, const QDate &today)
        : m_people(people)
        , m_today(today)
    {
    }

    ExportDifferences run();

private:
    void compareGone(int person);
    void compareRecords(int person);
    void compareFields(int person);
    void compareField(int person, int field);
    /// The list of the field's differences in which a person belongs; null for none of them.
    QVector<int> *listFor(int person, int field, FieldDifferences &differences) const;
    bool isExtension(int person, int field) const;
    void findReassigned();
    QString text(People::Side side, int person, int field) const
    {
        return m_people.text(side, person, field);
    }

    const ComparedPeople &m_people;
    const QDate m_today;
    ExportDifferences m_differences;
    /// Personal numbers of the older export: whether that person stays in place.
    QHash<quint32, bool> m_stays;
};

ExportDifferences Comparison::run()
{
    const QVector<int> people = m_people.inOrder();
    for (const int person : people) {
        if (!m_people.isIn(People::Before, person))
            m_differences.added.append(person);
        else if (m_people.isIn(People::Now, person))
            compareRecords(person);
        else
            compareGone(person);
        if (m_people.isIn(People::Now, person))
            compareFields(person);
    }
    findReassigned();
    const FieldDifferences &balances = m_differences.fields[ExportLine::DovolenaZustatek];
    m_differences.balances =
        BalanceDifferences::of(m_people, m_people.inOrder(balances.changed + balances.emptied));
    return m_differences;
}

void Comparison::compareGone(int person)
{
    const MirovaRonRecord before = m_people.record(People::Before, person);
    m_stays[before.osobniCislo] |= false;
    m_differences.gone.append(person);
    if (!RecordCodes::isActive(before, m_today))
        return;
    ++m_differences.working;
    m_differences.leaving.append(person);
}

void Comparison::compareRecords(int person)
{
    ++m_differences.inBoth;
    const Records records{m_people.record(People::Before, person),
                          m_people.record(People::Now, person)};
    m_differences.withBalance += records.before.dovolenaZustatek != 0 ? 1 : 0;
    m_stays[records.before.osobniCislo] |= staysInPlace(records, m_today);
    if (!RecordCodes::isActive(records.before, m_today)) {
        if (RecordCodes::isActive(records.now, m_today))
            m_differences.returning.append(person);
        return;
    }
    ++m_differences.working;
    if (!continues(records.now, m_today) || endsEarlier(records.before, records.now))
        m_differences.leaving.append(person);
    else if (records.now.stredisko != records.before.stredisko)
        m_differences.moving.append(person);
}

void Comparison::compareFields(int person)
{
    for (int field = ExportLine::Titul; field < ExportLine::kFieldCount; ++field)
        compareField(person, field);
}

void Comparison::compareField(int person, int field)
{
    FieldDifferences &differences = m_differences.fields.at(size_t(field));
    const bool isInBoth = m_people.isInBoth(person);
    if (!FieldReading::isNone(field, text(People::Now, person, field)))
        ++differences.now;
    if (isInBoth && !FieldReading::isNone(field, text(People::Before, person, field)))
        ++differences.before;
    if (QVector<int> *const list = listFor(person, field, differences))
        list->append(person);
}

QVector<int> *Comparison::listFor(int person, int field, FieldDifferences &differences) const
{
    if (m_people.isUnchanged(person))
        return nullptr;
    const QString textNow = text(People::Now, person, field);
    const Kind now = FieldReading::kindOf(field, textNow);
    if (!m_people.isInBoth(person))
        return now == Kind::Misread ? &differences.misread : nullptr;
    const QString textBefore = text(People::Before, person, field);
    if (textBefore == textNow)
        return nullptr;
    const bool wasMisread = FieldReading::kindOf(field, textBefore) == Kind::Misread;
    if (now == Kind::Misread)
        return wasMisread ? nullptr : &differences.misread;
    if (wasMisread)
        return &differences.repaired;
    if (FieldReading::isSame(field, textBefore, textNow))
        return nullptr;
    const bool isEmptied = now == Kind::None && !isExtension(person, field);
    return isEmptied ? &differences.emptied : &differences.changed;
}

/// Whether a last day that is not over yet was called off: the person stays for good.
bool Comparison::isExtension(int person, int field) const
{
    return field == ExportLine::DatumVystupu
        && m_people.record(People::Before, person).datumVystupu >= m_today;
}

void Comparison::findReassigned()
{
    const FieldDifferences &supervisors = m_differences.fields[ExportLine::NadrizenyOsobniCislo];
    const QVector<int> people = m_people.inOrder(supervisors.changed + supervisors.emptied);
    for (const int person : people) {
        const MirovaRonRecord before = m_people.record(People::Before, person);
        if (before.nadrizenyOsobniCislo == 0)
            continue;
        const bool moves = m_people.record(People::Now, person).stredisko != before.stredisko;
        // A supervisor who is in neither export may still be there.
        if (!moves && m_stays.value(before.nadrizenyOsobniCislo, true))
            m_differences.reassigned.append(person);
    }
}

} // namespace

ExportDifferences ExportDifferences::of(const ComparedPeople &people, const QDate &today)
{
    return Comparison(people, today).run();
}
