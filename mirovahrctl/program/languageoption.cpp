#include "mirovahrctl/program/languageoption.h"

#include "cli/text.h"
#include "mirovahrctl/report/language.h"

#include <algorithm>
#include <optional>

namespace {

const QLatin1String kOption("--language");
const QLatin1String kOptionWithValue("--language=");

/// Takes the option at this position out of the arguments. Returns its value; empty when it has
/// none.
QString takeAt(int position, QStringList &arguments)
{
    const QString option = arguments.takeAt(position);
    if (option != kOption)
        return option.mid(kOptionWithValue.size());
    return position < arguments.size() ? arguments.takeAt(position) : QString();
}

/// Takes the option out wherever it is. Returns the last value; none without the option.
std::optional<QString> take(QStringList &arguments)
{
    std::optional<QString> value;
    for (int i = 0; i < arguments.size() && arguments.at(i) != QLatin1String("--");) {
        if (arguments.at(i) == kOption || arguments.at(i).startsWith(kOptionWithValue))
            value = takeAt(i, arguments);
        else
            ++i;
    }
    return value;
}

void putBehindSubcommand(const QString &language, QStringList &arguments)
{
    arguments.insert(std::min(1, arguments.size()), kOptionWithValue + language);
}

} // namespace

QString LanguageOption::obey(QStringList &arguments)
{
    const std::optional<QString> requested = take(arguments);
    const bool isKnown = requested && Language::codes().contains(*requested);
    if (arguments.contains(QLatin1String("--json")))
        Language::use(QStringLiteral("en"));
    else
        Language::use(isKnown ? *requested : Language::ofLocale());
    if (isKnown || !requested)
        return {};
    putBehindSubcommand(*requested, arguments);
    return problem(*requested);
}

void LanguageOption::moveBehindSubcommand(QStringList &arguments)
{
    const std::optional<QString> language = take(arguments);
    if (language)
        putBehindSubcommand(*language, arguments);
}

QString LanguageOption::problem(const QString &language)
{
    const QStringList codes = Language::codes();
    if (codes.contains(language))
        return {};
    return Text::tr("Unknown language '%1'; there are %2")
        .arg(language, codes.join(QStringLiteral(", ")));
}
