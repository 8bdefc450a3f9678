#pragma once

#include <QString>
#include <QVariant>

/// Texts from files and databases, made fit to be shown.
namespace Wording {

/// The text with every control character as a visible escape such as "\x1b": what an export
/// contains must not steer a terminal or break a line.
QString visible(const QString &text);

/// As visible(), between quotation marks and cut short when it is long.
QString quoted(const QString &text);

/// A fact or the cell of a table, as people read it: yes or no for a flag.
QString plain(const QVariant &value);

/// The text with a full stop at its end.
QString sentence(const QString &text);

/// "1 line", "2 lines".
QString counted(qint64 count, const QString &one, const QString &many);

} // namespace Wording
