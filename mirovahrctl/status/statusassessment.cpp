#include "mirovahrctl/status/statusassessment.h"

#include "mirovahrctl/gatestate/gatestatus.h"
#include "mirovahrctl/report/wording.h"
#include "mirovahrctl/status/statusdata.h"

namespace {

struct Unit {
    qint64 seconds;
    const char *one;
    const char *many;
};

constexpr Unit kUnits[] = {
    {86400, "day", "days"}, {3600, "hour", "hours"}, {60, "minute", "minutes"}};

void findAge(StatusAssessment &judgement, const StatusData &data, const GateStatus *gate,
             qint64 now)
{
    const auto admitted = gate != nullptr ? gate->admittedTime() : std::nullopt;
    if (admitted) {
        judgement.age = qMax(qint64(0), now - *admitted);
        judgement.ageOf = QStringLiteral("file admitted");
        return;
    }
    judgement.ageOf = QStringLiteral("trace of the plugin");
    if (const auto trace = data.lastTrace())
        judgement.age = qMax(qint64(0), data.now - *trace);
}

bool isBeyond(const std::optional<qint64> &age, const std::optional<qint64> &limit)
{
    return limit && (!age || *age >= *limit);
}

void judgeAge(StatusAssessment &judgement, const AgeLimits &limits)
{
    const bool critical = isBeyond(judgement.age, limits.critical);
    if (!critical && !isBeyond(judgement.age, limits.warning))
        return;
    const QString message = judgement.age
        ? QStringLiteral("The last %1 is %2 old.")
              .arg(judgement.ageOf, StatusAssessment::span(*judgement.age))
        : QStringLiteral("There is no %1 yet.").arg(judgement.ageOf);
    judgement.findings +=
        makeFinding(critical ? Severity::Error : Severity::Warning, "too-old", message,
                    QStringLiteral("Look at the log of the attendance server and at "
                                   "what HR delivers."));
}

void judgeGate(StatusAssessment &judgement, const GateStatus &gate)
{
    if (!gate.isRefused())
        return;
    QString message = QStringLiteral("The gate has refused the last file");
    if (!gate.reasons().isEmpty())
        message += QStringLiteral(": ") + gate.reasons().join(QStringLiteral("; "));
    judgement.findings +=
        makeFinding(Severity::Warning, "gate-refused", Wording::sentence(message),
                    QStringLiteral("Until a file is admitted nothing new reaches the plugin."));
}

} // namespace

StatusAssessment StatusAssessment::of(const StatusData &data, const GateStatus *gate,
                                      const AgeLimits &limits, qint64 now)
{
    StatusAssessment judgement;
    findAge(judgement, data, gate, now);
    judgeAge(judgement, limits);
    if (gate != nullptr)
        judgeGate(judgement, *gate);
    return judgement;
}

QString StatusAssessment::span(qint64 seconds)
{
    for (const Unit &unit : kUnits) {
        if (seconds >= 2 * unit.seconds) {
            return Wording::counted(seconds / unit.seconds, QString::fromLatin1(unit.one),
                                    QString::fromLatin1(unit.many));
        }
    }
    return Wording::counted(seconds, QStringLiteral("second"), QStringLiteral("seconds"));
}
