#pragma once

#include "worker/mirovaronrecord.h"

#include <QDate>
#include <QString>

/// The relationship state (RS) of a person, which the worker derives from the register state code.
/// Pure functions.
namespace RelationshipState {

/// The built-in text of a register state code, to be translated; null for an unknown code.
const char *builtInText(ushort es);

/// Derives the relationship state of `record`, whose code is one of the configured states, from
/// that of the last record of the same person. A running period goes on, else one starts today.
void carryOn(MirovaRonRecord &record, const MirovaRonRecord &last, const QString &text,
             const QDate &today);

/// Derives the relationship state of `record`, whose code is not one of the configured states: a
/// running period of the last record ends today, an ended one stays.
void close(MirovaRonRecord &record, const MirovaRonRecord &last, const QDate &today);

} // namespace RelationshipState
