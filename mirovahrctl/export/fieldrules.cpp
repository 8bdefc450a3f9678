#include "mirovahrctl/export/fieldrules.h"

#include "cli/text.h"
#include "mirovahrctl/export/fieldreading.h"
#include "mirovahrctl/export/sqlhazards.h"
#include "mirovahrctl/export/sqltexts.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/rules/checkfilerules.h"
#include "mirovahrctl/report/wording.h"
#include "worker/exportline.h"
#include "worker/recorddates.h"
#include "worker/vacationbalance.h"

#include <limits>

namespace {

using namespace ExportLine;
using FieldReading::consequence;

/// What to do about a date that cannot be read; null when the rule says enough.
QString dateAdvice(const QString &text)
{
    const QDate day = QDate::fromString(text.trimmed().left(10), Qt::ISODate);
    if (day.isValid()) {
        return Text::tr("Write the date with a time, as in %1 00:00:00.000.")
            .arg(day.toString(Qt::ISODate));
    }
    return {};
}

QString balanceAdvice(const QString &text)
{
    return text.contains(QLatin1Char(','))
        ? Text::tr("Write the balance with a decimal point, as in 12.5.")
        : Text::tr("Write the balance as a number of days, as in 12.5.");
}

QString twoSentences(const QString &first, const QString &second)
{
    return QStringLiteral("%1 %2").arg(first, second);
}

/// Whether the day survives being stored: the plugin reads Unix times as unsigned 32-bit numbers,
/// and 0 as no time.
bool isKept(const QDate &day)
{
    if (day.year() > 1970 && day.year() < 2106)
        return true;
    return RecordDates::midnight(day) > 0
        && RecordDates::midnight(day.addDays(1)) <= qint64(std::numeric_limits<quint32>::max());
}

} // namespace

FieldRules::FieldRules(const ExportLine::Parts &parts, const MirovaRonRecord &record,
                       const ColumnWidths &widths, Backslash backslash, CheckedLine &line)
    : m_parts(parts)
    , m_record(record)
    , m_widths(widths)
    , m_backslash(backslash)
    , m_line(line)
{
}

void FieldRules::check()
{
    checkIdentity();
    checkPid();
    checkTexts();
    checkDates();
    checkNumber(Stredisko);
    checkNumber(Kalendar);
    checkCode(TypPracovnihoPomeru, m_record.typPracovnihoPomeru);
    checkCode(StavPracovnihoPomeru, m_record.stavPracovnihoPomeru);
    checkCode(EvidencniStav, m_record.evidencniStav);
    checkBalance();
    // Most people at the top have no supervisor.
    if (!m_parts.at(NadrizenyOsobniCislo).isEmpty())
        checkNumber(NadrizenyOsobniCislo);
}

void FieldRules::checkIdentity()
{
    if (m_record.osobniCislo == 0) {
        add(OsobniCislo, CheckFileRules::kNoPersonalNumber,
            twoSentences(notANumber(OsobniCislo),
                         Text::tr("Without a personal number the plugin drops the line.")));
    }
    if (m_record.poradoveCisloPP == 0) {
        add(PoradoveCisloPP, CheckFileRules::kNoRelationshipNumber,
            twoSentences(notANumber(PoradoveCisloPP),
                         Text::tr("Without the number of the employment relationship the plugin "
                                  "drops the line.")));
    }
    if (m_record.jmeno.isEmpty() && m_record.prijmeni.isEmpty()) {
        add(Prijmeni, CheckFileRules::kNoName,
            Text::tr("The line has neither a first name nor a surname. The plugin drops it."));
    }
}

void FieldRules::checkPid()
{
    if (!isUsable(m_record) || m_record.getPid() != 0)
        return;
    add(OsobniCislo, CheckFileRules::kPidZero,
        Text::tr("Personal number and relationship number form one number, %1%2, which exceeds "
                 "4294967295: the person gets the number 0, like everybody with such a number.")
            .arg(QString::number(m_record.osobniCislo), QString::number(m_record.poradoveCisloPP)));
}

void FieldRules::checkTexts()
{
    checkText(Titul, "title");
    checkText(Jmeno, "name");
    checkText(Prijmeni, "surname");
    checkText(TitulZa, "title2");
    checkText(Telefon, "phone");
}

void FieldRules::checkText(int field, const char *column)
{
    const QString text = this->text(field);
    const auto meant = SqlTexts::meant(text, m_backslash);
    if (!meant)
        checkHazards(field, text);
    if (SqlHazards::hasWideCharacter(text)) {
        add(field, CheckFileRules::kWideCharacter,
            Text::tr("The text %1 contains a character above U+FFFF, such as an emoji. The "
                     "connection to the database cannot carry it: the person is not written, "
                     "or the text is truncated there.")
                .arg(Wording::quoted(meant.value_or(text))));
    }
    checkWidth(field, meant.value_or(text), column);
}

