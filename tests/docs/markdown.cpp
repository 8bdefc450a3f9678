#include "tests/docs/markdown.h"

#include <QFile>
#include <QRegularExpression>

namespace {

QStringList cells(const QString &line)
{
    QStringList cells;
    for (const QString &cell : line.mid(1, line.size() - 2).split('|'))
        cells << cell.trimmed();
    return cells;
}

} // namespace

QString Markdown::text(const QString &document)
{
    QFile file(PROJECT_FOLDER "/" + document);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(file.fileName()));
    return QString::fromUtf8(file.readAll());
}

QVector<QStringList> Markdown::rows(const QString &document, const QString &heading)
{
    QVector<QStringList> rows;
    QString tableHeading;
    for (const QString &line : text(document).split('\n')) {
        if (!line.startsWith('|')) {
            tableHeading.clear();
        } else if (tableHeading.isEmpty()) {
            tableHeading = cells(line).constFirst();
        } else if (tableHeading == heading && !line.startsWith("|-")) {
            rows << cells(line);
        }
    }
    return rows;
}

QString Markdown::code(const QString &cell)
{
    static const QRegularExpression span("^(`+)([^`].*)\\1$");
    return span.match(cell).captured(2);
}

QString Markdown::block(const QString &document, const QString &before)
{
    const QRegularExpression block(QRegularExpression::escape(before) + "\n+```\n(.*?)\n```\n",
                                   QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = block.match(text(document));
    if (!match.hasMatch())
        qFatal("%s has no block after \"%s\"", qPrintable(document), qPrintable(before));
    return match.captured(1);
}

QStringList Markdown::links(const QString &document)
{
    static const QRegularExpression link("\\]\\(([^):#]+)(?:#[^)]*)?\\)");
    QStringList targets;
    auto matches = link.globalMatch(text(document));
    while (matches.hasNext())
        targets << matches.next().captured(1);
    return targets;
}
