#include "mirovahrctl/export/fieldreading.h"

#include "cli/text.h"
#include "mirovahrctl/export/encodedtwice.h"
#include "worker/exportline.h"
#include "worker/vacationbalance.h"

#include <cmath>
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

/// Whether the plugin reads a number of days, be it one that can be stored or not.
bool isBalance(const QString &text)
{
    bool isNumber = false;
    toBalance(text, &isNumber);
    return isNumber;
}

bool isNumber(const QString &text)
{
    bool isNumber = false;
    toNumber(text, &isNumber);
    return isNumber;
}

Kind misreadUnless(bool isRead)
{
    return isRead ? Kind::Value : Kind::Misread;
}

} // namespace

Kind kindOf(int field, const QString &text)
{
    if (isNone(field, text))
        return Kind::None;
    switch (formOf(field)) {
    case Form::Text:
        return misreadUnless(!text.contains(QChar::ReplacementCharacter) && !isEncodedTwice(text));
    case Form::Date:
        return misreadUnless(dateOf(text).isValid());
    case Form::Number:
    case Form::Code:
        return misreadUnless(isNumber(text));
    case Form::Balance:
        return misreadUnless(isBalance(text));
    }
    Q_UNREACHABLE();
}

bool isNone(int field, const QString &text)
{
    return text.isEmpty() || (zeroIsNone(field) && toNumber(text) == 0 && isNumber(text));
}

bool isSame(int field, const QString &a, const QString &b)
{
    switch (formOf(field)) {
    case Form::Text:
        return a == b;
    case Form::Date:
        return dateOf(a) == dateOf(b);
    case Form::Number:
        return toNumber(a) == toNumber(b);
    case Form::Code:
        // The plugin keeps the low 16 bits.
        return quint16(toNumber(a)) == quint16(toNumber(b));
    case Form::Balance:
        return hundredthsOf(a) == hundredthsOf(b);
    }
    Q_UNREACHABLE();
}

qint32 hundredthsOf(const QString &balance)
{
    const double days = toBalance(balance);
    if (std::isnan(days))
        return std::numeric_limits<qint32>::max();
    qint32 hundredths = 0;
    VacationBalance::correction(days, 0, hundredths);
    return hundredths;
}

QString consequence(int field)
{
    switch (field) {
    case DatumNastupu:
        return Text::tr("employment counts from 1 January 2000.");
    case DatumVystupu:
        return Text::tr("the person counts as not leaving.");
    case Stredisko:
        return Text::tr("the person is assigned to no branch.");
    case Kalendar:
        return Text::tr("the person is assigned to no calendar group.");
    case KalendarPlatnostOd:
        return Text::tr(
            "the calendar has no start date, and all attendance of the person is recalculated.");
    case TypPracovnihoPomeru:
        return Text::tr("the person has no employment type and no payroll export.");
    case StavPracovnihoPomeru:
        return Text::tr("the employment counts as running.");
    case EvidencniStav:
        return Text::tr("the register state counts as 0.");
    case DovolenaZustatek:
        return Text::tr("the vacation balance is set to 0 days.");
    case NadrizenyOsobniCislo:
        return Text::tr("the person gets no new supervisor.");
    default:
        return Text::tr("the text arrives with wrong characters.");
    }
}

} // namespace FieldReading
