#include "mirovahrctl/export/likelyperson.h"

#include "cli/text.h"
#include "worker/exportline.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

using namespace ExportLine;

/// The separator of the line: the export's own, or the one that stands in its place.
QChar separatorOf(const QString &line)
{
    const QChar candidates[] = {kSeparator, QLatin1Char(';'), QLatin1Char('\t'), QLatin1Char(',')};
    return *std::max_element(std::begin(candidates), std::end(candidates),
                             [&line](QChar a, QChar b) { return line.count(a) < line.count(b); });
}

bool isNumber(const QString &field)
{
    static const QRegularExpression number(QStringLiteral("^0*[1-9][0-9]{0,9}$"));
    return number.match(field).hasMatch();
}

/// No title, which has a full stop, no number, and no more letters than a name.
bool isName(const QString &field)
{
    static const QRegularExpression name(QStringLiteral("^\\p{L}[\\p{L}\\p{M} '’-]{0,59}$"));
    return name.match(field).hasMatch();
}

bool isDate(const QString &field)
{
    static const QRegularExpression date(QStringLiteral("^[0-9]{4}-[0-9]{2}-[0-9]{2}"));
    return date.match(field).hasMatch();
}

/// First name and surname. The first date tells whether they are where they should be: otherwise a
/// field before it is missing or doubled, and every name before it counts.
QString nameOf(const QStringList &fields)
{
    const auto date = std::find_if(fields.cbegin(), fields.cend(), isDate);
    const int position = static_cast<int>(date - fields.cbegin());
    const bool isInPlace = date == fields.cend() || position == DatumNastupu;
    QStringList names = isInPlace ? fields.mid(Jmeno, 2) : fields.mid(0, position);
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const QString &field) { return !isName(field); }),
                names.end());
    return names.join(QLatin1Char(' '));
}

} // namespace

QString LikelyPerson::of(const QString &line)
{
    QStringList fields = line.split(separatorOf(line));
    for (QString &field : fields)
        field = field.trimmed();
    const bool isHeader =
        fields.constFirst().compare(fieldNames().constFirst(), Qt::CaseInsensitive) == 0;
    if (isHeader)
        return QString();
    const QString number = fields.value(OsobniCislo);
    const QString relationship = fields.value(PoradoveCisloPP);
    const QString name = nameOf(fields);
    if (!isNumber(number))
        return name;
    if (isNumber(relationship))
        return QStringLiteral("%1.%2 %3").arg(number, relationship, name).trimmed();
    const QString personalNumber = Text::tr("personal number %1").arg(number);
    return name.isEmpty() ? personalNumber : QStringLiteral("%1, %2").arg(name, personalNumber);
}
