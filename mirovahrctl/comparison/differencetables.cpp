#include "mirovahrctl/comparison/differencetables.h"

#include "cli/text.h"
#include "mirovahrctl/comparison/comparedpeople.h"
#include "mirovahrctl/comparison/exportdifferences.h"
#include "mirovahrctl/comparison/fieldwords.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/moment.h"

namespace {

Table::Column personColumn()
{
    return {QStringLiteral("person"), Text::tr("Person")};
}

Table::Column nameColumn()
{
    return {QStringLiteral("name"), Text::tr("Name", "of a person")};
}

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
    return date.isValid() ? Moment::text(date) : text;
}

Table fieldTable(const ExportDifferences &differences)
{
    static const QStringList names = ExportLine::fieldNames();
    Table table{QStringLiteral("fields"),
                {{QStringLiteral("field"), Text::tr("Field")},
                 {QStringLiteral("meaning"), Text::tr("Meaning")},
                 {QStringLiteral("changed"), Text::tr("Changed")},
                 {QStringLiteral("emptied"), Text::tr("Emptied")},
                 {QStringLiteral("misread"), Text::tr("Misread")},
                 {QStringLiteral("repaired"), Text::tr("Repaired")}},
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
    Table table{
        QString::fromLatin1(id),
        {personColumn(), nameColumn(), {QStringLiteral("costCentre"), Text::tr("Cost centre")}},
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
    sentence(Text::tr("Moving"), list.size());
    Table table{QStringLiteral("moving"),
                {personColumn(),
                 nameColumn(),
                 {QStringLiteral("from"), Text::tr("From cost centre")},
                 {QStringLiteral("to"), Text::tr("To cost centre")}},
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
                {personColumn(),
                 nameColumn(),
                 {QStringLiteral("before"), Text::tr("Before")},
                 {QStringLiteral("now"), Text::tr("Now")}},
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
        m_report.sentence(Text::tr("%1: the first %2 of %3.")
                              .arg(what, Language::number(m_most), Language::number(count)));
    } else {
        m_report.sentence(what + QLatin1Char(':'));
    }
}
