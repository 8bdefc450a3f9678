#pragma once

#include <QDate>
#include <QString>

/// How a record's dates become database values and back. Pure functions.
namespace RecordDates {

/// The record's member `datumNastupu` as `people.begin`: decimal Unix time (seconds, 0 to
/// 4294967295, saturated) of local midnight; an invalid date counts as 1 January 2000.
QString personBeginForSql(const QDate &date);

/// A date as `people.end`, `people.rsBegin` or `people.rsEnd`: decimal signed Unix time of local
/// midnight or, with `endOfDay`, of the day's last second; "NULL" for an invalid date.
QString personEndForSql(const QDate &date, bool endOfDay);

/// `people.begin` as a local date; 0 gives 1 January 2000.
QDate datNastFromTimestamp(uint timestamp);

/// `people.end`, `people.rsBegin` or `people.rsEnd` as a local date; 0 gives an invalid date.
QDate datVystFromTimestamp(uint timestamp);

/// Unix time (seconds, signed) of local midnight of a date; 0 for an invalid date.
qint64 midnight(const QDate &date);

/// As midnight(), saturated to unsigned 32 bits.
quint32 midnight32(const QDate &date);

/// The first day of the month before that of `today`.
QDate firstDayOfPreviousMonth(const QDate &today);

} // namespace RecordDates
