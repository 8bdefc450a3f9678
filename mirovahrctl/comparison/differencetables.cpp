#include "mirovahrctl/comparison/differencetables.h"

#include "mirovahrctl/comparison/comparedpeople.h"
#include "mirovahrctl/comparison/exportdifferences.h"
#include "mirovahrctl/comparison/fieldwords.h"

namespace {

const Table::Column kPerson{QStringLiteral("person"), QStringLiteral("Person")};
const Table::Column kName{QStringLiteral("name"), QStringLiteral("Name")};

QString nameOf(const MirovaRonRecord &record)
{
    return QStringLiteral("%1 %2").arg(record.jmeno, record.prijmeni).simplified();
}

QVariant valueOf(const ComparedPeople &people, ComparedPeople::Side side, int person, int field)
{
    return people.isIn(side, person) ? shownValue(field, people.text(side, person, field))
                                     : QVariant();
}

} // namespace

QString shownValue(int field, const QString &text)
{
    static const QStringList names = ExportLine::fieldNames();
    const QDate date = names.at(field).startsWith(QLatin1String("Datum"))
            || field == ExportLine::KalendarPlatnostOd
        ? ExportLine::parseDate(text, QString(ExportLine::kDateFormat))
        : QDate();
    return date.isValid() ? date.toString(Qt::ISODate) : text;
}

Table fieldTable(const ExportDifferences &differences)
{
    static const QStringList names = ExportLine::fieldNames();
    Table table{QStringLiteral("fields"),
                {{QStringLiteral("field"), QStringLiteral("Field")},
                 {QStringLiteral("meaning"), QStringLiteral("Meaning")},
                 {QStringLiteral("changed"), QStringLiteral("Changed")},
                 {QStringLiteral("emptied"), QStringLiteral("Emptied")},
                 {QStringLiteral("misread"), QStringLiteral("Misread")},
                 {QStringLiteral("repaired"), QStringLiteral("Repaired")}},
                {}};
    for (int i = 0; i < ExportLine::kFieldCount; ++i) {
        const FieldDifferences &field = differences.fields.at(size_t(i));
        if (field.count() == 0)
            continue;
        table.rows.append({names.at(i), FieldWords::of(i), field.changed.size(),
                           field.emptied.size(), field.misread.size(), field.repaired.size()});
    }
    return table;
}

void DifferenceTables::people(const char *id, const QString &what, const QVector<int> &list)
{
    if (list.isEmpty())
        return;
    sentence(what, list.size());
    Table table{QString::fromLatin1(id),
                {kPerson, kName, {QStringLiteral("costCentre"), QStringLiteral("Cost centre")}},
                {}};
    const QVector<int> people = shown(list);
    for (const int person : people) {
        const MirovaRonRecord record = m_people.latest(person);
        table.rows.append({record.getPamId(), nameOf(record), record.stredisko});
    }
    m_report.table(table);
}

void DifferenceTables::moving(const QVector<int> &list)
{
    if (list.isEmpty())
        return;
    sentence(QStringLiteral("Moving"), list.size());
    Table table{QStringLiteral("moving"),
                {kPerson,
                 kName,
                 {QStringLiteral("from"), QStringLiteral("From cost centre")},
                 {QStringLiteral("to"), QStringLiteral("To cost centre")}},
                {}};
    const QVector<int> people = shown(list);
    for (const int person : people) {
        const MirovaRonRecord record = m_people.latest(person);
        table.rows.append({record.getPamId(), nameOf(record),
                           m_people.record(ComparedPeople::Before, person).stredisko,
                           record.stredisko});
    }
    m_report.table(table);
}

void DifferenceTables::values(const QString &id, const QString &what, const QVector<int> &list,
                              int field)
{
    if (list.isEmpty())
        return;
    sentence(what, list.size());
    Table table{id,
                {kPerson,
                 kName,
                 {QStringLiteral("before"), QStringLiteral("Before")},
                 {QStringLiteral("now"), QStringLiteral("Now")}},
                {}};
    const QVector<int> people = shown(list);
    for (const int person : people) {
        const MirovaRonRecord record = m_people.latest(person);
        table.rows.append({record.getPamId(), nameOf(record),
                           valueOf(m_people, ComparedPeople::Before, person, field),
                           valueOf(m_people, ComparedPeople::Now, person, field)});
    }
    m_report.table(table);
}

/// The sentence above a list.
void DifferenceTables::sentence(const QString &what, int count)
{
    if (count > m_most) {
        m_report.sentence(QStringLiteral("%1: the first %2 of %3.")
                              .arg(what, QString::number(m_most), QString::number(count)));
    } else {
        m_report.sentence(what + QLatin1Char(':'));
    }
}
