#include "mirovahrctl/gate/gateassessment.h"

#include "mirovahrctl/gate/gatevalues.h"
#include "mirovahrctl/report/rules/gaterules.h"
#include "mirovahrctl/report/wording.h"

namespace GateAssessment {

using namespace GateWording;

namespace {

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

GateReason linesLost(const GateFacts &facts, const GateLimit &limit)
{
    const qint64 lost = facts.lostLines();
    return {makeFinding(GateRules::kLinesLost,
                        lines(lost, facts.oldLines) + QStringLiteral(" with people ")
                            + (lost == 1 ? QStringLiteral("is") : QStringLiteral("are"))
                            + QStringLiteral(" missing compared with the last admitted file")
                            + allowance(limit)),
            true};
}

/// The comparison sees the last line about a person only, and the plugin carries out all of them.
GateReason linesRepeated(const GateFacts &facts, const GateLimit &limit)
{
    const qint64 repeated = facts.repeatedLines();
    return {makeFinding(
                GateRules::kLinesRepeated,
                lines(repeated, facts.oldLines)
                    + (repeated == 1 ? QStringLiteral(" repeats a person of an earlier line")
                                     : QStringLiteral(" repeat people of earlier lines"))
                    + QStringLiteral(", more than in the last admitted file") + allowance(limit)),
            true};
}

/// People of one kind, and the limit that is held against them.
struct Kind {
    const Rule &rule;
    const GateLimit &limit;
    const QVector<int> &list;
    int whole;
    const char *oneDoes;
    const char *manyDo;
};

void assessKind(const Kind &kind, const GateLimits &limits, QVector<GateReason> &reasons)
{
    const int count = kind.list.size();
    if (!limits.isExceeded(kind.limit, count, kind.whole))
        return;
    reasons << GateReason{makeFinding(kind.rule,
                                      QStringLiteral("%1 %2%3").arg(
                                          people(count, kind.whole),
                                          QLatin1String(count == 1 ? kind.oneDoes : kind.manyDo),
                                          allowance(kind.limit))),
                          true};
}

void assessEnd(const GateFacts &facts, bool mayEndOpen, QVector<GateReason> &reasons)
{
    if (facts.isLastLineBroken)
        reasons << truncated(QStringLiteral("The last line is damaged."));
    else if (facts.endsOpen && !mayEndOpen)
        reasons << truncated(QStringLiteral("The last line does not end with a line feed."));
}

void assessPeople(const ExportDifferences &changes, const GateLimits &limits,
                  QVector<GateReason> &reasons)
{
    const int known = changes.inBoth + changes.gone.size();
    assessKind({GateRules::kPeopleLeaving, limits.leaving, changes.leaving, changes.working,
                "leaves", "leave"},
               limits, reasons);
    assessKind({GateRules::kPeopleMoving, limits.moving, changes.moving, changes.working,
                "gets another cost centre", "get another cost centre"},
               limits, reasons);
    assessKind({GateRules::kPeopleNew, limits.added, changes.added, known, "is new", "are new"},
               limits, reasons);
    assessKind({GateRules::kPeopleReturning, limits.returning, changes.returning, changes.working,
                "returns who had left", "return who had left"},
               limits, reasons);
}

void assessChanges(const GateFacts &facts, const GateLimits &limits, QVector<GateReason> &reasons)
{
    if (limits.isExceeded(limits.lostLines, facts.lostLines(), facts.oldLines))
        reasons << linesLost(facts, limits.lostLines);
    if (limits.isExceeded(limits.repeatedLines, facts.repeatedLines(), facts.oldLines))
        reasons << linesRepeated(facts, limits.repeatedLines);
    assessPeople(facts.changes, limits, reasons);
    reasons << GateValues::assessChanged(facts.changes, limits);
}

} // namespace

QVector<GateReason> assess(const GateFacts &facts, const GateLimits &limits, bool mayEndOpen)
{
    QVector<GateReason> reasons;
    if (facts.counts.records == 0)
        reasons << empty();
    assessEnd(facts, mayEndOpen, reasons);
    if (facts.hasBaseline)
        assessChanges(facts, limits, reasons);
    else
        reasons << noBaseline();
    reasons << GateValues::assessMisread(facts.changes, limits);
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
