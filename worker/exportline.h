#pragma once

#include "worker/mirovaronrecord.h"

#include <QStringList>
#include <QVector>

/// The format of the HR export: how a line becomes a record. Pure functions.
namespace ExportLine {

/// Positions of the fields in a line, and how many there are.
enum Field {
    OsobniCislo,
    PoradoveCisloPP,
    Titul,
    Jmeno,
    Prijmeni,
    TitulZa,
    Telefon,
    DatumNastupu,
    DatumVystupu,
    Stredisko,
    StrediskoPopis,
    Kalendar,
    KalendarPlatnostOd,
    TypPracovnihoPomeru,
    StavPracovnihoPomeru,
    EvidencniStav,
    DovolenaZustatek,
    NadrizenyOsobniCislo,
    kFieldCount
};

/// What separates the fields.
constexpr QLatin1Char kSeparator('|');

/// How the export writes a date.
extern const QLatin1String kDateFormat;

/// The names of the 18 fields, in the order in which a line holds them.
QStringList fieldNames();

/// The text of a line that ends at a NUL byte: decoded from UTF-8, without white space at its ends.
/// An empty text is no line at all.
QString decode(const char *line);

/// The parts of a line, which lie in its text: two of three are numbers and dates, and hardly ever
/// have to become texts of their own.
using Parts = QVector<QStringRef>;

/// The parts of a line, which has to outlive them. Only one with as many parts as there are fields
/// makes a record.
Parts split(const QString &line, QChar separator);
Parts split(QString &&line, QChar separator) = delete;

/// A decimal number of 32 bits. Text that is none gives 0, and sets `ok` to false.
quint32 toNumber(QStringView text, bool *ok = nullptr);

/// Days with a decimal point. Text that is no number gives 0, and sets `ok` to false.
double toBalance(QStringView text, bool *ok = nullptr);

/// The date part of a text in the given format; an invalid date when the text has another form.
/// A date and time that a daylight-saving change of the local zone skips still gives its date.
QDate parseDate(QStringView text, const QString &format);

/// The record of a line's 18 parts. A bad number reads as 0, a bad date as an invalid one.
MirovaRonRecord toRecord(const Parts &parts);

/// True when the record names a relationship (both its numbers) and a person (any name).
bool isUsable(const MirovaRonRecord &record);

} // namespace ExportLine
