#pragma once

#include "worker/mirovaronrecord.h"

#include <QDate>

/// What the codes of a record mean. Pure functions.
namespace RecordCodes {

/// `people.type` of an employment type code; 0 for a code without one.
ushort employmentTypeFromTPP(ushort code);

/// The payroll export settings id (`people_pam.id`) of an employment type code; 0: the person is
/// not registered for the payroll export.
ushort pamSettingsIdFromTPP(ushort code);

/// True when the person works on `today`: the employment state is below 4 and the last day is
/// open or not yet over.
bool isActive(const MirovaRonRecord &record, const QDate &today);

} // namespace RecordCodes
