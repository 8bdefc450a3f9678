#pragma once

#include <QDate>
#include <QString>

/// What the plugin makes of the text of one field. A field is an ExportLine::Field. Pure functions.
namespace FieldReading {

enum class Kind {
    None, ///< no value: an empty text, or a 0 that means "none"
    Value,
    Misread, ///< not what HR means: unreadable, beyond what can be stored, or damaged by an
             ///< encoding
};

Kind kindOf(int field, const QString &text);
/// As kindOf() == Kind::None, but cheaper.
bool isNone(int field, const QString &text);

/// Whether the plugin reads the same value from both texts.
bool isSame(int field, const QString &a, const QString &b);

/// The balance in hundredths of a day, as the plugin stores it; 0 for a text that it cannot read.
qint32 hundredthsOf(const QString &balance);

/// Whether the day survives being stored: the plugin reads Unix times as unsigned 32-bit numbers,
/// and 0 as no time.
bool isKept(const QDate &day);

/// What a field that cannot be read means for the person: the end of a sentence.
QString consequence(int field);

} // namespace FieldReading
