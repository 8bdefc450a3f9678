// The summary: the outcome of each line and of all together.

#include "mirovahrctl/explain/personexplanation.h"

#include "cli/text.h"
#include "mirovahrctl/explain/phrases.h"
#include "mirovahrctl/report/rules/explainrules.h"

namespace {

/// The facts that are words.
struct WordFact {
    const char *id;
    const char *label;
    QString RecordOutcome::*word;
};

constexpr WordFact kWordFacts[] = {
    {"person", QT_TRANSLATE_NOOP("Text", "Person"), &RecordOutcome::person},
    {"payroll", QT_TRANSLATE_NOOP("Text", "Payroll selection"), &RecordOutcome::payroll},
    {"payrollSettings", QT_TRANSLATE_NOOP("Text", "Payroll settings"),
     &RecordOutcome::payrollSettings},
    {"balance", QT_TRANSLATE_NOOP("Text", "Vacation balance"), &RecordOutcome::balance},
    {"supervisor", QT_TRANSLATE_NOOP("Text", "Supervisor"), &RecordOutcome::supervisor},
    {"branch", QT_TRANSLATE_NOOP("Text", "Branch"), &RecordOutcome::branch},
    {"calendar", QT_TRANSLATE_NOOP("Text", "Calendar group"), &RecordOutcome::calendar},
};

/// A table of the outcome of each line, in the words of the facts.
Table lineTable()
{
    Table table{QStringLiteral("lines"), {{QStringLiteral("line"), Text::tr("Line")}}, {}};
    for (const WordFact &fact : kWordFacts)
        table.columns += {QString::fromLatin1(fact.id), Text::tr(fact.label)};
    table.columns += {QStringLiteral("recalculation"), Text::tr("Recalculation from")};
    table.columns += {QStringLiteral("waits"), Text::tr("Waits afterwards")};
    return table;
}

QVariantList lineRow(qint64 number, const RecordOutcome &outcome)
{
    QVariantList row{number};
    for (const WordFact &fact : kWordFacts)
        row += Phrases::word(outcome.*fact.word, "outcome");
    row += outcome.recalculation.text();
    row += outcome.waits;
    return row;
}

} // namespace

void PersonExplanation::recordFacts()
{
    ReportWriter &report = m_context.report;
    report.section(QStringLiteral("summary"), Text::tr("Summary"));
    if (m_outcomes.size() > 1) {
        Table table = lineTable();
        for (int i = 0; i < m_outcomes.size(); ++i)
            table.rows += lineRow(m_lineNumbers.at(i), m_outcomes.at(i));
        report.table(table);
    }
    report.fact(QStringLiteral("exportSource"), Text::tr("Export is"),
                Phrases::word(m_source.file.sourceWord(), "export"));
    report.fact(QStringLiteral("pid"), QStringLiteral("pid"), m_context.person.pid());
    if (m_context.person.row())
        report.fact(QStringLiteral("uid"), QStringLiteral("uid"), m_context.person.uid());
    if (!m_outcome)
        return;
    for (const WordFact &fact : kWordFacts) {
        report.fact(QString::fromLatin1(fact.id), Text::tr(fact.label),
                    Phrases::word((*m_outcome).*fact.word, "outcome"));
    }
    recordRecalculation();
    report.fact(QStringLiteral("waits"), Text::tr("Waits afterwards"), m_outcome->waits);
}

void PersonExplanation::recordRecalculation()
{
    ReportWriter &report = m_context.report;
    QStringList causes;
    for (const QString &cause : m_outcome->recalculation.causes)
        causes += Phrases::word(cause, "cause");
    report.fact(QStringLiteral("recalculation"), Text::tr("Recalculation from"),
                m_outcome->recalculation.text());
    report.fact(QStringLiteral("recalculationCauses"), Text::tr("Recalculation because of"),
                causes.isEmpty() ? Phrases::word(QStringLiteral("none"), "cause")
                                 : causes.join(QStringLiteral(", ")));
    const auto days = m_context.person.recalculatedDays();
    report.fact(QStringLiteral("recalculatedDays"), Text::tr("Days of attendance to mark"),
                days ? QVariant(*days)
                     : QVariant(Phrases::word(QStringLiteral("uncertain"), "recalculation")));
    const qint64 before = m_context.person.lastCalculationBefore();
    const qint64 after = m_context.person.lastCalculation();
    if (after > before && before != 0) {
        report.add(
            ExplainRules::kCalculationForward,
            Text::tr("The last calculation moves forward from %1 to %2. Days in between that "
                     "are not calculated yet stay uncalculated.")
                .arg(Phrases::day(before), Phrases::day(after)));
    }
    report.fact(QStringLiteral("lastCalculation"), Text::tr("Last calculation is set"),
                Phrases::word(after == before      ? QStringLiteral("kept")
                                  : after < before ? QStringLiteral("back")
                                                   : QStringLiteral("forward"),
                              "last calculation"));
}
