#include "mirovahrctl/export/sqltexts.h"

#include "mirovahrctl/export/sqlhazards.h"
#include "worker/exportline.h"

#include <QStringList>

#include <algorithm>

namespace SqlTexts {

namespace {

const QLatin1String kApostrophe("'");
const QLatin1String kTwoApostrophes("''");
const QLatin1String kBackslash("\\");
const QLatin1String kTwoBackslashes("\\\\");
/// The end of a string and the begin of the next.
const QLatin1String kParting("' '");

/// The fields that the plugin puts into statements follow each other.
constexpr int kFirst = ExportLine::Titul;
constexpr int kLast = ExportLine::Telefon;
static_assert(kLast - kFirst == 4, "five texts");

constexpr QString MirovaRonRecord::*kTexts[] = {
    &MirovaRonRecord::titul, &MirovaRonRecord::jmeno, &MirovaRonRecord::prijmeni,
    &MirovaRonRecord::titulZa, &MirovaRonRecord::telefon};

bool isSpecial(QChar c)
{
    return c == QLatin1Char('\'') || c == QLatin1Char('\\') || c == QLatin1Char('%');
}

/// Most texts: they are their own written form.
bool isPlain(const QString &text)
{
    return std::none_of(text.cbegin(), text.cend(), isSpecial);
}

bool isPlainLine(const QByteArray &line)
{
    return std::none_of(line.cbegin(), line.cend(),
                        [](char c) { return isSpecial(QLatin1Char(c)); });
}

/// Where the field begins in the bytes of a line that has it.
int beginOf(int field, const QByteArray &line)
{
    int begin = 0;
    for (int i = 0; i < field; ++i)
        begin = line.indexOf(ExportLine::kSeparator.toLatin1(), begin) + 1;
    return begin;
}

} // namespace

QString written(const QString &text, Backslash backslash)
{
    if (isPlain(text))
        return text;
    QString result = text;
    if (backslash == Backslash::Escapes)
        result.replace(kBackslash, kTwoBackslashes);
    result.replace(kApostrophe, kTwoApostrophes);
    for (int at = SqlHazards::placeholderAt(result, 0); at >= 0;
         at = SqlHazards::placeholderAt(result, at + 1))
        result.insert(at + 1, kParting);
    return result;
}

std::optional<QString> meant(const QString &text, Backslash backslash)
{
    if (isPlain(text))
        return text;
    QString result;
    for (int i = 0; i < text.size();) {
        const QStringRef rest = text.midRef(i);
        if (rest.startsWith(kParting)) {
            i += kParting.size();
            continue;
        }
        const bool isPair = rest.startsWith(kTwoApostrophes)
            || (backslash == Backslash::Escapes && rest.startsWith(kTwoBackslashes));
        result += text.at(i);
        i += isPair ? 2 : 1;
    }
    if (written(result, backslash) != text)
        return std::nullopt;
    return result;
}

QString shown(const QString &text, Backslash backslash)
{
    return meant(text, backslash).value_or(text);
}

MirovaRonRecord shown(MirovaRonRecord record, Backslash backslash)
{
    for (QString MirovaRonRecord::*text : kTexts)
        record.*text = shown(record.*text, backslash);
    return record;
}

QByteArray writtenLine(const QByteArray &line, Backslash backslash)
{
    if (isPlainLine(line))
        return line;
    const QString text = ExportLine::decode(line.constData());
    const ExportLine::Parts parts = ExportLine::split(text, ExportLine::kSeparator);
    if (parts.size() != ExportLine::kFieldCount)
        return line;
    QStringList before;
    QStringList after;
    for (int field = kFirst; field <= kLast; ++field) {
        before += parts.at(field).toString();
        after += written(before.constLast(), backslash);
    }
    if (after == before)
        return line;
    const int begin = beginOf(kFirst, line);
    const int end = beginOf(kLast + 1, line) - 1;
    return line.left(begin) + after.join(ExportLine::kSeparator).toUtf8() + line.mid(end);
}

} // namespace SqlTexts
