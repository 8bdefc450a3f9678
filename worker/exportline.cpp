#include "worker/exportline.h"

#include <QDateTime>

#include <algorithm>

namespace ExportLine {

const QLatin1String kDateFormat("yyyy-MM-dd hh:mm:ss.zzz");

namespace {

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/// True for at most nine ASCII digits and nothing else: any such number fits 32 bits.
bool isPlainNumber(QStringView text)
{
    return !text.isEmpty() && text.size() <= 9 && std::all_of(text.cbegin(), text.cend(), isDigit);
}

/// The value of the `count` ASCII digits at `from`.
int numberAt(QStringView text, int from, int count)
{
    int number = 0;
    for (int i = from; i < from + count; ++i)
        number = number * 10 + (text.at(i).unicode() - u'0');
    return number;
}

/// True when the text matches the shape exactly; "#" stands for an ASCII digit.
bool hasShape(QStringView text, QLatin1String shape)
{
    if (text.size() != shape.size())
        return false;
    for (int i = 0; i < shape.size(); ++i) {
        const QChar c = text.at(i);
        if (shape.at(i) == QLatin1Char('#') ? !isDigit(c) : c != shape.at(i))
            return false;
    }
    return true;
}

/// The date of a text that has exactly the export's format; an invalid date for any other text.
///
/// It ignores the local time zone, so that a time which a daylight-saving change skips is no error:
/// a leaving date lost in that gap would keep a person employed. It also costs a fraction of Qt's
/// parser.
QDate wellFormedDate(QStringView text)
{
    if (!hasShape(text, QLatin1String("####-##-## ##:##:##.###")))
        return QDate();
    const QDate date(numberAt(text, 0, 4), numberAt(text, 5, 2), numberAt(text, 8, 2));
    const QTime time(numberAt(text, 11, 2), numberAt(text, 14, 2), numberAt(text, 17, 2),
                     numberAt(text, 20, 3));
    return time.isValid() ? date : QDate();
}

quint16 toCode(QStringView text)
{
    // The low 16 bits: 65537 is code 1.
    return static_cast<quint16>(toNumber(text));
}

QDate toDate(QStringView text)
{
    static const QString format(kDateFormat);
    return parseDate(text, format);
}

} // namespace

QStringList fieldNames()
{
    return {
        QStringLiteral("OsobniCislo"),
        QStringLiteral("PoradoveCisloPP"),
        QStringLiteral("Titul"),
        QStringLiteral("Jmeno"),
        QStringLiteral("Prijmeni"),
        QStringLiteral("TitulZa"),
        QStringLiteral("Telefon"),
        QStringLiteral("DatumNastupu"),
        QStringLiteral("DatumVystupu"),
        QStringLiteral("Stredisko"),
        QStringLiteral("StrediskoPopis"),
        QStringLiteral("Kalendar"),
        QStringLiteral("KalendarPlatnostOd"),
        QStringLiteral("TypPracovnihoPomeru"),
        QStringLiteral("StavPracovnihoPomeru"),
        QStringLiteral("EvidencniStav"),
        QStringLiteral("DovolenaZustatek"),
        QStringLiteral("NadrizenyOsobniCislo"),
    };
}

QString decode(const char *line)
{
    return QString::fromUtf8(line).trimmed();
}

Parts split(const QString &line, QChar separator)
{
    Parts parts;
    parts.reserve(kFieldCount);
    int begin = 0;
    for (int end = line.indexOf(separator); end >= 0; end = line.indexOf(separator, begin)) {
        parts.append(QStringRef(&line, begin, end - begin));
        begin = end + 1;
    }
    parts.append(QStringRef(&line, begin, line.size() - begin));
    return parts;
}

quint32 toNumber(QStringView text, bool *ok)
{
    // Qt's locale-aware parser takes ten times as long.
    if (!isPlainNumber(text))
        return text.toString().toUInt(ok, 10);
    if (ok)
        *ok = true;
    return static_cast<quint32>(numberAt(text, 0, static_cast<int>(text.size())));
}

double toBalance(QStringView text, bool *ok)
{
    return text.toString().toDouble(ok);
}

QDate parseDate(QStringView text, const QString &format)
{
    if (format == kDateFormat) {
        const QDate date = wellFormedDate(text);
        // Most people have no leaving date, and Qt's parser looks up the local zone even for that.
        if (date.isValid() || text.isEmpty())
            return date;
    }
    return QDateTime::fromString(text.toString(), format).date();
}

MirovaRonRecord toRecord(const Parts &parts)
{
    MirovaRonRecord record;
    record.osobniCislo = toNumber(parts.at(OsobniCislo));
    record.poradoveCisloPP = toNumber(parts.at(PoradoveCisloPP));
    record.titul = parts.at(Titul).toString();
    record.jmeno = parts.at(Jmeno).toString();
    record.prijmeni = parts.at(Prijmeni).toString();
    record.titulZa = parts.at(TitulZa).toString();
    record.telefon = parts.at(Telefon).toString();
    record.datumNastupu = toDate(parts.at(DatumNastupu));
    record.datumVystupu = toDate(parts.at(DatumVystupu));
    record.stredisko = toNumber(parts.at(Stredisko));
    record.strediskoPopis = parts.at(StrediskoPopis).toString();
    record.kalendar = toNumber(parts.at(Kalendar));
    record.kalendarPlatnostOd = toDate(parts.at(KalendarPlatnostOd));
    record.typPracovnihoPomeru = toCode(parts.at(TypPracovnihoPomeru));
    record.stavPracovnihoPomeru = toCode(parts.at(StavPracovnihoPomeru));
    record.evidencniStav = toCode(parts.at(EvidencniStav));
    record.dovolenaZustatek = toBalance(parts.at(DovolenaZustatek));
    record.nadrizenyOsobniCislo = toNumber(parts.at(NadrizenyOsobniCislo));
    return record;
}

bool isUsable(const MirovaRonRecord &record)
{
    return record.osobniCislo != 0 && record.poradoveCisloPP != 0
        && !(record.jmeno.isEmpty() && record.prijmeni.isEmpty());
}

} // namespace ExportLine
