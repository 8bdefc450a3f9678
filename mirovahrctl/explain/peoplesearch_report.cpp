// Reports whom a search has found.

#include "mirovahrctl/explain/peoplesearch.h"

#include "cli/text.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/explainrules.h"
#include "mirovahrctl/report/wording.h"

namespace {

QVariantList row(const FoundPerson &found)
{
    const auto person = found.person();
    QVariant database;
    if (found.active)
        database = *found.active ? Text::tr("active", "row of a person")
                                 : Text::tr("not active", "row of a person");
    return {person ? QVariant(person->name()) : QVariant(), found.name,
            found.line != 0 ? QVariant(found.line) : QVariant(), database};
}

void reportNobody(const PeopleSearch &search, Report &report)
{
    report.add(
        ExplainRules::kNobodyFound,
        Text::tr(
            "Nobody in the export or in the database has this name, personal number or pid: %1.")
            .arg(Wording::quoted(search.text())));
}

void reportTable(const PeopleSearch &search, Report &report)
{
    Table table{QStringLiteral("people"),
                {{QStringLiteral("person"), Text::tr("Person")},
                 {QStringLiteral("name"), Text::tr("Name", "of a person")},
                 {QStringLiteral("line"), Text::tr("Line of the export")},
                 {QStringLiteral("database"), Text::tr("In the database")}},
                {}};
    const QVector<FoundPerson> people = search.people();
    for (const FoundPerson &person : people)
        table.rows += row(person);
    report.table(table);
    if (search.hasMore()) {
        report.sentence(
            Text::tr("There are more; these are the first %1.").arg(PeopleSearch::kMost));
    }
    report.add(ExplainRules::kPersonAmbiguous,
               Text::tr("The search does not name exactly one person."));
}

} // namespace

QString PeopleSearch::reportPeople(Report &report) const
{
    const int count = m_people.size();
    report.section(QStringLiteral("people"), Text::tr("People"));
    if (count == 0)
        reportNobody(*this, report);
    else
        reportTable(*this, report);
    if (m_unreadableLines > 0) {
        report.sentence(Text::tr("%Ln line(s) of the export are too broken to tell whom they are "
                                 "about, and the plugin drops them: see check-file.",
                                 nullptr, Language::count(m_unreadableLines)));
    }
    report.fact(QStringLiteral("matches"), Text::tr("People found"), count);
    if (count == 0)
        return Text::tr("Nobody is known as %1.").arg(Wording::quoted(m_text));
    return Text::tr("%Ln person(s) match: name one of them.", nullptr, count);
}
