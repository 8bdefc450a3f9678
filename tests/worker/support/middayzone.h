#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QTime>

/// A time zone (a value of `TZ`) in which it is now between one and twenty-three o'clock and not
/// the first of a month, with daylight saving time. A test that lives in it sees neither midnight
/// nor the turn of a month pass, and a day of the current month lies behind it.
QByteArray middayZone();

/// Puts the program into that zone and the C locale. Before anything of Qt is used.
void settleProgram();
/// Puts the program into the zone and the locale of Slovakia. Before anything of Qt is used.
void settleInSlovakia();

/// Unix seconds of a date's midnight in the local zone, as the C library counts them.
qint64 localMidnight(const QDate &date);

/// Unix seconds of a time of day in the local zone, as the C library counts them.
qint64 localSeconds(const QDate &date, const QTime &time);

/// A date as the C locale writes it in short: "1 Apr 2019".
QString shortDate(const QDate &date);
/// "2019-04-01"
QString isoDate(const QDate &date);
/// "201904"
QString monthNumber(const QDate &date);
