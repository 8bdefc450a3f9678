#pragma once

#include <QLatin1String>
#include <QString>
#include <QStringList>

#include <type_traits>

/// Texts with placeholders: statements and log lines.
namespace Placeholders {

/// The text with the first value in place of "%1", the second in place of "%2" and so on. It must
/// have a placeholder for each value, no other "%", and no two adjacent placeholders unless their
/// numbers ascend. The result is that of a chain of arg() calls, also for a value that itself holds
/// a placeholder, but the text is built once instead of once a value.
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
