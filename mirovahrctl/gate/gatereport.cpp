#include "mirovahrctl/gate/gatereport.h"

#include "cli/text.h"
#include "mirovahrctl/comparison/comparedpeople.h"
#include "mirovahrctl/comparison/differencetables.h"
#include "mirovahrctl/comparison/fieldwords.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/gaterules.h"

namespace {

/// So many changes of each kind are shown.
constexpr int kMostShown = 20;

Finding rejectedLines(qint64 count, const QString &path)
{
    return makeFinding(
        GateRules::kRejectedLines,
        Text::tr("The file has %Ln line(s) with errors, dropped or not written correctly.", nullptr,
                 Language::count(count)),
        Text::tr("Send HR the file %1.").arg(path));
}

Finding warnedLines(qint64 count, const QString &path)
{
    return makeFinding(
        GateRules::kWarnedLines,
        Text::tr("The file has %Ln line(s) with warnings: values that the plugin misreads, or that "
                 "are hardly intended.",
                 nullptr, Language::count(count)),
        Text::tr("Send HR the file %1.").arg(path));
}

Finding writtenTexts(qint64 count)
{
    return makeFinding(
        GateRules::kTextsWritten,
        Text::tr("The file has %Ln line(s) with texts that look as if they were written for SQL "
                 "already, such as O''Brien. The database gets them as they are here.",
                 nullptr, Language::count(count)));
}

} // namespace

ExitStatus GateReport::writeTo(Report &report) const
{
    report.addSection(QStringLiteral("decision"), Text::tr("Decision"), reasonFindings() + notes());
    if (facts != nullptr)
        reportFacts(report);
    return report.conclude(isAdmitted ? ExitStatus::Fine : ExitStatus::GuardTripped, verdict());
}

QVector<Finding> GateReport::reasonFindings() const
{
    QVector<Finding> findings;
    for (const GateReason &reason : reasons) {
        findings << reason.finding;
        findings.last().advice = adviceOn(reason);
        if (isAdmitted)
            findings.last().severity = Severity::Warning;
    }
    return findings;
}

/// Advises --accept only where that admits the file.
QString GateReport::adviceOn(const GateReason &reason) const
{
    if (isAdmitted)
        return Text::tr("Overridden by --accept.");
    if (!reason.mayBeOverridden || mayAllBeOverridden(reasons))
        return reason.finding.advice;
    return Text::tr("Ask HR. For another reason the file cannot be admitted at all.");
}

QVector<Finding> GateReport::notes() const
{
    QVector<Finding> notes;
    if (isUnchanged) {
        notes << makeFinding(
            GateRules::kUnchanged,
            Text::tr("The file equals the last admitted one. It is published again, so that "
                     "the plugin continues with what is pending."));
    }
    if (wasTaken) {
        notes << makeFinding(
            GateRules::kUnread,
            isAdmitted ? Text::tr("An earlier file was still in place, which the plugin has not "
                                  "read or does not remove. It was replaced.")
                       : Text::tr("An earlier file was still in place, which the plugin has not "
                                  "read or does not remove. It remains."));
    }
    if (facts != nullptr && facts->counts.rejected > 0)
        notes << rejectedLines(facts->counts.rejected, rejects);
    if (facts != nullptr && facts->counts.warned > 0)
        notes << warnedLines(facts->counts.warned, rejects);
    if (facts != nullptr && facts->writtenTexts > 0)
        notes << writtenTexts(facts->writtenTexts);
    return notes;
}

void GateReport::reportFacts(Report &report) const
{
    report.section(QStringLiteral("file"), Text::tr("HR's file"));
    report.fact(QStringLiteral("lines"), Text::tr("Lines"), facts->counts.lines);
    report.fact(QStringLiteral("records"), Text::tr("Read as people"), facts->counts.records);
    report.fact(QStringLiteral("dropped"), Text::tr("Dropped by the plugin"),
                facts->counts.dropped);
    report.fact(QStringLiteral("rejected"), Text::tr("Lines with errors"), facts->counts.rejected);
    report.fact(QStringLiteral("warned"), Text::tr("Lines with warnings"), facts->counts.warned);
    if (facts->hasBaseline)
        reportChanges(report);
    reportPeople(report);
}

void GateReport::reportChanges(Report &report) const
{
    const auto fact = [&report](const char *id, const char *label, qint64 value) {
        report.fact(QString::fromLatin1(id), Text::tr(label), value);
    };
    const ExportDifferences &changes = facts->changes;
    report.section(QStringLiteral("changes"), Text::tr("Compared with the last admitted file"));
    fact("oldRecords", QT_TRANSLATE_NOOP("Text", "People in the last admitted file"),
         facts->oldLines);
    fact("working", QT_TRANSLATE_NOOP("Text", "Employed people in it"), changes.working);
    fact("lostLines", QT_TRANSLATE_NOOP("Text", "Lines lost"), facts->lostLines());
    fact("repeatedLines", QT_TRANSLATE_NOOP("Text", "Lines repeated"), facts->repeatedLines());
    fact("leaving", QT_TRANSLATE_NOOP("Text", "People leaving"), changes.leaving.size());
    fact("moving", QT_TRANSLATE_NOOP("Text", "People moving"), changes.moving.size());
    fact("new", QT_TRANSLATE_NOOP("Text", "New people"), changes.added.size());
    fact("returning", QT_TRANSLATE_NOOP("Text", "People returning"), changes.returning.size());
    fact("reassigned", QT_TRANSLATE_NOOP("Text", "Supervisors changed without a visible reason"),
         changes.reassigned.size());
    DifferenceTables tables(*people, report, kMostShown);
    tables.people("leaving", Text::tr("Leaving"), changes.leaving);
    tables.moving(changes.moving);
    tables.people("new", Text::tr("New"), changes.added);
    tables.people("returning", Text::tr("Returning"), changes.returning);
    const Table values = fieldTable(changes);
    if (values.rows.isEmpty())
        return;
    report.sentence(Text::tr("Values:"));
    report.table(values);
}

/// Whose values are a reason.
void GateReport::reportPeople(Report &report) const
{
    bool hasSection = false;
    for (const GateReason &reason : reasons) {
        if (reason.people.isEmpty())
            continue;
        if (!hasSection)
            report.section(QStringLiteral("people"), Text::tr("Whose values these are"));
        hasSection = true;
        const QString id = reason.finding.rule + QLatin1Char('-') + reason.finding.field;
        const QString what =
            QStringLiteral("%1 [%2]").arg(FieldWords::heading(reason.field), reason.finding.rule);
        DifferenceTables(*people, report, kMostShown).values(id, what, reason.people, reason.field);
    }
}

QString GateReport::verdict() const
{
    if (!isAdmitted)
        return Text::tr("The file was refused. Nothing was published.");
    Q_ASSERT(facts != nullptr); // what is admitted has been examined
    return Text::tr("The file was admitted and published: %Ln person(s).", nullptr,
                    Language::count(facts->counts.records));
}
