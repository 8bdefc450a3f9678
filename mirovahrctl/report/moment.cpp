#include "mirovahrctl/report/moment.h"

#include "mirovahrctl/report/language.h"

#include <QDateTime>

namespace Moment {

namespace {

/// Of Slovak and Czech, with spaces at which no line is broken.
constexpr char kDay[] = "d.\u00a0M.\u00a0yyyy";
constexpr char kTime[] = "\u00a0H:mm:ss\u00a0(t)";

/// Qt writes an offset only for a time that is not just "local".
QDateTime withOffset(const QDateTime &time)
{
    const QDateTime local = time.toLocalTime();
    return local.toOffsetFromUtc(local.offsetFromUtc());
}

} // namespace

QString text(const QDateTime &time)
{
    return Language::isEnglish()
        ? fileText(time)
        : withOffset(time).toString(QString::fromUtf8(kDay) + QString::fromUtf8(kTime));
}

QString text(const QDate &day)
{
    return day.toString(Language::isEnglish() ? QStringLiteral("yyyy-MM-dd")
                                              : QString::fromUtf8(kDay));
}

QString fileText(const QDateTime &time)
{
    return withOffset(time).toString(Qt::ISODate);
}

QString exactText(const QDateTime &time)
{
    return withOffset(time).toString(Qt::ISODateWithMs);
}

} // namespace Moment
