#include "mirovahrctl/comparison/rowfields.h"

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/export/sqltexts.h"
#include "mirovahrctl/report/moment.h"
#include "worker/recordcomparison.h"

#include <array>

namespace {

using TepDbContract::labelOf;

/// In the order of the comparison. The first two are the parts of people.pamId.
constexpr std::array kNames{
    QT_TRANSLATE_NOOP("Text", "personal number"),
    QT_TRANSLATE_NOOP("Text", "relationship number"),
    labelOf("people", "title"),
    labelOf("people", "name"),
    labelOf("people", "surname"),
    labelOf("people", "title2"),
    labelOf("people", "phone"),
    labelOf("people", "begin"),
    labelOf("people", "end"),
    labelOf("people", "calendarID"),
    labelOf("branches", "number"),
    labelOf("people", "rsBegin"),
    labelOf("people", "rsEnd"),
    labelOf("people", "rsText"),
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
    return Moment::text(date);
}

QString name(const char *label)
{
    QString name = Text::tr(label);
    name[0] = name.at(0).toUpper();
    return name;
}

template <size_t... Indices>
QVector<RowField> compare(const Fields &updated, const Fields &shown, const Fields &known,
                          std::index_sequence<Indices...>)
{
    return {RowField{name(kNames[Indices]), value(std::get<Indices>(shown)),
                     value(std::get<Indices>(known)),
                     std::get<Indices>(updated) != std::get<Indices>(known)}...};
}

} // namespace

QVector<RowField> compareRowFields(const MirovaRonRecord &updated, const MirovaRonRecord &known,
                                   Backslash backslash)
{
    const MirovaRonRecord shown = SqlTexts::shown(updated, backslash);
    return compare(RecordComparison::rowFields(updated), RecordComparison::rowFields(shown),
                   RecordComparison::rowFields(known), std::make_index_sequence<kNames.size()>());
}
