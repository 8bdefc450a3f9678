#include "mirovahrctl/export/sqlhazards.h"

#include <algorithm>

namespace SqlHazards {

int placeholderAt(const QString &text, int from)
{
    const QLatin1Char percent('%');
    for (int i = text.indexOf(percent, from); i >= 0; i = text.indexOf(percent, i + 1)) {
        const int digit = text.midRef(i + 1, 1) == QLatin1String("L") ? i + 2 : i + 1;
        if (digit < text.size() && text.at(digit).digitValue() >= 0)
            return i;
    }
    return -1;
}

bool hasPlaceholder(const QString &text)
{
    return placeholderAt(text, 0) >= 0;
}

bool hasWideCharacter(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isSurrogate(); });
}

bool breaksStatement(const QString &text)
{
    return text.contains(QLatin1Char('\'')) || text.contains(QLatin1Char('\\'))
        || hasPlaceholder(text) || hasWideCharacter(text);
}

} // namespace SqlHazards
