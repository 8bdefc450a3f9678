#pragma once

#include <QString>

/// The fields of the export in HR's words.
namespace FieldWords {

/// "vacation balance", for an ExportLine::Field.
QString of(int field);
/// "Vacation balance".
QString heading(int field);

} // namespace FieldWords
