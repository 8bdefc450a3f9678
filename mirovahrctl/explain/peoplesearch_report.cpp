#include "mirovahrctl/explain/peoplelist.h"

#include "mirovahrctl/explain/peoplesearch.h"
#include "mirovahrctl/explain/phrases.h"
#include "mirovahrctl/program/report.h"
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
    Phrases::tell(report, Severity::Warning, "nobody-found",
                  QStringLiteral("Nobody in the export or in the database has this name, "
                                 "personal number or pid: %1.")
                      .arg(Wording::quoted(search.text())),
                  QStringLiteral("Check the spelling, and whether HR's export has ever named "
                                 "the person."));
}

void reportPeople(const PeopleSearch &search, Report &report)
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
    Phrases::tell(report, Severity::Warning, "person-ambiguous",
                  QStringLiteral("This does not name one person that can be explained."),
                  QStringLiteral("Name one by the first column of the table; who has nothing "
                                 "there stands in a line without numbers, which the plugin "
                                 "drops."));
}

} // namespace

QString listPeople(const PeopleSearch &search, Report &report)
{
    const int count = search.people().size();
    report.section(QStringLiteral("people"), QStringLiteral("People"));
    if (count == 0)
        reportNobody(search, report);
    else
        reportPeople(search, report);
    if (search.unreadableLines() > 0) {
        report.sentence(
            QStringLiteral("%1 of the export cannot be read so far as to say whom they are about, "
                           "and the plugin drops them: see check-file.")
                .arg(Wording::counted(search.unreadableLines(), QStringLiteral("line"),
                                      QStringLiteral("lines"))));
    }
    report.fact(QStringLiteral("matches"), QStringLiteral("People found"), count);
    if (count == 0)
        return QStringLiteral("Nobody is known as %1.").arg(Wording::quoted(search.text()));
    return QStringLiteral("%1 may be meant: name one of them.")
        .arg(Wording::counted(count, QStringLiteral("person"), QStringLiteral("people")));
}