/// The text is not written as a statement needs it.
void FieldRules::checkHazards(int field, const QString &text)
{
    if (text.contains(QLatin1Char('\''))) {
        add(field, CheckFileRules::kQuoteInText,
            Text::tr(
                "The text %1 contains an apostrophe. It enters the SQL statement unescaped, and "
                "the statement fails or does something else: the person is not written.")
                .arg(Wording::quoted(text)));
    }
    if (m_backslash == Backslash::Escapes && text.contains(QLatin1Char('\\'))) {
        add(field, CheckFileRules::kBackslashInText,
            Text::tr("The text %1 contains a backslash. It enters the SQL statement "
                     "unescaped: the text arrives changed, or the statement fails.")
                .arg(Wording::quoted(text)));
    }
    if (SqlHazards::hasPlaceholder(text)) {
        add(field, CheckFileRules::kPlaceholderInText,
            Text::tr(
                "The text %1 contains a percent sign followed by a digit. The plugin replaces the "
                "two with another value: wrong data is written, or the statement fails.")
                .arg(Wording::quoted(text)));
    }
}

void FieldRules::checkWidth(int field, const QString &stored, const char *column)
{
    const auto width = m_widths.constFind(QString::fromLatin1(column));
    if (width == m_widths.constEnd())
        return;
    const int length = stored.toUcs4().size();
    if (length <= *width)
        return;
    add(field, CheckFileRules::kTextTooLong,
        Text::tr("The text has %1 characters, but the column holds %2. Depending on its SQL "
                 "mode, the database truncates the text or rejects the person.")
            .arg(Language::number(length), Language::number(*width)),
        Text::tr("Shorten the text to %Ln character(s).", nullptr, *width));
}

void FieldRules::checkDates()
{
    checkDate(DatumNastupu, m_record.datumNastupu);
    // A person who stays has no leaving date; without a calendar there is no start date of it.
    if (!m_parts.at(DatumVystupu).isEmpty())
        checkDate(DatumVystupu, m_record.datumVystupu);
    if (!m_parts.at(KalendarPlatnostOd).isEmpty() || m_record.kalendar != 0)
        checkDate(KalendarPlatnostOd, m_record.kalendarPlatnostOd);
    if (m_record.datumVystupu.isValid() && m_record.datumVystupu < m_record.datumNastupu) {
        add(DatumVystupu, CheckFileRules::kLeavesBeforeStart,
            Text::tr("The person leaves on %1, before employment begins on %2.")
                .arg(Moment::text(m_record.datumVystupu), Moment::text(m_record.datumNastupu)));
    }
}

void FieldRules::checkDate(int field, const QDate &date)
{
    const QString text = this->text(field);
    if (text.isEmpty()) {
        add(field, CheckFileRules::kEmptyDate,
            Text::tr("The date is missing: %1").arg(consequence(field)));
    } else if (!date.isValid()) {
        add(field, CheckFileRules::kBadDate,
            Text::tr("The plugin cannot read %1 as a date: %2")
                .arg(Wording::quoted(text), consequence(field)),
            dateAdvice(text));
    } else if (field != KalendarPlatnostOd && !isKept(date)) {
        add(field, CheckFileRules::kDateOutOfRange,
            Text::tr("The plugin can store days from 1970 to 2106; %1 comes back from the "
                     "database as another day.")
                .arg(Moment::text(date)),
            field == DatumVystupu
                ? Text::tr("Leave the leaving date empty for a person who does not leave.")
                : QString());
    }
}

void FieldRules::checkNumber(int field)
{
    bool isNumber = false;
    toNumber(m_parts.at(field), &isNumber);
    if (isNumber)
        return;
    add(field,
        m_parts.at(field).isEmpty() ? CheckFileRules::kEmptyNumber : CheckFileRules::kBadNumber,
        Text::tr("%1 It is read as 0: %2").arg(notANumber(field), consequence(field)));
}

void FieldRules::checkCode(int field, ushort code)
{
    checkNumber(field);
    if (toNumber(m_parts.at(field)) == code)
        return;
    add(field, CheckFileRules::kCodeWraps,
        Text::tr("Codes go up to 65535; %1 is read as %2.")
            .arg(Wording::quoted(text(field)), QString::number(code)));
}

void FieldRules::checkBalance()
{
    const QString text = this->text(DovolenaZustatek);
    bool isNumber = false;
    toBalance(text, &isNumber);
    qint32 hundredths = 0;
    if (!isNumber) {
        add(DovolenaZustatek,
            text.isEmpty() ? CheckFileRules::kEmptyNumber : CheckFileRules::kBadNumber,
            Text::tr("%1 It is read as 0: %2")
                .arg(notANumber(DovolenaZustatek), consequence(DovolenaZustatek)),
            balanceAdvice(text));
    } else if (!VacationBalance::correction(m_record.dovolenaZustatek, 0, hundredths)) {
        add(DovolenaZustatek, CheckFileRules::kBalanceOutOfRange,
            Text::tr("A balance of %1 days cannot be stored: the balance is not changed.")
                .arg(Wording::quoted(text)));
    }
}

QString FieldRules::text(int field) const
{
    return m_parts.at(field).toString();
}

/// Why a field is not a number above 0, in a sentence.
QString FieldRules::notANumber(int field) const
{
    const QString text = this->text(field);
    bool isNumber = false;
    toNumber(text, &isNumber);
    if (text.isEmpty())
        return Text::tr("The field is empty.");
    return isNumber ? Text::tr("The number is 0.")
                    : Text::tr("The plugin cannot read %1 as a number.").arg(Wording::quoted(text));
}

void FieldRules::add(int field, const Rule &rule, const QString &message, const QString &advice)
{
    static const QStringList names = fieldNames();
    m_line.add(rule, message, advice).field = names.at(field);
}
