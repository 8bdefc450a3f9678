#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// Parts of a document of the project, such as "docs/operations.md".
namespace Markdown {

/// The whole text; the test program ends when there is none.
QString text(const QString &document);

/// The rows of all tables whose first column has this heading, a list of cells each.
QVector<QStringList> rows(const QString &document, const QString &heading);

/// The text of a cell that is one code span, without its backticks; empty for any other cell.
QString code(const QString &cell);

/// The content of the first code block behind this text; the test program ends when there is none.
QString block(const QString &document, const QString &before);

/// The targets of the links that lead into the project, without their anchors.
QStringList links(const QString &document);

} // namespace Markdown
