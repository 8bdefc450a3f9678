#include "mirovahrctl/explain/rowfields.h"

#include "worker/recordcomparison.h"

#include <array>

namespace {

/// In the order of the comparison.
constexpr std::array kNames{
    "Personal number",
    "Relationship number",
    "Title",
    "First name",
    "Surname",
    "Title after the name",
    "Phone",
    "First day",
    "Last day",
    "Calendar",
    "Cost centre",
    "Relationship state from",
    "Relationship state to",
    "Relationship state",
};

using Fields = decltype(RecordComparison::rowFields(std::declval<const MirovaRonRecord &>()));
static_assert(kNames.size() == std::tuple_size_v<Fields>, "a name for each field");

QVariant value(quint32 number)
{
    return number;
}

QVariant value(const QString &text)
{
    return text;
}

QVariant value(const QDate &date)
{
    return date.toString(Qt::ISODate);
}

template <size_t... Indices>
QVector<RowField> compare(const Fields &updated, const Fields &known,
                          std::index_sequence<Indices...>)
{
    return {RowField{QString::fromLatin1(kNames[Indices]), value(std::get<Indices>(updated)),
                     value(std::get<Indices>(known)),
                     std::get<Indices>(updated) != std::get<Indices>(known)}...};
}

} // namespace

QVector<RowField> compareRowFields(const MirovaRonRecord &updated, const MirovaRonRecord &known)
{
    return compare(RecordComparison::rowFields(updated), RecordComparison::rowFields(known),
                   std::make_index_sequence<kNames.size()>());
}
