#pragma once

#include <QString>
#include <QVariant>

/// Texts as people read them, also those that come from files and databases.
namespace Wording {

/// The text with a visible escape such as "\x1b" for every control character: the content of an
/// export must not control a terminal or break a line.
QString visible(const QString &text);

/// As visible(), in the quotation marks of the language and truncated to 60 characters.
QString quoted(const QString &text);

/// A fact or the cell of a table: "yes" or "no" for a flag, "12.5" or "12,5" for a fraction.
QString plain(const QVariant &value);

/// The text with a full stop at its end, added when it is missing.
QString sentence(const QString &text);

/// "12 seconds", "3 hours".
QString span(qint64 seconds);

} // namespace Wording
