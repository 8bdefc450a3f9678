#pragma once

#include "tests/support/exportfile.h"

#include <QMetaType>

/// Export lines of people of the sample data. Each agrees with the database in everything that a
/// synchronisation compares: person, branch, calendar group, vacation balance; no supervisor.
namespace SampleExport {

ExportRow maria(); ///< uid 1, pid 10011, branch 1, group 11
ExportRow peter(); ///< uid 2, pid 10021, branch 2, group 21
ExportRow zuzana(); ///< uid 3, pid 10031, branch 3, group 11
ExportRow jana(); ///< uid 4, pid 12341, branch 1, group 13
ExportRow jan(); ///< uid 5, pid 12351, branch 1, group 12

/// uid 8, pid 20012: no cost centre, no calendar, and no date of a calendar, so that nothing asks
/// for a recalculation of the attendance.
ExportRow tomas();

/// A new employee with the given personal number, relationship 1, in branch 1 with calendar 1
/// (group 11) from tomorrow on.
ExportRow newcomer(int personalNumber);

} // namespace SampleExport

Q_DECLARE_METATYPE(ExportRow)
