#pragma once

#include <QString>

/// What a text in a field is to whoever checks an export. A field is an ExportLine::Field. Pure
/// functions.
namespace FieldForms {

/// Whether the text identifies nobody and says what the plugin does: a date, a code, a calendar, a
/// relationship, a balance, the name of a field.
bool isKept(int field, const QString &text);

/// The same for a text that may be in any field.
bool isKept(const QString &text);

/// The reading of a text: two of the same field that have the same form and the same reading raise
/// the same findings.
int readingOf(int field, const QString &text);

} // namespace FieldForms
