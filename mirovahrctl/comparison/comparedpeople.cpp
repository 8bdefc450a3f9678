#include "mirovahrctl/comparison/comparedpeople.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int kBitsOfNumber = 32;

quint64 keyOf(const MirovaRonRecord &record)
{
    return quint64(record.osobniCislo) << kBitsOfNumber | record.poradoveCisloPP;
}

} // namespace

bool ComparedPeople::add(Side side, const char *line)
{
    const QString text = ExportLine::decode(line);
    const ExportLine::Parts parts = ExportLine::split(text, ExportLine::kSeparator);
    if (parts.size() != ExportLine::kFieldCount)
        return false;
    const MirovaRonRecord record = ExportLine::toRecord(parts);
    if (!ExportLine::isUsable(record))
        return false;
    ++m_lines[side];
    Person &person = m_people[indexOf(keyOf(record))];
    m_repetitions[side] += person.rows[side] >= 0 ? 1 : 0;
    const Row row = rowOf(parts);
    const int before = person.rows[Before];
    if (side == Now && before >= 0 && m_rows.at(before) == row) {
        person.rows[Now] = before;
        return true;
    }
    person.rows[side] = m_rows.size();
    m_rows.append(row);
    return true;
}

QVector<int> ComparedPeople::inOrder() const
{
    QVector<int> people(m_people.size());
    std::iota(people.begin(), people.end(), 0);
    return inOrder(people);
}

QVector<int> ComparedPeople::inOrder(QVector<int> people) const
{
    std::sort(people.begin(), people.end(),
              [this](int a, int b) { return m_people.at(a).key < m_people.at(b).key; });
    return people;
}

bool ComparedPeople::isUnchanged(int person) const
{
    return m_people.at(person).rows[Before] == m_people.at(person).rows[Now];
}

QString ComparedPeople::text(Side side, int person, int field) const
{
    return m_texts.at(m_rows.at(m_people.at(person).rows[side]).at(size_t(field)));
}

MirovaRonRecord ComparedPeople::record(Side side, int person) const
{
    std::array<QString, ExportLine::kFieldCount> texts;
    ExportLine::Parts parts;
    parts.reserve(ExportLine::kFieldCount);
    for (int field = 0; field < ExportLine::kFieldCount; ++field) {
        texts[size_t(field)] = text(side, person, field);
        parts.append(QStringRef(&texts[size_t(field)]));
    }
    return ExportLine::toRecord(parts);
}

MirovaRonRecord ComparedPeople::latest(int person) const
{
    return record(isIn(Now, person) ? Now : Before, person);
}

ComparedPeople::Row ComparedPeople::rowOf(const ExportLine::Parts &parts)
{
    Row row{};
    std::transform(parts.cbegin(), parts.cend(), row.begin(),
                   [this](const QStringRef &part) { return m_texts.add(part); });
    return row;
}

int ComparedPeople::indexOf(quint64 key)
{
    const auto found = m_indexes.constFind(key);
    if (found != m_indexes.constEnd())
        return *found;
    const int index = m_people.size();
    m_indexes.insert(key, index);
    Person person;
    person.key = key;
    m_people.append(person);
    return index;
}
