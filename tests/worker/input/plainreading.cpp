#include "tests/worker/input/plainreading.h"

#include <QDateTime>
#include <QRegularExpression>

#include <cstdlib>
#include <cstring>

namespace PlainReading {

namespace {

constexpr int kLongestLine = 65536;
constexpr QChar kReplacement(0xFFFD);

bool isSpace(QChar c)
{
    static const QString spaces = QStringLiteral(
        "\u0009\u000A\u000B\u000C\u000D\u0020\u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004"
        "\u2005\u2006\u2007\u2008\u2009\u200A\u2028\u2029\u202F\u205F\u3000");
    return spaces.contains(c);
}

QString trimmed(const QString &text)
{
    int first = 0;
    int last = text.size();
    while (first < last && isSpace(text.at(first)))
        ++first;
    while (last > first && isSpace(text.at(last - 1)))
        --last;
    return text.mid(first, last - first);
}

/// How many bytes the character has that begins with this byte; 0 for a byte that begins none.
int bytesOfCharacter(uchar lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    if (lead >= 0xE0 && lead < 0xF0)
        return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

/// The character at the begin of the bytes, and how many of them it takes; 0 of them when there is
/// none.
uint characterAt(const QByteArray &bytes, int &count)
{
    static constexpr uint kLowest[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<uchar>(bytes.at(0));
    count = bytesOfCharacter(lead);
    if (count == 0 || count > bytes.size()) {
        count = 0;
        return 0;
    }
    uint character = count == 1 ? lead : lead & (0x7FU >> count);
    for (int i = 1; i < count; ++i) {
        const auto next = static_cast<uchar>(bytes.at(i));
        if ((next & 0xC0U) != 0x80) {
            count = 0;
            return 0;
        }
        character = character * 64 + (next & 0x3FU);
    }
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    if (character < kLowest[count] || surrogate || character > 0x10FFFF)
        count = 0;
    return character;
}

/// Its one or two places in a QString.
QString asText(uint character)
{
    if (!QChar::requiresSurrogates(character))
        return QChar(character);
    return QString(QChar(QChar::highSurrogate(character))) + QChar(QChar::lowSurrogate(character));
}

/// UTF-8 up to the first NUL byte. A byte order mark in front is none of the text; a byte that is
/// no part of a character becomes the replacement character.
QString decoded(QByteArray bytes)
{
    const int nul = bytes.indexOf('\0');
    if (nul >= 0)
        bytes.truncate(nul);
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    QString text;
    for (int at = 0; at < bytes.size();) {
        int count = 1;
        uint character = static_cast<uchar>(bytes.at(at));
        if (character >= 0x80)
            character = characterAt(bytes.mid(at, 4), count);
        if (count > 0)
            text += asText(character);
        else
            text += kReplacement;
        at += qMax(count, 1);
    }
    return text;
}

/// ASCII digits, white space around them allowed, and a plus sign in front of them.
quint32 number(const QString &text)
{
    QString digits = trimmed(text);
    if (digits.startsWith('+'))
        digits.remove(0, 1);
    quint64 value = 0;
    for (const QChar c : qAsConst(digits)) {
        if (c < QChar('0') || c > QChar('9'))
            return 0;
        value = value * 10 + quint64(c.unicode() - '0');
        if (value > 0xFFFFFFFFU)
            return 0;
    }
    return quint32(value);
}

quint16 code(const QString &text)
{
    return quint16(number(text) & 0xFFFFU);
}

double balance(const QString &text)
{
    static const QRegularExpression form(
        R"(^[+-]?((([0-9]+\.?[0-9]*|\.[0-9]+)(e[+-]?[0-9]+)?)|inf)$|^nan$)",
        QRegularExpression::CaseInsensitiveOption);
    // Qt takes the sign that typography has for a hyphen, too.
    const QString number = trimmed(text).replace(QChar(0x2212), '-');
    if (!form.match(number).hasMatch())
        return 0.0;
    return std::strtod(number.toLatin1().constData(), nullptr);
}

QDate date(const QString &text)
{
    return QDateTime::fromString(text, "yyyy-MM-dd hh:mm:ss.zzz").date();
}

} // namespace

QStringList lines(const QByteArray &file)
{
    QStringList lines;
    for (const QByteArray &line : file.split('\n')) {
        const QString text = line.size() > kLongestLine ? QString() : trimmed(decoded(line));
        if (!text.isEmpty())
            lines += text;
    }
    return lines;
}

QStringList parts(const QString &line)
{
    QStringList parts;
    QString part;
    for (const QChar c : line) {
        if (c == QChar('|')) {
            parts += part;
            part.clear();
        } else {
            part += c;
        }
    }
    parts += part;
    return parts;
}

MirovaRonRecord record(const QStringList &parts)
{
    MirovaRonRecord r;
    r.osobniCislo = number(parts[0]);
    r.poradoveCisloPP = number(parts[1]);
    r.titul = parts[2];
    r.jmeno = parts[3];
    r.prijmeni = parts[4];
    r.titulZa = parts[5];
    r.telefon = parts[6];
    r.datumNastupu = date(parts[7]);
    r.datumVystupu = date(parts[8]);
    r.stredisko = number(parts[9]);
    r.strediskoPopis = parts[10];
    r.kalendar = number(parts[11]);
    r.kalendarPlatnostOd = date(parts[12]);
    r.typPracovnihoPomeru = code(parts[13]);
    r.stavPracovnihoPomeru = code(parts[14]);
    r.evidencniStav = code(parts[15]);
    r.dovolenaZustatek = balance(parts[16]);
    r.nadrizenyOsobniCislo = number(parts[17]);
    return r;
}

bool isKept(const MirovaRonRecord &record)
{
    return record.osobniCislo != 0 && record.poradoveCisloPP != 0
        && (!record.jmeno.isEmpty() || !record.prijmeni.isEmpty());
}

QVector<MirovaRonRecord> records(const QStringList &lines)
{
    QVector<MirovaRonRecord> records;
    for (const QString &line : lines) {
        const QStringList fields = parts(line);
        if (fields.size() == 18 && isKept(record(fields)))
            records += record(fields);
    }
    return records;
}

bool areSame(const MirovaRonRecord &a, const MirovaRonRecord &b)
{
    MirovaRonRecord otherBalance = b;
    otherBalance.dovolenaZustatek = a.dovolenaZustatek;
    MirovaRonRecord first = a;
    first.dovolenaZustatek = otherBalance.dovolenaZustatek = 0.0;
    return first == otherBalance
        && std::memcmp(&a.dovolenaZustatek, &b.dovolenaZustatek, sizeof(double)) == 0;
}

} // namespace PlainReading
