#include "mirovahrctl/explain/personexplanation.h"

#include "cli/text.h"
#include "mirovahrctl/explain/phrases.h"
#include "mirovahrctl/export/personname.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/explainrules.h"

#include <algorithm>

namespace {

/// Which file of the gate is explained.
QString admittedFile(const SiteExport &file)
{
    const auto &status = file.gateStatus();
    const auto admitted = status ? status->admittedTime() : std::nullopt;
    if (!admitted) {
        return file.isGateOfCommand()
            ? Text::tr("What follows uses the file that the gate of syncCommand admitted last.")
            : Text::tr("What follows uses the file that the gate admitted last.");
    }
    return (file.isGateOfCommand()
                ? Text::tr("What follows uses the file that the gate of syncCommand admitted last, "
                           "on %1.")
                : Text::tr("What follows uses the file that the gate admitted last, on %1."))
        .arg(Phrases::day(*admitted));
}

} // namespace

PersonExplanation::PersonExplanation(const PersonId &person, const ExplainedSource &source,
                                     PluginView &view)
    : m_person(person)
    , m_source(source)
    , m_context{source.configuration.values(), view, m_details, source.texts.server,
                PersonState(view, person.pid(), source.isForced)}
{
}

void PersonExplanation::assess(const PersonLines *lines)
{
    m_hasExport = lines != nullptr;
    explainConfiguration();
    m_context.report.section(QStringLiteral("export"), Text::tr("Export"));
    if (m_source.file.source() != SiteExport::Source::Named
        && m_source.file.source() != SiteExport::Source::ImportFile)
        explainAbsentExport();
    if (lines)
        explainExport(*lines);
    if (m_source.isForced) {
        m_context.report.sentence(Text::tr("The next synchronisation is a forced one: the "
                                           "plugin handles every line, changed or not."));
    }
    explainDatabase();
    if (!m_isFound)
        explainAbsence();
    else
        explainRecords(lines->lines());
    explainMemory();
    recordFacts();
}

QString PersonExplanation::writeTo(ReportWriter &report) const
{
    writeAnswer(report);
    m_details.replay(report);
    return verdict();
}

void PersonExplanation::explainConfiguration()
{
    ReportWriter &report = m_context.report;
    const Configuration &configuration = m_context.configuration;
    report.section(QStringLiteral("configuration"), Text::tr("Configuration"));
    report.sentence(m_source.configuration.origin());
    if (!configuration.enabled) {
        report.add(ExplainRules::kDisabled,
                   Text::tr("The plugin is disabled: nobody is synchronised. What "
                            "follows applies once it is enabled."));
    }
    if (configuration.testMode) {
        report.add(
            ExplainRules::kTestMode,
            Text::tr(
                "Test mode is on: rows of people are not written, only what depends on them."));
    }
}

void PersonExplanation::explainAbsentExport()
{
    const SiteExport &file = m_source.file;
    m_context.report.sentence(
        (m_context.configuration.deleteFile
             ? Text::tr("There is no export %1: the plugin removes it after it has read it.")
             : Text::tr("There is no export %1."))
            .arg(file.importFile()));
    if (file.source() == SiteExport::Source::Gate) {
        explainGate();
        return;
    }
    if (!file.gateError().isEmpty())
        m_context.report.sentence(file.gateError() + QLatin1Char('.'));
    m_context.report.sentence(Text::tr("What follows uses the database only."));
}

void PersonExplanation::explainGate()
{
    ReportWriter &report = m_context.report;
    const SiteExport &file = m_source.file;
    const auto &status = file.gateStatus();
    report.sentence(admittedFile(file));
    if (status && status->isRefused()) {
        report.add(ExplainRules::kGateRefused,
                   Text::tr("The gate has refused a newer file: %1.")
                       .arg(status->reasons().join(QStringLiteral("; "))));
    }
}

void PersonExplanation::explainExport(const PersonLines &lines)
{
    explainCommand();
    m_isFound = !lines.lines().isEmpty();
    if (!m_isFound)
        explainNotFound(lines);
    for (const CheckedLine &line : lines.lines())
        explainLine(line);
    if (lines.more() > 0) {
        m_context.report.add(ExplainRules::kLinesNotExplained,
                             Text::tr("%Ln line(s) more about the same person are not explained: "
                                      "the facts are those of the first %1 lines.",
                                      nullptr, Language::count(lines.more()))
                                 .arg(PersonLines::kMost));
    }
    explainOthers(lines);
}

