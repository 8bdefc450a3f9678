#include "mirovahrctl/status/statusassessment.h"

#include "cli/text.h"
#include "mirovahrctl/gatestate/gatestatus.h"
#include "mirovahrctl/pluginside/interruptions.h"
#include "mirovahrctl/report/rules/statusrules.h"
#include "mirovahrctl/report/wording.h"
#include "mirovahrctl/status/statusdata.h"

namespace {

void findAge(StatusAssessment &assessment, const StatusData &data, const GateStatus *gate,
             qint64 now)
{
    const auto admitted = gate != nullptr ? gate->admittedTime() : std::nullopt;
    if (admitted) {
        assessment.age = qMax(qint64(0), now - *admitted);
        assessment.isAgeOfAdmission = true;
        return;
    }
    if (const auto trace = data.lastTrace())
        assessment.age = qMax(qint64(0), data.now - *trace);
}

bool isBeyond(const std::optional<qint64> &age, const std::optional<qint64> &limit)
{
    return limit && (!age || *age >= *limit);
}

QString ageSentence(const StatusAssessment &assessment)
{
    if (!assessment.age)
        return Text::tr("There is no trace of the plugin yet.");
    const QString sentence = assessment.isAgeOfAdmission
        ? Text::tr("The last admission of a file was %1 ago.")
        : Text::tr("The last trace of the plugin was %1 ago.");
    return sentence.arg(Wording::span(*assessment.age));
}

void assessAge(StatusAssessment &assessment, const AgeLimits &limits)
{
    const bool critical = isBeyond(assessment.age, limits.critical);
    if (!critical && !isBeyond(assessment.age, limits.warning))
        return;
    Finding finding = makeFinding(StatusRules::kTooOld, ageSentence(assessment));
    if (critical)
        finding.severity = StatusRules::kTooOld.otherSeverity;
    assessment.findings += finding;
}

void assessGate(StatusAssessment &assessment, const GateStatus &gate)
{
    if (!gate.isRefused())
        return;
    const QString message = gate.reasons().isEmpty()
        ? Text::tr("The gate has refused the last file.")
        : Text::tr("The gate has refused the last file: %1")
              .arg(gate.reasons().join(QStringLiteral("; ")));
    assessment.findings += makeFinding(StatusRules::kGateRefused, Wording::sentence(message));
}

} // namespace

StatusAssessment StatusAssessment::of(const StatusData &data, const GateStatus *gate,
                                      const AgeLimits &limits, qint64 now)
{
    StatusAssessment assessment;
    findAge(assessment, data, gate, now);
    assessAge(assessment, limits);
    if (gate != nullptr)
        assessGate(assessment, *gate);
    return assessment;
}

void StatusAssessment::noteInterruptions(qint64 count)
{
    if (count > 0)
        findings += makeFinding(StatusRules::kInterrupted, Interruptions::sentence(count));
}
