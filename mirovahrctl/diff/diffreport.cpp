#include "mirovahrctl/diff/diffreport.h"

#include "cli/text.h"
#include "mirovahrctl/comparison/comparedpeople.h"
#include "mirovahrctl/comparison/differencetables.h"
#include "mirovahrctl/comparison/exportdifferences.h"
#include "mirovahrctl/comparison/fieldwords.h"
#include "mirovahrctl/export/fieldreading.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/diffrules.h"

#include <algorithm>

namespace {

constexpr double kHundredths = 100;

/// Hundredths of a day in days.
QString days(double hundredths)
{
    return Language::number(hundredths / kHundredths, 2);
}

Finding misread(int field, int count)
{
    Finding finding =
        makeFinding(DiffRules::kMisread,
                    Text::tr("The plugin misreads the %1 of %Ln person(s): %2", nullptr, count)
                        .arg(FieldWords::of(field), FieldReading::consequence(field)));
    finding.field = ExportLine::fieldNames().at(field);
    return finding;
}

Finding multiplied(const BalanceDifferences &balances)
{
    Finding finding =
        makeFinding(DiffRules::kBalancesMultiplied,
                    Text::tr("The vacation balances of %Ln person(s) are %1 times what they were.",
                             nullptr, balances.multiplied.size())
                        .arg(balances.factorText()));
    finding.field = ExportLine::fieldNames().at(ExportLine::DovolenaZustatek);
    return finding;
}

} // namespace

DiffReport::DiffReport(const ComparedPeople &people, const ExportDifferences &differences, int most,
                       ReportWriter &report)
    : m_people(people)
    , m_differences(differences)
    , m_most(most)
    , m_report(report)
{
}

void DiffReport::write()
{
    writeFindings();
    writePeople();
    writeFields();
    writeFacts();
}

void DiffReport::writeFindings()
{
    m_report.section(QStringLiteral("findings"), Text::tr("Findings"));
    bool hasFindings = false;
    for (int field = 0; field < ExportLine::kFieldCount; ++field) {
        const int count = m_differences.fields.at(size_t(field)).misread.size();
        if (count > 0)
            m_report.finding(misread(field, count));
        hasFindings = hasFindings || count > 0;
    }
    if (!m_differences.balances.multiplied.isEmpty())
        m_report.finding(multiplied(m_differences.balances));
    else if (!hasFindings)
        m_report.sentence(Text::tr("No value that was read before is misread now."));
}

void DiffReport::writePeople()
{
    m_report.section(QStringLiteral("people"), Text::tr("People"));
    if (m_differences.added.isEmpty() && m_differences.gone.isEmpty()
        && m_differences.leaving.isEmpty() && m_differences.returning.isEmpty()
        && m_differences.moving.isEmpty())
        m_report.sentence(Text::tr("Nobody is new, leaves, returns or moves."));
    DifferenceTables tables(m_people, m_report, m_most);
    tables.people("new", Text::tr("New"), m_differences.added);
    tables.people("gone", Text::tr("Missing from the newer export"), m_differences.gone);
    tables.people("leaving", Text::tr("Leaving"), m_differences.leaving);
    tables.people("returning", Text::tr("Returning"), m_differences.returning);
    tables.moving(m_differences.moving);
}

void DiffReport::writeFields()
{
    const Table summary = fieldTable(m_differences);
    if (summary.rows.isEmpty())
        return;
    m_report.section(QStringLiteral("fields"), Text::tr("Fields"));
    m_report.table(summary);
    for (int field = 0; field < ExportLine::kFieldCount; ++field) {
        if (m_differences.fields.at(size_t(field)).count() > 0)
            writeField(field);
    }
}

void DiffReport::writeField(int field)
{
    const FieldDifferences &values = m_differences.fields.at(size_t(field));
    m_report.section(ExportLine::fieldNames().at(field), FieldWords::heading(field));
    if (field == ExportLine::DovolenaZustatek)
        writeBalances();
    DifferenceTables tables(m_people, m_report, m_most);
    tables.values(QStringLiteral("misread"), Text::tr("Misread"), values.misread, field);
    tables.values(QStringLiteral("emptied"), Text::tr("Emptied"), values.emptied, field);
    tables.values(QStringLiteral("changed"), Text::tr("Changed"), values.changed, field);
    tables.values(QStringLiteral("repaired"), Text::tr("Repaired"), values.repaired, field);
}

void DiffReport::writeBalances()
{
    const BalanceDifferences &balances = m_differences.balances;
    m_report.sentence(Text::tr("Balances that are read change by %1 days altogether, with a "
                               "median of %2 days.")
                          .arg(days(double(balances.sum)), days(balances.median)));
}

void DiffReport::writeFacts()
{
    const auto fact = [this](const char *id, const QString &label, const QVariant &value) {
        m_report.fact(QString::fromLatin1(id), label, value);
    };
    const auto changedOf = [this](int field) {
        return m_differences.fields.at(size_t(field)).count();
    };
    m_report.section(QStringLiteral("summary"), Text::tr("Summary"));
    fact("oldRecords", Text::tr("People in the older export"),
         m_people.lines(ComparedPeople::Before));
    fact("newRecords", Text::tr("People in the newer export"), m_people.lines(ComparedPeople::Now));
    fact("repeatedLines",
         Text::tr("Lines about somebody of an earlier line, which is not compared"),
         m_people.repetitions(ComparedPeople::Before) + m_people.repetitions(ComparedPeople::Now));
    fact("new", Text::tr("New"), m_differences.added.size());
    fact("gone", Text::tr("Missing from the newer export"), m_differences.gone.size());
    fact("leaving", Text::tr("Leaving"), m_differences.leaving.size());
    fact("returning", Text::tr("Returning"), m_differences.returning.size());
    fact("moving", Text::tr("Moving"), m_differences.moving.size());
    fact("supervisors", Text::tr("With another supervisor"),
         changedOf(ExportLine::NadrizenyOsobniCislo));
    fact("calendars", Text::tr("With another calendar"), changedOf(ExportLine::Kalendar));
    fact("balances", Text::tr("With another vacation balance"),
         changedOf(ExportLine::DovolenaZustatek));
    fact("balanceSum", Text::tr("Sum of the changes of balances, in days"),
         double(m_differences.balances.sum) / kHundredths);
    fact("balanceMedian", Text::tr("Median of the changes of balances, in days"),
         m_differences.balances.median / kHundredths);
}

QString DiffReport::verdict() const
{
    return isDifferent() ? Text::tr("The exports differ.")
                         : Text::tr("The plugin reads the same people from both exports.");
}

bool DiffReport::isDifferent() const
{
    const auto &fields = m_differences.fields;
    return !m_differences.added.isEmpty() || !m_differences.gone.isEmpty()
        || std::any_of(fields.cbegin(), fields.cend(),
                       [](const FieldDifferences &field) { return field.count() > 0; });
}
