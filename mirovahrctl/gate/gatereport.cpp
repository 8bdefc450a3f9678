#include "mirovahrctl/gate/gatereport.h"

#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/rules/gaterules.h"
#include "mirovahrctl/report/wording.h"

namespace {

/// So many changes of each kind are shown.
constexpr int kMostShown = 20;

/// The sentence above a list of changes.
void reportShown(Report &report, const QString &what, int count)
{
    if (count > kMostShown) {
        report.sentence(QStringLiteral("%1: the first %2 of %3.")
                            .arg(what, QString::number(kMostShown), QString::number(count)));
    } else {
        report.sentence(what + QLatin1Char(':'));
    }
}

void reportLeaving(Report &report, const QVector<GateComparison::Change> &changes)
{
    if (changes.isEmpty())
        return;
    reportShown(report, QStringLiteral("Leaving"), changes.size());
    Table table{QStringLiteral("leaving"),
                {{QStringLiteral("person"), QStringLiteral("Person")},
                 {QStringLiteral("costCentre"), QStringLiteral("Cost centre")}},
                {}};
    for (const GateComparison::Change &change : changes.mid(0, kMostShown))
        table.rows.append({change.person(), change.oldCostCentre});
    report.table(table);
}

void reportMoving(Report &report, const QVector<GateComparison::Change> &changes)
{
    if (changes.isEmpty())
        return;
    reportShown(report, QStringLiteral("Moving"), changes.size());
    Table table{QStringLiteral("moving"),
                {{QStringLiteral("person"), QStringLiteral("Person")},
                 {QStringLiteral("from"), QStringLiteral("From cost centre")},
                 {QStringLiteral("to"), QStringLiteral("To cost centre")}},
                {}};
    for (const GateComparison::Change &change : changes.mid(0, kMostShown))
        table.rows.append({change.person(), change.oldCostCentre, change.newCostCentre});
    report.table(table);
}

Finding rejectedLines(qint64 count, const QString &path)
{
    return makeFinding(
        GateRules::kRejectedLines,
        QStringLiteral("The file has %1 with errors, dropped or not written correctly.")
            .arg(Wording::counted(count, QStringLiteral("line"), QStringLiteral("lines"))),
        QStringLiteral("Send HR the file %1.").arg(path));
}

void reportChanges(Report &report, const GateComparison::Result &changes)
{
    report.section(QStringLiteral("changes"),
                   QStringLiteral("Compared with the last admitted file"));
    report.fact(QStringLiteral("oldRecords"), QStringLiteral("People in the last admitted file"),
                changes.oldLines);
    report.fact(QStringLiteral("working"), QStringLiteral("Employed people in it"),
                changes.working);
    report.fact(QStringLiteral("lostLines"), QStringLiteral("Lines lost"), changes.lostLines());
    report.fact(QStringLiteral("leaving"), QStringLiteral("People leaving"),
                changes.leaving.size());
    report.fact(QStringLiteral("moving"), QStringLiteral("People moving"), changes.moving.size());
    reportLeaving(report, changes.leaving);
    reportMoving(report, changes.moving);
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
        if (isAdmitted) {
            findings.last().severity = Severity::Warning;
            findings.last().advice = QStringLiteral("Overridden by --accept.");
        }
    }
    return findings;
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
    if (facts->hasBaseline)
        reportChanges(report, facts->changes);
}

QString GateReport::verdict() const
{
    if (!isAdmitted)
        return QStringLiteral("The file was refused. Nothing was published.");
    return QStringLiteral("The file was admitted and published: %1.")
        .arg(Wording::counted(facts->counts.records, QStringLiteral("person"),
                              QStringLiteral("people")));
}