/// The command may write another export than the one that is explained.
void PersonExplanation::explainCommand()
{
    const Configuration &configuration = m_context.configuration;
    if (configuration.runsCommand(m_source.isForced)) {
        m_context.report.sentence(Text::tr(
            "The plugin runs its export command first, and may then find another file than this."));
    } else if (configuration.runsCommand(true)) {
        m_context.report.sentence(Text::tr(
            "A forced synchronisation runs the export command first, and may then find another "
            "file than this."));
    }
}

void PersonExplanation::explainNotFound(const PersonLines &lines)
{
    const auto &row = m_context.person.row();
    const bool hasLeft = row && (!row->active || row->isOver());
    Finding finding = makeFinding(ExplainRules::kNotInExport,
                                  Text::tr("None of the %Ln line(s) of %1 is about %2.", nullptr,
                                           Language::count(lines.count()))
                                      .arg(m_source.file.path(), m_person.name()));
    if (hasLeft) {
        finding.severity = ExplainRules::kNotInExport.otherSeverity;
        finding.advice = Text::tr("This is fine unless the person still works: according to "
                                  "the database the person has left.");
    }
    m_context.report.finding(finding);
    if (lines.nameless() > 0) {
        m_context.report.sentence(
            Text::tr("%Ln line(s) are too broken to tell whom they are about, and the plugin drops "
                     "them: see check-file.",
                     nullptr, Language::count(lines.nameless())));
    }
}

void PersonExplanation::explainOthers(const PersonLines &lines)
{
    if (lines.others().isEmpty())
        return;
    m_context.report.sentence(Text::tr("Personal number %1 also appears as %2.")
                                  .arg(QString::number(m_person.personalNumber()),
                                       lines.others().join(QStringLiteral(", "))));
}

void PersonExplanation::explainLine(const CheckedLine &line)
{
    ReportWriter &report = m_context.report;
    report.sentence(line.record
                        ? Text::tr("Line %1 of %2 is about %3, pid %4.")
                              .arg(QString::number(line.number), m_source.file.path(),
                                   personName(SqlTexts::shown(*line.record, m_context.backslash)),
                                   QString::number(line.record->getPid()))
                        : Text::tr("Line %1 of %2 is about the person, but the "
                                   "plugin drops it.")
                              .arg(QString::number(line.number), m_source.file.path()));
    for (const Finding &finding : line.findings)
        report.finding(finding);
}

void PersonExplanation::explainAbsence()
{
    if (!m_context.person.row()) {
        m_context.report.add(ExplainRules::kNotInDatabase,
                             Text::tr("The person is not in the database either."));
    } else if (m_hasExport) {
        m_context.report.sentence(
            Text::tr("The plugin leaves people alone who are missing from the export: it "
                     "never ends or removes them."));
    }
    explainRowOnly();
}

void PersonExplanation::explainRecords(const QVector<CheckedLine> &lines)
{
    const bool several =
        std::count_if(lines.cbegin(), lines.cend(),
                      [](const CheckedLine &line) { return line.record.has_value(); })
        > 1;
    for (const CheckedLine &line : lines) {
        if (!line.record)
            continue;
        m_outcomes += RecordExplanation(m_context, line, several).explain();
        m_lineNumbers += line.number;
    }
    if (m_outcomes.isEmpty())
        explainRowOnly();
    else
        m_outcome = outcomeOfAll();
}

/// A value that an earlier line has set and a later one has set back counts as kept.
RecordOutcome PersonExplanation::outcomeOfAll()
{
    RecordOutcome all = RecordOutcome::combined(m_outcomes);
    if (all.payrollSettings == QLatin1String("set") && !m_context.person.hasOtherPayrollSettings())
        all.payrollSettings = QStringLiteral("kept");
    if (all.supervisor == QLatin1String("set") && !m_context.person.hasOtherAdministrators())
        all.supervisor = QStringLiteral("kept");
    if (all.calendar == QLatin1String("planned") && !m_context.person.hasOtherPlan())
        all.calendar = QStringLiteral("kept");
    return all;
}

void PersonExplanation::explainMemory()
{
    ReportWriter &report = m_context.report;
    report.section(QStringLiteral("memory"), Text::tr("What only the running plugin knows"));
    report.sentence(
        Text::tr("This is what a plugin does with its first export after it was started. "
                 "Later it skips people whose line has not changed since the previous "
                 "synchronisation, unless the synchronisation is forced, the record waits "
                 "for its branch, or the balance could not be corrected."));
    report.sentence(
        Text::tr("Only its memory knows which lines it has seen. If it has seen this very "
                 "line and a step failed, nothing happens until the line changes; "
                 "mirovahrctl force makes it handle every line again."));
    report.sentence(Text::tr("Statements that fail, for lack of rights or otherwise, are not "
                             "predicted here: see preview and check-db."));
}
