#pragma once

#include <QLatin1String>
#include <QString>
#include <QStringList>

/// Texts with places for values: long statements and lines of the log.
namespace Placeholders {

/// The text with the first value in the place of "%1", the second in that of "%2" and so on. It
/// must hold a place for each value, no other "%", and no place that touches the next one unless
/// their numbers ascend. What comes out is what a chain of arg() calls gives, also for a value that
/// itself holds a placeholder; but the text is made once and not once for each value.
QString filled(QLatin1String text, const QStringList &values);

} // namespace Placeholders
