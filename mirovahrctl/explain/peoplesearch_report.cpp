// Reports whom a search has found.

#include "mirovahrctl/explain/peoplesearch.h"

#include "mirovahrctl/explain/phrases.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/rules/explainrules.h"
#include "mirovahrctl/report/wording.h"

namespace {

QVariantList row(const FoundPerson &found)
{
    const auto person = found.person();
    QVariant database;
    if (found.active)
        database = *found.active ? QStringLiteral("active") : QStringLiteral("not active");
    return {person ? QVariant(person->name()) : QVariant(), found.name,
            found.line != 0 ? QVariant(found.line) : QVariant(), database};
}

void reportNobody(const PeopleSearch &search, Report &report)
{
    report.add(
        ExplainRules::kNobodyFound,
        QStringLiteral(
            "Nobody in the export or in the database has this name, personal number or pid: %1.")
            .arg(Wording::quoted(search.text())));
}

void reportTable(const PeopleSearch &search, Report &report)
{
    Table table{QStringLiteral("people"),
                {{QStringLiteral("person"), QStringLiteral("Person")},
                 {QStringLiteral("name"), QStringLiteral("Name")},
                 {QStringLiteral("line"), QStringLiteral("Line of the export")},
                 {QStringLiteral("database"), QStringLiteral("In the database")}},
                {}};
    const QVector<FoundPerson> people = search.people();
    for (const FoundPerson &person : people)
        table.rows += row(person);
    report.table(table);
    if (search.hasMore()) {
        report.sentence(
            QStringLiteral("There are more; these are the first %1.").arg(PeopleSearch::kMost));
    }
    report.add(ExplainRules::kPersonAmbiguous,
               QStringLiteral("The search does not name exactly one person."));
}

} // namespace

QString PeopleSearch::reportPeople(Report &report) const
{
    const int count = m_people.size();
    report.section(QStringLiteral("people"), QStringLiteral("People"));
    if (count == 0)
        reportNobody(*this, report);
    else
        reportTable(*this, report);
    if (m_unreadableLines > 0) {
        report.sentence(QStringLiteral("%1 of the export are too broken to tell whom they are "
                                       "about, and the plugin drops them: see check-file.")
                            .arg(Wording::counted(m_unreadableLines, QStringLiteral("line"),
                                                  QStringLiteral("lines"))));
    }
    report.fact(QStringLiteral("matches"), QStringLiteral("People found"), count);
    if (count == 0)
        return QStringLiteral("Nobody is known as %1.").arg(Wording::quoted(m_text));
    return QStringLiteral("%1 match: name one of them.")
        .arg(Wording::counted(count, QStringLiteral("person"), QStringLiteral("people")));
}
