#include "mirovahrctl/gate/gateassessment.h"

#include "mirovahrctl/report/rules/gaterules.h"
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
    return {makeFinding(GateRules::kEmpty, QStringLiteral("The file contains no people.")), false};
}

GateReason truncated(const QString &message)
{
    return {makeFinding(GateRules::kTruncated, message), true};
}

GateReason noBaseline()
{
    return {makeFinding(GateRules::kNoBaseline,
                        QStringLiteral("There is no admitted file to compare with.")),
            true};
}

GateReason linesLost(const GateComparison::Result &changes, const GateLimit &limit)
{
    const qint64 lost = changes.lostLines();
    const QString lines =
        share(lost, changes.oldLines, QStringLiteral("line"), QStringLiteral("lines"));
    return {makeFinding(GateRules::kLinesLost,
                        lines + QStringLiteral(" with people ")
                            + (lost == 1 ? QStringLiteral("is") : QStringLiteral("are"))
                            + QStringLiteral(" missing compared with the last admitted file")
                            + allowance(limit)),
            true};
}

GateReason peopleLeaving(const GateComparison::Result &changes, const GateLimit &limit)
{
    const int count = changes.leaving.size();
    return {makeFinding(GateRules::kPeopleLeaving,
                        people(count, changes.working)
                            + (count == 1 ? QStringLiteral(" leaves") : QStringLiteral(" leave"))
                            + allowance(limit)),
            true};
}

GateReason peopleMoving(const GateComparison::Result &changes, const GateLimit &limit)
{
    const int count = changes.moving.size();
    return {makeFinding(GateRules::kPeopleMoving,
                        people(count, changes.working)
                            + (count == 1 ? QStringLiteral(" gets") : QStringLiteral(" get"))
                            + QStringLiteral(" another cost centre") + allowance(limit)),
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
    return {makeFinding(GateRules::kMissing, QStringLiteral("There is no file '%1'.").arg(path)),
            false};
}

GateReason tooLong()
{
    return {
        makeFinding(GateRules::kFileTooLong,
                    QStringLiteral("The file is larger than 1 GiB; the plugin reads no further.")),
        false};
}

GateReason changedMeanwhile()
{
    return {makeFinding(GateRules::kChangedMeanwhile,
                        QStringLiteral("The file changed while it was being read.")),
            false};
}

GateReason justWritten(qint64 settleSeconds)
{
    return {makeFinding(GateRules::kJustWritten,
                        QStringLiteral("The file was changed within the last %1.")
                            .arg(Wording::counted(settleSeconds, QStringLiteral("second"),
                                                  QStringLiteral("seconds")))),
            false};
}

GateReason busy()
{
    return {makeFinding(GateRules::kBusy, QStringLiteral("Another gate is using this folder.")),
            false};
}

} // namespace GateAssessment
