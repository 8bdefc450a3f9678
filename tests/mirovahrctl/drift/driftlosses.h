#pragma once

#include <QString>
#include <QStringList>

/// What drift makes of the lasting differences between a disturbed FaultCycle and an undisturbed
/// one. The differences are lines of StateChanges::between(undisturbed, disturbed).
namespace DriftLosses {

/// The rules that name losses.
QStringList rules();

/// The rules that name these differences, each once, in alphabetical order.
QStringList rulesOf(const QStringList &differences);

/// Those of the differences that the database shows, so that drift mends them.
QStringList visible(const QStringList &differences);

} // namespace DriftLosses
