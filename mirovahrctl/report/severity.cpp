#include "mirovahrctl/report/severity.h"

#include "cli/text.h"

namespace {

/// By Severity.
constexpr const char *kWords[] = {QT_TRANSLATE_NOOP("Text", "note"),
                                  QT_TRANSLATE_NOOP("Text", "warning"),
                                  QT_TRANSLATE_NOOP("Text", "error")};

} // namespace

QString severityWord(Severity severity)
{
    return QString::fromLatin1(kWords[static_cast<int>(severity)]);
}

QString severityText(Severity severity)
{
    return Text::tr(kWords[static_cast<int>(severity)]);
}
