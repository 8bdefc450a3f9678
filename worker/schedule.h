#pragma once

#include <QLatin1String>
#include <QtGlobal>

/// When the plugin ticks and synchronises: what the configured periods come to, in pure functions.
namespace Schedule {

/// The key in `vars` that makes the next tick synchronise, everybody and at once.
const QLatin1String kForceSyncKey{"YAV.MHRWorker.forceSync"};

/// The tick period in milliseconds for a configured one: not below a second.
quint32 tickPeriod(quint32 configured);

/// What a timer is given for a tick period: it takes 31 bits only.
int timerInterval(quint32 tickPeriod);

/// Every how many ticks a regular synchronisation runs, for a configured number: 0 counts as 1.
quint32 ticksPerSynchronisation(quint32 configured);

/// Whether a synchronisation runs the export command. \a condition: 0 never, 1 when it is forced,
/// more always.
bool isCommandDue(quint8 condition, bool forced);

} // namespace Schedule
