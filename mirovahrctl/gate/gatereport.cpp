#include "mirovahrctl/gate/gatereport.h"

#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/wording.h"

namespace {

/// As many changes of one kind are shown.
constexpr int kMostShown = 20;

/// What stands above a list of changes.
void tellShown(Report &report, const QString &what, int count)
{
    if (count > kMostShown) {
        report.sentence(QStringLiteral("%1: the first %2 of %3.")
                            .arg(what, QString::number(kMostShown), QString::number(count)));
    } else {
        report.sentence(what + QLatin1Char(':'));
    }
}

void tellLeaving(Report &report, const QVector<GateComparison::Change> &changes)
{
    if (changes.isEmpty())
        return;
    tellShown(report, QStringLiteral("Leaving"), changes.size());
    Table table{QStringLiteral("leaving"),
                {{QStringLiteral("person"), QStringLiteral("Person")},
                 {QStringLiteral("costCentre"), QStringLiteral("Cost centre")}},
                {}};
    for (const GateComparison::Change &change : changes.mid(0, kMostShown))
        table.rows.append({change.person(), change.oldCostCentre});
    report.table(table);
}

void tellMoving(Report &report, const QVector<GateComparison::Change> &changes)
{
    if (changes.isEmpty())
        return;
    tellShown(report, QStringLiteral("Moving"), changes.size());
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
    const bool one = count == 1;
    return makeFinding(
        Severity::Note, "rejected-lines",
        QStringLiteral("%1 of the file %2 not arrive as %3 should.")
            .arg(Wording::counted(count, QStringLiteral("line"), QStringLiteral("lines")),
                 one ? QStringLiteral("does") : QStringLiteral("do"),
                 one ? QStringLiteral("it") : QStringLiteral("they")),
        QStringLiteral("Send HR the file %1.").arg(path));
}

void tellChanges(Report &report, const GateComparison::Result &changes)
{
    report.section(QStringLiteral("changes"),
                   QStringLiteral("Compared with the last admitted file"));
    report.fact(QStringLiteral("oldRecords"), QStringLiteral("People in the last one"),
                changes.oldLines);
    report.fact(QStringLiteral("working"), QStringLiteral("Of them at work"), changes.working);
    report.fact(QStringLiteral("lostLines"), QStringLiteral("Lines lost"), changes.lostLines());
    report.fact(QStringLiteral("leaving"), QStringLiteral("People leaving"),
                changes.leaving.size());
    report.fact(QStringLiteral("moving"), QStringLiteral("People moving"), changes.moving.size());
    tellLeaving(report, changes.leaving);
    tellMoving(report, changes.moving);
}

} // namespace

ExitStatus GateReport::tell(Report &report) const
{
    const QVector<Finding> findings = reasonFindings() + notes();
    if (!findings.isEmpty())
        report.section(QStringLiteral("decision"), QStringLiteral("Decision"));
    for (const Finding &finding : findings)
        report.finding(finding);
    if (facts != nullptr)
        tellFacts(report);
    return report.conclude(isAdmitted ? ExitStatus::Fine : ExitStatus::GuardTripped, verdict());
}

QVector<Finding> GateReport::reasonFindings() const
{
    QVector<Finding> findings;
    for (const GateReason &reason : reasons) {
        findings << reason.finding;
        if (isAdmitted) {
            findings.last().severity = Severity::Warning;
            findings.last().advice = QStringLiteral("Set aside by --accept.");
        }
    }
    return findings;
}

QVector<Finding> GateReport::notes() const
{
    QVector<Finding> notes;
    if (isUnchanged) {
        notes << makeFinding(
            Severity::Note, "unchanged",
            QStringLiteral("The file is the last admitted one. It is published again, "
                           "so that the plugin goes on with what waits."));
    }
    if (wasTaken) {
        notes << makeFinding(
            Severity::Note, "unread",
            QStringLiteral("An earlier file lay in its place, which the plugin has "
                           "not read or does not remove. ")
                + (isAdmitted ? QStringLiteral("It was replaced.")
                              : QStringLiteral("It stays there.")));
    }
    if (facts != nullptr && facts->counts.rejected > 0)
        notes << rejectedLines(facts->counts.rejected, rejects);
    return notes;
}

void GateReport::tellFacts(Report &report) const
{
    report.section(QStringLiteral("file"), QStringLiteral("HR's file"));
    report.fact(QStringLiteral("lines"), QStringLiteral("Lines"), facts->counts.lines);
    report.fact(QStringLiteral("records"), QStringLiteral("Read as people"), facts->counts.records);
    report.fact(QStringLiteral("dropped"), QStringLiteral("Dropped by the plugin"),
                facts->counts.dropped);
    report.fact(QStringLiteral("rejected"), QStringLiteral("Not arriving as they should"),
                facts->counts.rejected);
    if (facts->hasBaseline)
        tellChanges(report, facts->changes);
}

QString GateReport::verdict() const
{
    if (!isAdmitted)
        return QStringLiteral("The file was refused. Nothing was published.");
    return QStringLiteral("The file was admitted and published: %1.")
        .arg(Wording::counted(facts->counts.records, QStringLiteral("person"),
                              QStringLiteral("people")));
}
