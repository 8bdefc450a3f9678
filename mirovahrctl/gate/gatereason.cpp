#include "mirovahrctl/gate/gatereason.h"

#include "cli/text.h"
#include "mirovahrctl/gatestate/gatelimits.h"
#include "mirovahrctl/report/language.h"

#include <QLocale>

#include <algorithm>

bool mayAllBeOverridden(const QVector<GateReason> &reasons)
{
    return std::all_of(reasons.cbegin(), reasons.cend(),
                       [](const GateReason &reason) { return reason.mayBeOverridden; });
}

namespace GateWording {

QString percent(qint64 part, qint64 whole)
{
    return Language::number(whole > 0 ? double(part) * 100 / double(whole) : 0, 1);
}

QString allowance(const GateLimit &limit)
{
    const QString percent = Language::number(limit.percent, QLocale::FloatingPointShortest);
    if (limit.count >= GateLimit::kAny)
        return Text::tr("the limit is %1 %.").arg(percent);
    return Text::tr("the limits are %1 and %2 %.").arg(Language::number(limit.count), percent);
}

} // namespace GateWording
