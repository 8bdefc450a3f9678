#include "mirovahrctl/export/fieldreading.h"

#include "mirovahrctl/export/encodedtwice.h"
#include "worker/exportline.h"
#include "worker/recorddates.h"
#include "worker/vacationbalance.h"

#include <QDateTime>

#include <limits>

namespace FieldReading {

using namespace ExportLine;

namespace {

enum class Form { Text, Date, Number, Code, Balance };

Form formOf(int field)
{
    switch (field) {
    case DatumNastupu:
    case DatumVystupu:
    case KalendarPlatnostOd:
        return Form::Date;
    case OsobniCislo:
    case PoradoveCisloPP:
    case Stredisko:
    case Kalendar:
    case NadrizenyOsobniCislo:
        return Form::Number;
    case TypPracovnihoPomeru:
    case StavPracovnihoPomeru:
    case EvidencniStav:
        return Form::Code;
    case DovolenaZustatek:
        return Form::Balance;
    default:
        return Form::Text;
    }
}

/// 0 is a state, but no employment type.
bool zeroIsNone(int field)
{
    return field == TypPracovnihoPomeru || formOf(field) == Form::Number;
}

QDate dateOf(const QString &text)
{
    return parseDate(text, QString(kDateFormat));
}

Kind kindOfText(const QString &text)
{
    return text.contains(QChar::ReplacementCharacter) || isEncodedTwice(text) ? Kind::Misread
                                                                              : Kind::Value;
}

Kind kindOfDate(int field, const QString &text)
{
    const QDate date = dateOf(text);
    return date.isValid() && (field == KalendarPlatnostOd || isKept(date)) ? Kind::Value
                                                                           : Kind::Misread;
}

Kind kindOfNumber(int field, const QString &text)
{
    bool isNumber = false;
    const quint32 number = toNumber(text, &isNumber);
    if (!isNumber)
        return Kind::Misread;
    const bool wraps = formOf(field) == Form::Code && number > std::numeric_limits<quint16>::max();
    return wraps ? Kind::Misread : Kind::Value;
}

/// False when the plugin can read or store no such balance.
bool readBalance(const QString &text, qint32 &hundredths)
{
    bool isNumber = false;
    const double days = toBalance(text, &isNumber);
    return VacationBalance::correction(days, 0, hundredths) && isNumber;
}

} // namespace

Kind kindOf(int field, const QString &text)
{
    if (isNone(field, text))
        return Kind::None;
    switch (formOf(field)) {
    case Form::Text:
        return kindOfText(text);
    case Form::Date:
        return kindOfDate(field, text);
    case Form::Number:
    case Form::Code:
        return kindOfNumber(field, text);
    case Form::Balance:
        break;
    }
    qint32 hundredths = 0;
    return readBalance(text, hundredths) ? Kind::Value : Kind::Misread;
}

bool isNone(int field, const QString &text)
{
    bool isNumber = false;
    return text.isEmpty() || (zeroIsNone(field) && toNumber(text, &isNumber) == 0 && isNumber);
}

bool isSame(int field, const QString &a, const QString &b)
{
    switch (formOf(field)) {
    case Form::Text:
        return a == b;
    case Form::Date:
        return dateOf(a) == dateOf(b);
    case Form::Number:
    case Form::Code:
        return toNumber(a) == toNumber(b);
    case Form::Balance:
        return hundredthsOf(a) == hundredthsOf(b);
    }
    Q_UNREACHABLE();
}

qint32 hundredthsOf(const QString &balance)
{
    qint32 hundredths = 0;
    return readBalance(balance, hundredths) ? hundredths : 0;
}

bool isKept(const QDate &day)
{
    if (day.year() > 1970 && day.year() < 2106)
        return true;
    return RecordDates::midnight(day) > 0
        && RecordDates::midnight(day.addDays(1)) <= qint64(std::numeric_limits<quint32>::max());
}

QString consequence(int field)
{
    switch (field) {
    case DatumNastupu:
        return QStringLiteral("employment counts from 1 January 2000.");
    case DatumVystupu:
        return QStringLiteral("the person counts as not leaving.");
    case Stredisko:
        return QStringLiteral("the person is assigned to no branch.");
    case Kalendar:
        return QStringLiteral("the person is assigned to no calendar group.");
    case KalendarPlatnostOd:
        return QStringLiteral(
            "the calendar has no start date, and all attendance of the person is recalculated.");
    case TypPracovnihoPomeru:
        return QStringLiteral("the person has no employment type and no payroll export.");
    case StavPracovnihoPomeru:
        return QStringLiteral("the employment counts as running.");
    case EvidencniStav:
        return QStringLiteral("the register state counts as 0.");
    case DovolenaZustatek:
        return QStringLiteral("the vacation balance is set to 0 days.");
    case NadrizenyOsobniCislo:
        return QStringLiteral("the person gets no new supervisor.");
    default:
        return QStringLiteral("the text arrives with wrong characters.");
    }
}

} // namespace FieldReading
