#include "mirovahrctl/status/statusassessment.h"

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
        assessment.ageOf = QStringLiteral("admission of a file");
        return;
    }
    assessment.ageOf = QStringLiteral("trace of the plugin");
    if (const auto trace = data.lastTrace())
        assessment.age = qMax(qint64(0), data.now - *trace);
}

bool isBeyond(const std::optional<qint64> &age, const std::optional<qint64> &limit)
{
    return limit && (!age || *age >= *limit);
}

void assessAge(StatusAssessment &assessment, const AgeLimits &limits)
{
    const bool critical = isBeyond(assessment.age, limits.critical);
    if (!critical && !isBeyond(assessment.age, limits.warning))
        return;
    const QString message = assessment.age
        ? QStringLiteral("The last %1 was %2 ago.")
              .arg(assessment.ageOf, Wording::span(*assessment.age))
        : QStringLiteral("There is no %1 yet.").arg(assessment.ageOf);
    Finding finding = makeFinding(StatusRules::kTooOld, message);
    if (critical)
        finding.severity = StatusRules::kTooOld.otherSeverity;
    assessment.findings += finding;
}

void assessGate(StatusAssessment &assessment, const GateStatus &gate)
{
    if (!gate.isRefused())
        return;
    QString message = QStringLiteral("The gate has refused the last file");
    if (!gate.reasons().isEmpty())
        message += QStringLiteral(": ") + gate.reasons().join(QStringLiteral("; "));
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
