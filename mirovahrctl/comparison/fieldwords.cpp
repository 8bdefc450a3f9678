#include "mirovahrctl/comparison/fieldwords.h"

#include "worker/exportline.h"

#include <array>

namespace FieldWords {

namespace {

constexpr std::array<const char *, ExportLine::kFieldCount> kWords{
    "personal number",
    "relationship number",
    "title",
    "first name",
    "surname",
    "title after the name",
    "telephone number",
    "first day",
    "last day",
    "cost centre",
    "name of the cost centre",
    "calendar",
    "start of the calendar",
    "employment type",
    "employment state",
    "register state",
    "vacation balance",
    "supervisor",
};

} // namespace

QString of(int field)
{
    return QString::fromLatin1(kWords.at(size_t(field)));
}

QString heading(int field)
{
    QString text = of(field);
    text[0] = text.at(0).toUpper();
    return text;
}

} // namespace FieldWords
