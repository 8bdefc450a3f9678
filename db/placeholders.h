#pragma once

#include <QLatin1String>
#include <QString>
#include <QStringList>

#include <type_traits>

/// Texts with places for values: statements and lines of the log.
namespace Placeholders {

/// The text with the first value in the place of "%1", the second in that of "%2" and so on. It
/// must hold a place for each value, no other "%", and no place that touches the next one unless
/// their numbers ascend. What comes out is what a chain of arg() calls gives, also for a value that
/// itself holds a placeholder; but the text is made once and not once for each value.
QString filled(QLatin1String text, const QStringList &values);

/// A whole number in digits; a text or a character as it is.
template <typename Value> QString textOf(const Value &value)
{
    if constexpr (std::is_integral_v<Value>)
        return QString::number(value);
    else
        return value;
}

/// The same for values that are whole numbers, texts and characters.
template <typename... Values> QString filled(QLatin1String text, const Values &...values)
{
    return filled(text, QStringList{textOf(values)...});
}

} // namespace Placeholders
