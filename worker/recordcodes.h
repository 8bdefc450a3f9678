#pragma once

#include "worker/mirovaronrecord.h"

#include <QDate>
#include <QString>

/// How the codes and dates of a record become database values and back. Pure functions.
namespace RecordCodes {

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

/// `people.type` of an employment type code; 0 for a code without one.
ushort employmentTypeFromTPP(ushort code);

/// The payroll export settings id (`people_pam.id`) of an employment type code; 0: the person is
/// not registered for the payroll export.
ushort pamSettingsIdFromTPP(ushort code);

/// The built-in text of a register state code, to be translated; null for an unknown code.
const char *builtInRsText(ushort es);

/// True when the person works on `today`: the employment state is below 4 and the last day is
/// open or not yet over.
bool isActive(const MirovaRonRecord &record, const QDate &today);

/// The first day of the month before that of `today`.
QDate firstDayOfPreviousMonth(const QDate &today);

/// Derives the relationship state of `record`, whose code is one of the configured states, from
/// that of the last record of the same person. A running period goes on, else one starts today.
void continueRs(MirovaRonRecord &record, const MirovaRonRecord &last, const QString &text,
                const QDate &today);

/// Derives the relationship state of `record`, whose code is not one of the configured states: a
/// running period of the last record ends today, an ended one stays.
void closeRs(MirovaRonRecord &record, const MirovaRonRecord &last, const QDate &today);

/// The fund move that brings the balance `current` (hundredths of a day) to the HR balance in days,
/// which counts in hundredths truncated toward zero. False when there is no such move: the HR
/// balance is not finite, or it or the move does not fit 32 bits; `value` is then saturated, and 0
/// for a balance that is not a number.
bool vacationMove(double days, qint64 current, qint32 &value);

} // namespace RecordCodes
