#include "mirovahrctl/gate/gateassessment.h"

#include "mirovahrctl/report/wording.h"

namespace GateAssessment {

namespace {

/// "60 people (12.5 %)"
QString share(qint64 part, qint64 whole, const QString &one, const QString &many)
{
    const double percent = whole > 0 ? double(part) * 100 / double(whole) : 0;
    return QStringLiteral("%1 (%2 %)")
        .arg(Wording::counted(part, one, many), QString::number(percent, 'f', 1));
}

QString people(qint64 part, qint64 whole)
{
    return share(part, whole, QStringLiteral("person"), QStringLiteral("people"));
}

/// ", where at most 50 and 5 % may."
QString allowance(const GateLimit &limit)
{
    return QStringLiteral("; the limits are %1 and %2 %.")
        .arg(QString::number(limit.count), QString::number(limit.percent));
}

GateReason empty()
{
    return {makeFinding(Severity::Error, "empty", QStringLiteral("The file contains no people."),
                        QStringLiteral("Ask HR whether the export went wrong.")),
            false};
}

GateReason truncated(const QString &message)
{
    return {makeFinding(Severity::Error, "truncated", message,
                        QStringLiteral("Ask HR for the complete file.")),
            true};
}

GateReason noBaseline()
{
    return {
        makeFinding(
            Severity::Error, "no-baseline",
            QStringLiteral("There is no admitted file to compare with."),
            QStringLiteral(
                "Inspect the file with check-file and preview, then admit it once with --accept.")),
        true};
}

QString adviceToAskHr()
{
    return QStringLiteral("Ask HR; if the change is intended, run the gate once with --accept.");
}

GateReason linesLost(const GateComparison::Result &changes, const GateLimit &limit)
{
    const qint64 lost = changes.lostLines();
    const QString lines =
        share(lost, changes.oldLines, QStringLiteral("line"), QStringLiteral("lines"));
    return {makeFinding(Severity::Error, "lines-lost",
                        lines + QStringLiteral(" with people ")
                            + (lost == 1 ? QStringLiteral("is") : QStringLiteral("are"))
                            + QStringLiteral(" missing compared with the last admitted file")
                            + allowance(limit),
                        adviceToAskHr()),
            true};
}

GateReason peopleLeaving(const GateComparison::Result &changes, const GateLimit &limit)
{
    const int count = changes.leaving.size();
    return {makeFinding(Severity::Error, "people-leaving",
                        people(count, changes.working)
                            + (count == 1 ? QStringLiteral(" leaves") : QStringLiteral(" leave"))
                            + allowance(limit),
                        adviceToAskHr()),
            true};
}

GateReason peopleMoving(const GateComparison::Result &changes, const GateLimit &limit)
{
    const int count = changes.moving.size();
    return {makeFinding(Severity::Error, "people-moving",
                        people(count, changes.working)
                            + (count == 1 ? QStringLiteral(" gets") : QStringLiteral(" get"))
                            + QStringLiteral(" another cost centre") + allowance(limit),
                        adviceToAskHr()),
            true};
}

void assessEnd(const GateFacts &facts, bool mayEndOpen, QVector<GateReason> &reasons)
{
    if (facts.isLastLineBroken)
        reasons << truncated(QStringLiteral("The last line is damaged."));
    else if (facts.endsOpen && !mayEndOpen)
        reasons << truncated(QStringLiteral("The last line does not end with a line feed."));
}

void assessChanges(const GateComparison::Result &changes, const GateLimits &limits,
                   QVector<GateReason> &reasons)
{
    if (limits.lostLines.isExceeded(changes.lostLines(), changes.oldLines))
        reasons << linesLost(changes, limits.lostLines);
    if (limits.leaving.isExceeded(changes.leaving.size(), changes.working))
        reasons << peopleLeaving(changes, limits.leaving);
    if (limits.moving.isExceeded(changes.moving.size(), changes.working))
        reasons << peopleMoving(changes, limits.moving);
}

} // namespace

QVector<GateReason> assess(const GateFacts &facts, const GateLimits &limits, bool mayEndOpen)
{
    QVector<GateReason> reasons;
    if (facts.counts.records == 0)
        reasons << empty();
    assessEnd(facts, mayEndOpen, reasons);
    if (facts.hasBaseline)
        assessChanges(facts.changes, limits, reasons);
    else
        reasons << noBaseline();
    return reasons;
}

GateReason missing(const QString &path)
{
    return {makeFinding(Severity::Error, "missing",
                        QStringLiteral("There is no file '%1'.").arg(path),
                        QStringLiteral("Ask HR whether the export has run.")),
            false};
}

GateReason tooLong()
{
    return {
        makeFinding(Severity::Error, "file-too-long",
                    QStringLiteral("The file is larger than 1 GiB; the plugin reads no further."),
                    QStringLiteral("Ask HR whether the export went wrong.")),
        false};
}

GateReason changedMeanwhile()
{
    return {makeFinding(Severity::Error, "changed-meanwhile",
                        QStringLiteral("The file changed while it was being read."),
                        QStringLiteral("HR's export should write under another name and rename the "
                                       "file when it is complete.")),
            false};
}

GateReason justWritten(qint64 settleSeconds)
{
    return {makeFinding(Severity::Error, "just-written",
                        QStringLiteral("The file was changed within the last %1.")
                            .arg(Wording::counted(settleSeconds, QStringLiteral("second"),
                                                  QStringLiteral("seconds"))),
                        QStringLiteral("It may still be incomplete; run the gate again later.")),
            false};
}

GateReason busy()
{
    return {makeFinding(Severity::Error, "busy",
                        QStringLiteral("Another gate is using this folder."),
                        QStringLiteral("Wait until it has finished.")),
            false};
}

} // namespace GateAssessment
