#pragma once

#include "worker/mirovaronrecord.h"

#include <QStringList>

/// The format of the HR export: how a line becomes a record. Pure functions.
namespace ExportLine {

/// How the export writes a date.
extern const QLatin1String kDateFormat;

/// The names of the 18 fields, in the order in which a line holds them.
QStringList fieldNames();

/// The date part of a text in the given format; an invalid date when the text has another form.
/// A date and time that a daylight-saving change of the local zone skips still gives its date.
QDate parseDate(const QString &text, const QString &format);

/// The record of a line's 18 parts. A bad number reads as 0, a bad date as an invalid one.
MirovaRonRecord toRecord(const QStringList &parts);

/// True when the record names a relationship (both its numbers) and a person (any name).
bool isUsable(const MirovaRonRecord &record);

} // namespace ExportLine
