#include "cli/systemmessage.h"

#include "cli/text.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr const char *kMessages[] = {
    QT_TRANSLATE_NOOP("Text", "Disk quota exceeded"),
    QT_TRANSLATE_NOOP("Text", "Input/output error"),
    QT_TRANSLATE_NOOP("Text", "Is a directory"),
    QT_TRANSLATE_NOOP("Text", "No space left on device"),
    QT_TRANSLATE_NOOP("Text", "No such file or directory"),
    QT_TRANSLATE_NOOP("Text", "Not a directory"),
    QT_TRANSLATE_NOOP("Text", "Operation not permitted"),
    QT_TRANSLATE_NOOP("Text", "Permission denied"),
    QT_TRANSLATE_NOOP("Text", "Read-only file system"),
    QT_TRANSLATE_NOOP("Text", "Too many levels of symbolic links"),
    QT_TRANSLATE_NOOP("Text", "Too many open files"),
};

} // namespace

QString systemMessage(const QString &message)
{
    const auto *const known =
        std::find_if(std::begin(kMessages), std::end(kMessages),
                     [&message](const char *text) { return message == QLatin1String(text); });
    return known == std::end(kMessages) ? message : Text::tr(*known);
}
