#include "mirovahrctl/gate/gatereport.h"

#include "mirovahrctl/comparison/comparedpeople.h"
#include "mirovahrctl/comparison/differencetables.h"
#include "mirovahrctl/comparison/fieldwords.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/rules/gaterules.h"
#include "mirovahrctl/report/wording.h"

namespace {

/// So many changes of each kind are shown.
constexpr int kMostShown = 20;

Finding rejectedLines(qint64 count, const QString &path)
{
    return makeFinding(
        GateRules::kRejectedLines,
        QStringLiteral("The file has %1 with errors, dropped or not written correctly.")
            .arg(Wording::counted(count, QStringLiteral("line"), QStringLiteral("lines"))),
        QStringLiteral("Send HR the file %1.").arg(path));
}

Finding warnedLines(qint64 count, const QString &path)
{
    return makeFinding(
        GateRules::kWarnedLines,
        QStringLiteral("The file has %1 with warnings: values that the plugin misreads, or that "
                       "are hardly intended.")
            .arg(Wording::counted(count, QStringLiteral("line"), QStringLiteral("lines"))),
        QStringLiteral("Send HR the file %1.").arg(path));
}

Finding writtenTexts(qint64 count)
{
    return makeFinding(
        GateRules::kTextsWritten,
        QStringLiteral("The file has %1 with texts that look as if they were written for SQL "
                       "already, such as O''Brien. The database gets them as they are here.")
            .arg(Wording::counted(count, QStringLiteral("line"), QStringLiteral("lines"))));
}

} // namespace

ExitStatus GateReport::writeTo(Report &report) const
{
    report.addSection(QStringLiteral("decision"), QStringLiteral("Decision"),
                      reasonFindings() + notes());
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
        return QStringLiteral("Overridden by --accept.");
    if (!reason.mayBeOverridden || mayAllBeOverridden(reasons))
        return reason.finding.advice;
    return QStringLiteral("Ask HR. For another reason the file cannot be admitted at all.");
}

QVector<Finding> GateReport::notes() const
{
    QVector<Finding> notes;
    if (isUnchanged) {
        notes << makeFinding(
            GateRules::kUnchanged,
            QStringLiteral("The file equals the last admitted one. It is published again, so that "
                           "the plugin continues with what is pending."));
    }
    if (wasTaken) {
        notes << makeFinding(GateRules::kUnread,
                             QStringLiteral("An earlier file was still in place, which the plugin "
                                            "has not read or does not remove. ")
                                 + (isAdmitted ? QStringLiteral("It was replaced.")
                                               : QStringLiteral("It remains.")));
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
    report.section(QStringLiteral("file"), QStringLiteral("HR's file"));
    report.fact(QStringLiteral("lines"), QStringLiteral("Lines"), facts->counts.lines);
    report.fact(QStringLiteral("records"), QStringLiteral("Read as people"), facts->counts.records);
    report.fact(QStringLiteral("dropped"), QStringLiteral("Dropped by the plugin"),
                facts->counts.dropped);
    report.fact(QStringLiteral("rejected"), QStringLiteral("Lines with errors"),
                facts->counts.rejected);
    report.fact(QStringLiteral("warned"), QStringLiteral("Lines with warnings"),
                facts->counts.warned);
    if (facts->hasBaseline)
        reportChanges(report);
    reportPeople(report);
}

void GateReport::reportChanges(Report &report) const
{
    const auto fact = [&report](const char *id, const char *label, qint64 value) {
        report.fact(QString::fromLatin1(id), QString::fromLatin1(label), value);
    };
    const ExportDifferences &changes = facts->changes;
    report.section(QStringLiteral("changes"),
                   QStringLiteral("Compared with the last admitted file"));
    fact("oldRecords", "People in the last admitted file", facts->oldLines);
    fact("working", "Employed people in it", changes.working);
    fact("lostLines", "Lines lost", facts->lostLines());
    fact("repeatedLines", "Lines repeated", facts->repeatedLines());
    fact("leaving", "People leaving", changes.leaving.size());
    fact("moving", "People moving", changes.moving.size());
    fact("new", "New people", changes.added.size());
    fact("returning", "People returning", changes.returning.size());
    fact("reassigned", "Supervisors changed without a visible reason", changes.reassigned.size());
    DifferenceTables tables(*people, report, kMostShown);
    tables.people("leaving", QStringLiteral("Leaving"), changes.leaving);
    tables.moving(changes.moving);
    tables.people("new", QStringLiteral("New"), changes.added);
    tables.people("returning", QStringLiteral("Returning"), changes.returning);
    const Table values = fieldTable(changes);
    if (values.rows.isEmpty())
        return;
    report.sentence(QStringLiteral("Values:"));
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
            report.section(QStringLiteral("people"), QStringLiteral("Whose values these are"));
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
        return QStringLiteral("The file was refused. Nothing was published.");
    return QStringLiteral("The file was admitted and published: %1.")
        .arg(Wording::counted(facts->counts.records, QStringLiteral("person"),
                              QStringLiteral("people")));
}
