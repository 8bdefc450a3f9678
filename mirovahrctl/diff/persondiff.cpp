#include "mirovahrctl/diff/persondiff.h"

#include "cli/text.h"
#include "mirovahrctl/comparison/comparedpeople.h"
#include "mirovahrctl/comparison/differencetables.h"
#include "mirovahrctl/comparison/fieldwords.h"
#include "mirovahrctl/export/fieldreading.h"
#include "mirovahrctl/export/personname.h"

namespace {

using People = ComparedPeople;

bool isNamed(const MirovaRonRecord &record, const QString &id)
{
    return id == record.getPamId() || id == QString::number(record.osobniCislo)
        || (record.getPid() != 0 && id == QString::number(record.getPid()));
}

/// What the plugin makes of a value; empty when it reads what is there.
QString outcome(int field, const QString &text)
{
    if (FieldReading::kindOf(field, text) != FieldReading::Kind::Misread)
        return {};
    return Text::tr("Misread: %1").arg(FieldReading::consequence(field));
}

Table tableOf(const ComparedPeople &people, int person)
{
    static const QStringList names = ExportLine::fieldNames();
    Table table{QStringLiteral("fields"),
                {{QStringLiteral("field"), Text::tr("Field")},
                 {QStringLiteral("meaning"), Text::tr("Meaning")},
                 {QStringLiteral("before"), Text::tr("Before")},
                 {QStringLiteral("now"), Text::tr("Now")},
                 {QStringLiteral("outcome"), Text::tr("What the plugin makes of it")}},
                {}};
    for (int field = ExportLine::Titul; field < ExportLine::kFieldCount; ++field) {
        const FieldTexts texts = fieldTexts(people, person, field);
        if (texts.before == texts.now)
            continue;
        const FieldTexts shown = shownTexts(field, texts);
        table.rows.append({names.at(field), FieldWords::of(field), shown.before, shown.now,
                           outcome(field, texts.now)});
    }
    return table;
}

QString sentenceOf(const ComparedPeople &people, int person)
{
    if (!people.isIn(People::Before, person))
        return Text::tr("The person is new.");
    if (!people.isIn(People::Now, person))
        return Text::tr("The person is missing from the newer export.");
    return people.isUnchanged(person) ? Text::tr("Nothing has changed.")
                                      : Text::tr("These fields differ:");
}

} // namespace

QVector<int> peopleNamed(const ComparedPeople &people, const QString &id)
{
    QVector<int> named;
    const QVector<int> all = people.inOrder();
    for (const int person : all) {
        if (isNamed(people.latest(person), id))
            named.append(person);
    }
    return named;
}

void reportPerson(const ComparedPeople &people, int person, ReportWriter &report)
{
    const MirovaRonRecord record = people.latest(person);
    report.section(QStringLiteral("person-") + record.getPamId(), personName(record));
    report.sentence(sentenceOf(people, person));
    const Table table = tableOf(people, person);
    if (!table.rows.isEmpty())
        report.table(table);
}
