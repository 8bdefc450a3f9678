#include "plugin/buildstamp.h"

#include <QDateTime>
#include <QLocale>

QString BuildStamp::fromCompilerTexts(const QString &date, const QString &time)
{
    const QTime buildTime = QTime::fromString(time.simplified(), QStringLiteral("hh:mm:ss"));
    // The compiler names the month in English, whatever the locale of the machine.
    const QDate buildDate =
        QLocale(QStringLiteral("en_US")).toDate(date.simplified(), QStringLiteral("MMM d yyyy"));
    const QDateTime stamp(buildDate, buildTime, Qt::LocalTime);
    return stamp.isValid() ? stamp.toString(QStringLiteral("yyMMddhhmm")) : QString();
}

QString BuildStamp::ofThisBuild()
{
    // The compiler itself takes both texts from SOURCE_DATE_EPOCH when that is set.
    return fromCompilerTexts(QStringLiteral(__DATE__), QStringLiteral(__TIME__));
}
