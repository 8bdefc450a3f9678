#pragma once

#include "mirovahrctl/report/reportwriter.h"

struct LoggedSynchronisation;

// A row for each synchronisation. What the log does not tell is an empty cell.

/// When they ran, and how they went.
Table courseTable(const QVector<LoggedSynchronisation> &synchronisations);
/// What they changed. Without those whose begin is not in the log: their counts are not known.
Table changeTable(const QVector<LoggedSynchronisation> &synchronisations);
