#include "mirovahrctl/gatestate/gatetexts.h"

namespace GateTexts {

namespace {

const QLatin1String kEscaped("escaped");
const QLatin1String kNoBackslashEscapes("no-backslash-escapes");
const QLatin1String kAsIs("as-is");

} // namespace

QStringList words()
{
    return {kEscaped, kNoBackslashEscapes, kAsIs};
}

QString word(const std::optional<Backslash> &texts)
{
    if (!texts)
        return kAsIs;
    return *texts == Backslash::Escapes ? kEscaped : kNoBackslashEscapes;
}

std::optional<Backslash> ofWord(const QString &word)
{
    if (word == kEscaped)
        return Backslash::Escapes;
    if (word == kNoBackslashEscapes)
        return Backslash::IsLiteral;
    return std::nullopt;
}

} // namespace GateTexts
