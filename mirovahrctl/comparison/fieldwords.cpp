#include "mirovahrctl/comparison/fieldwords.h"

#include "cli/text.h"
#include "worker/exportline.h"

#include <array>

namespace FieldWords {

namespace {

constexpr std::array<const char *, ExportLine::kFieldCount> kWords{
    QT_TRANSLATE_NOOP("Text", "personal number"),
    QT_TRANSLATE_NOOP("Text", "relationship number"),
    QT_TRANSLATE_NOOP("Text", "title"),
    QT_TRANSLATE_NOOP("Text", "first name"),
    QT_TRANSLATE_NOOP("Text", "surname"),
    QT_TRANSLATE_NOOP("Text", "title after the name"),
    QT_TRANSLATE_NOOP("Text", "telephone number"),
    QT_TRANSLATE_NOOP("Text", "first day"),
    QT_TRANSLATE_NOOP("Text", "last day"),
    QT_TRANSLATE_NOOP("Text", "cost centre"),
    QT_TRANSLATE_NOOP("Text", "name of the cost centre"),
    QT_TRANSLATE_NOOP("Text", "calendar"),
    QT_TRANSLATE_NOOP("Text", "start of the calendar"),
    QT_TRANSLATE_NOOP("Text", "employment type"),
    QT_TRANSLATE_NOOP("Text", "employment state"),
    QT_TRANSLATE_NOOP("Text", "register state"),
    QT_TRANSLATE_NOOP("Text", "vacation balance"),
    QT_TRANSLATE_NOOP("Text", "supervisor"),
};

} // namespace

QString of(int field)
{
    return Text::tr(kWords.at(size_t(field)));
}

QString heading(int field)
{
    QString text = of(field);
    text[0] = text.at(0).toUpper();
    return text;
}

} // namespace FieldWords
