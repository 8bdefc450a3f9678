#include "mirovahrctl/comparison/differencetables.h"

#include "cli/text.h"
#include "mirovahrctl/comparison/comparedpeople.h"
#include "mirovahrctl/comparison/exportdifferences.h"
#include "mirovahrctl/comparison/fieldwords.h"
#include "mirovahrctl/export/fieldreading.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/moment.h"

#include <QLocale>

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

QString shownDate(const QString &text)
{
    const QDate date = ExportLine::parseDate(text, QString(ExportLine::kDateFormat));
    return date.isValid() ? Moment::text(date) : text;
}

QString shownBalance(QString text)
{
    return text.replace(QLatin1Char('.'), QLocale().decimalPoint());
}

bool isMisread(int field, const QString &text)
{
    return FieldReading::kindOf(field, text) == FieldReading::Kind::Misread;
}

} // namespace

FieldTexts fieldTexts(const ComparedPeople &people, int person, int field)
{
    const auto text = [&](ComparedPeople::Side side) {
        return people.isIn(side, person) ? people.text(side, person, field) : QString();
    };
    return {text(ComparedPeople::Before), text(ComparedPeople::Now)};
}

FieldTexts shownTexts(int field, const FieldTexts &texts)
{
    static const QStringList names = ExportLine::fieldNames();
    if (names.at(field).startsWith(QLatin1String("Datum"))
        || field == ExportLine::KalendarPlatnostOd)
        return {shownDate(texts.before), shownDate(texts.now)};
    if (field == ExportLine::DovolenaZustatek && !isMisread(field, texts.before)
        && !isMisread(field, texts.now))
        return {shownBalance(texts.before), shownBalance(texts.now)};
    return texts;
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
        const FieldTexts texts = shownTexts(field, fieldTexts(m_people, person, field));
        const auto cell = [&](ComparedPeople::Side side, const QString &text) {
            return m_people.isIn(side, person) ? QVariant(text) : QVariant();
        };
        table.rows.append({record.getPamId(), nameOf(record),
                           cell(ComparedPeople::Before, texts.before),
                           cell(ComparedPeople::Now, texts.now)});
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
