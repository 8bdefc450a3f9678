#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// Wraps texts and tables to a width in characters, for terminals.
namespace TextLayout {

/// The width of help texts: no more than that of the options, which Qt lays out.
constexpr int kHelpWidth = 88;

/// The lines of a text, broken at spaces; its styles take no room. Those after the first begin with
/// \a indent spaces. A word that is longer than a line is not broken, so that a path can be copied.
QStringList wrapped(const QString &text, int width, int indent = 0);

/// The lines of a table: its headings, dashes below them, and the rows. Each row, the headings
/// among them, has a text for each column. When a row would be wider than \a width, the widest
/// columns are narrowed and their texts broken, within long words as well.
QStringList table(const QStringList &headings, const QVector<QStringList> &rows, int width);

} // namespace TextLayout
