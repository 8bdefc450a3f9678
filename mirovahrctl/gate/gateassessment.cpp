#include "mirovahrctl/gate/gateassessment.h"

#include "cli/text.h"
#include "mirovahrctl/gate/gatevalues.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/gaterules.h"

namespace GateAssessment {

using namespace GateWording;

namespace {

GateReason empty()
{
    return {makeFinding(GateRules::kEmpty, Text::tr("The file contains no people.")), false};
}

GateReason truncated(const QString &message)
{
    return {makeFinding(GateRules::kTruncated, message), true};
}

GateReason noBaseline()
{
    return {
        makeFinding(GateRules::kNoBaseline, Text::tr("There is no admitted file to compare with.")),
        true};
}

GateReason linesLost(const GateFacts &facts, const GateLimit &limit)
{
    const qint64 lost = facts.lostLines();
    return {makeFinding(GateRules::kLinesLost,
                        Text::tr("%Ln line(s) (%1 %) with people are missing compared with the "
                                 "last admitted file; %2",
                                 nullptr, Language::count(lost))
                            .arg(percent(lost, facts.oldLines), allowance(limit))),
            true};
}

/// The comparison sees the last line about a person only, and the plugin carries out all of them.
GateReason linesRepeated(const GateFacts &facts, const GateLimit &limit)
{
    const qint64 repeated = facts.repeatedLines();
    return {makeFinding(GateRules::kLinesRepeated,
                        Text::tr("%Ln line(s) (%1 %) repeat people of earlier lines, more than in "
                                 "the last admitted file; %2",
                                 nullptr, Language::count(repeated))
                            .arg(percent(repeated, facts.oldLines), allowance(limit))),
            true};
}

/// People of one kind, and the limit that is held against them.
struct Kind {
    const Rule &rule;
    const GateLimit &limit;
    const QVector<int> &list;
    int whole;
    const char *text; ///< with places for the percentage and the allowance
};

void assessKind(const Kind &kind, const GateLimits &limits, QVector<GateReason> &reasons)
{
    const int count = kind.list.size();
    if (!limits.isExceeded(kind.limit, count, kind.whole))
        return;
    reasons << GateReason{makeFinding(kind.rule,
                                      Text::tr(kind.text, nullptr, count)
                                          .arg(percent(count, kind.whole), allowance(kind.limit))),
                          true};
}

void assessEnd(const GateFacts &facts, bool mayEndOpen, QVector<GateReason> &reasons)
{
    if (facts.isLastLineBroken)
        reasons << truncated(Text::tr("The last line is damaged."));
    else if (facts.endsOpen && !mayEndOpen)
        reasons << truncated(Text::tr("The last line does not end with a line feed."));
}

void assessPeople(const ExportDifferences &changes, const GateLimits &limits,
                  QVector<GateReason> &reasons)
{
    const int known = changes.inBoth + changes.gone.size();
    assessKind({GateRules::kPeopleLeaving, limits.leaving, changes.leaving, changes.working,
                QT_TRANSLATE_N_NOOP("Text", "%Ln person(s) (%1 %) leave; %2")},
               limits, reasons);
    assessKind({GateRules::kPeopleMoving, limits.moving, changes.moving, changes.working,
                QT_TRANSLATE_N_NOOP("Text", "%Ln person(s) (%1 %) get another cost centre; %2")},
               limits, reasons);
    assessKind({GateRules::kPeopleNew, limits.added, changes.added, known,
                QT_TRANSLATE_N_NOOP("Text", "%Ln person(s) (%1 %) are new; %2")},
               limits, reasons);
    assessKind({GateRules::kPeopleReturning, limits.returning, changes.returning, changes.working,
                QT_TRANSLATE_N_NOOP("Text", "%Ln person(s) (%1 %) return who had left; %2")},
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
    return {makeFinding(GateRules::kMissing, Text::tr("There is no file '%1'.").arg(path)), false};
}

GateReason tooLong()
{
    return {makeFinding(GateRules::kFileTooLong,
                        Text::tr("The file is larger than 1 GiB; the plugin reads no further.")),
            false};
}

GateReason changedMeanwhile()
{
    return {makeFinding(GateRules::kChangedMeanwhile,
                        Text::tr("The file changed while it was being read.")),
            false};
}

GateReason justWritten(qint64 settleSeconds)
{
    return {makeFinding(GateRules::kJustWritten,
                        Text::tr("The file was changed within the last %Ln second(s).", nullptr,
                                 Language::count(settleSeconds))),
            false};
}

GateReason busy()
{
    return {makeFinding(GateRules::kBusy, Text::tr("Another gate is using this folder.")), false};
}

} // namespace GateAssessment
