#include "mirovahrctl/gate/gatereason.h"

#include "mirovahrctl/gatestate/gatelimits.h"
#include "mirovahrctl/report/wording.h"

#include <algorithm>

bool mayAllBeOverridden(const QVector<GateReason> &reasons)
{
    return std::all_of(reasons.cbegin(), reasons.cend(),
                       [](const GateReason &reason) { return reason.mayBeOverridden; });
}

namespace GateWording {

namespace {

QString share(qint64 part, qint64 whole, const QString &one, const QString &many)
{
    const double percent = whole > 0 ? double(part) * 100 / double(whole) : 0;
    return QStringLiteral("%1 (%2 %)")
        .arg(Wording::counted(part, one, many), QString::number(percent, 'f', 1));
}

} // namespace

QString people(qint64 part, qint64 whole)
{
    return share(part, whole, QStringLiteral("person"), QStringLiteral("people"));
}

QString lines(qint64 part, qint64 whole)
{
    return share(part, whole, QStringLiteral("line"), QStringLiteral("lines"));
}

QString allowance(const GateLimit &limit)
{
    const QString percent = QString::number(limit.percent);
    if (limit.count >= GateLimit::kAny)
        return QStringLiteral("; the limit is %1 %.").arg(percent);
    return QStringLiteral("; the limits are %1 and %2 %.")
        .arg(QString::number(limit.count), percent);
}

} // namespace GateWording
