#include "mirovahrctl/anonymise/fieldforms.h"

#include "mirovahrctl/anonymise/othernumbers.h"
#include "mirovahrctl/export/encodedtwice.h"
#include "worker/exportline.h"
#include "worker/vacationbalance.h"

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace FieldForms {

using namespace ExportLine;

namespace {

/// A code or a calendar below belongs to a table; a larger one may be a person's number that has
/// got into the wrong field. The same of days.
constexpr quint32 kFirstLongCode = 1000;
constexpr double kFirstLongBalance = 1000;

bool isFieldName(const QString &text)
{
    static const QStringList names = fieldNames();
    return names.contains(text.trimmed(), Qt::CaseInsensitive);
}

/// Day, month and year, the year first or last, with or without a time: also a date that the plugin
/// cannot read. Not 0905-12-3456, which is a phone number.
bool isDate(const QString &text)
{
    static const QRegularExpression date(
        QStringLiteral("^\\s*(?:[0-9]{4}([-./])[0-9]{1,2}\\1[0-9]{1,2}|"
                       "[0-9]{1,2}([-./])\\s?[0-9]{1,2}\\2\\s?(?:[0-9]{4}|[0-9]{2}))"
                       "([ T][0-9]{1,2}:[0-9]{2}(:[0-9]{2}([.,][0-9]{1,9})?)?)?\\s*$"));
    return date.match(text).hasMatch();
}

bool isNumberBelow(quint32 limit, const QString &text)
{
    bool isNumber = false;
    return toNumber(text, &isNumber) < limit && isNumber;
}

bool isUsualBalance(const QString &text)
{
    bool isNumber = false;
    const double days = toBalance(text, &isNumber);
    return isNumber && (!std::isfinite(days) || std::abs(days) < kFirstLongBalance);
}

int readingOfNumber(const QString &text)
{
    bool isNumber = false;
    toNumber(text, &isNumber);
    return isNumber ? 1 : 0;
}

int readingOfCode(const QString &text)
{
    return readingOfNumber(text) + (toNumber(text) > std::numeric_limits<quint16>::max() ? 2 : 0);
}

int readingOfBalance(const QString &text)
{
    bool isNumber = false;
    qint32 hundredths = 0;
    const bool canBeStored = VacationBalance::correction(toBalance(text, &isNumber), 0, hundredths);
    return (isNumber ? 1 : 0) + (canBeStored ? 2 : 0);
}

int readingOfDate(const QString &text)
{
    return parseDate(text, QString(kDateFormat)).isValid() ? 1 : 0;
}

} // namespace

bool isKept(int field, const QString &text)
{
    if (isFieldName(text))
        return true;
    switch (field) {
    case DatumNastupu:
    case DatumVystupu:
    case KalendarPlatnostOd:
        return readingOfDate(text) != 0 || isDate(text);
    case PoradoveCisloPP:
        return isNumberBelow(OtherNumbers::kFirstLong, text);
    case Kalendar:
    case TypPracovnihoPomeru:
    case StavPracovnihoPomeru:
    case EvidencniStav:
        return isNumberBelow(kFirstLongCode, text);
    case DovolenaZustatek:
        return isUsualBalance(text);
    default:
        return false;
    }
}

bool isKept(const QString &text)
{
    return isFieldName(text) || isDate(text) || isUsualBalance(text);
}

int readingOf(int field, const QString &text)
{
    switch (field) {
    case OsobniCislo:
    case PoradoveCisloPP:
    case Stredisko:
    case Kalendar:
    case NadrizenyOsobniCislo:
        return readingOfNumber(text);
    case TypPracovnihoPomeru:
    case StavPracovnihoPomeru:
    case EvidencniStav:
        return readingOfCode(text);
    case DovolenaZustatek:
        return readingOfBalance(text);
    case DatumNastupu:
    case DatumVystupu:
    case KalendarPlatnostOd:
        return readingOfDate(text);
    default:
        return isEncodedTwice(text) ? 1 : 0;
    }
}

} // namespace FieldForms
