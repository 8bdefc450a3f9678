#pragma once

#include <QString>

/// The time of build, as the version information shows it.
namespace BuildStamp {

/// The stamp "yyMMddhhmm" of a compiler's date and time texts, such as "Dec  7 2022" and
/// "23:08:31"; empty when the date is unreadable. An unreadable time counts as midnight.
QString fromCompilerTexts(const QString &date, const QString &time);

/// The stamp of this build. With SOURCE_DATE_EPOCH set at build time it is that moment, in UTC.
QString ofThisBuild();

} // namespace BuildStamp
