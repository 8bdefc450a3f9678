#include "mirovahrctl/anonymise/lineparts.h"

#include "mirovahrctl/anonymise/utf8characters.h"
#include "worker/exportline.h"

#include <QChar>

#include <algorithm>
#include <utility>

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

const char kBar = ExportLine::kSeparator.toLatin1();

int lengthOfSpace(QVector<uint>::const_iterator begin, QVector<uint>::const_iterator end)
{
    const QVector<uint> space(begin, end);
    return Utf8Characters::bytes(space).size();
}

/// How many bytes of white space a text begins and ends with.
std::pair<int, int> spaceAround(const QByteArray &text)
{
    const QVector<uint> characters = Utf8Characters::of(text);
    const auto isNoSpace = [](uint character) {
        return !QChar::isSpace(character);
    };
    const auto first = std::find_if(characters.cbegin(), characters.cend(), isNoSpace);
    const auto last = std::find_if(characters.crbegin(), characters.crend(), isNoSpace);
    if (first == characters.cend())
        return {text.size(), 0};
    return {lengthOfSpace(characters.cbegin(), first),
            lengthOfSpace(last.base(), characters.cend())};
}

} // namespace

LineParts LineParts::of(const QByteArray &line)
{
    const int end = line.indexOf('\0');
    const QByteArray visible = end < 0 ? line : line.left(end);
    const int mark = visible.startsWith(kByteOrderMark) ? int(sizeof(kByteOrderMark)) - 1 : 0;
    const auto [before, after] = spaceAround(visible.mid(mark));
    const int begin = mark + before;

    LineParts parts;
    parts.before = visible.left(begin);
    parts.fields = visible.mid(begin, visible.size() - begin - after).split(kBar);
    parts.after = visible.right(after);
    if (end >= 0)
        parts.hidden = line.mid(end).split(kBar);
    return parts;
}

QByteArray LineParts::joined() const
{
    return before + fields.join(kBar) + after + hidden.join(kBar);
}
