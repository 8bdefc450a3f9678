#pragma once

#include <QString>

/// What the plugin makes of the text of one field. A field is an ExportLine::Field. Pure functions.
namespace FieldReading {

enum class Kind {
    None, ///< no value: an empty text, or a 0 that means "none"
    Value,
    Misread, ///< no number or date of the export's form, or a text that an encoding has damaged
};

Kind kindOf(int field, const QString &text);
/// As kindOf() == Kind::None, but cheaper.
bool isNone(int field, const QString &text);

/// Whether the plugin reads the same value from both texts.
bool isSame(int field, const QString &a, const QString &b);

/// The balance in hundredths of a day; the nearest that can be stored, and the largest for one that
/// is no quantity (nan). 0 for a text that the plugin cannot read.
qint32 hundredthsOf(const QString &balance);

/// What a field that cannot be read means for the person: the end of a sentence.
QString consequence(int field);

} // namespace FieldReading
