#include "mirovahrctl/report/moment.h"

#include <QDateTime>

namespace Moment {

namespace {

/// Qt writes an offset only for a time that is not just "local".
QDateTime withOffset(const QDateTime &time)
{
    const QDateTime local = time.toLocalTime();
    return local.toOffsetFromUtc(local.offsetFromUtc());
}

} // namespace

QString text(const QDateTime &time)
{
    return withOffset(time).toString(Qt::ISODate);
}

QString exactText(const QDateTime &time)
{
    return withOffset(time).toString(Qt::ISODateWithMs);
}

} // namespace Moment
