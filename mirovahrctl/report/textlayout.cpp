#include "mirovahrctl/report/textlayout.h"

#include "mirovahrctl/report/textstyle.h"

#include <algorithm>
#include <numeric>

namespace TextLayout {

namespace {

constexpr int kGap = 2; ///< spaces between two columns
constexpr int kNarrowest = 8; ///< no column is made narrower than this

void widen(QVector<int> &widths, const QStringList &row)
{
    for (int i = 0; i < row.size(); ++i)
        widths[i] = qMax(widths.at(i), row.at(i).size());
}

/// The widths with the widest columns narrowed until all of them fit.
QVector<int> fitted(QVector<int> widths, int width)
{
    const int room = width - kGap * (widths.size() - 1);
    int total = std::accumulate(widths.cbegin(), widths.cend(), 0);
    auto widest = std::max_element(widths.begin(), widths.end());
    while (total > room && *widest > kNarrowest) {
        --*widest;
        --total;
        widest = std::max_element(widths.begin(), widths.end());
    }
    return widths;
}

QStringList cellLines(const QString &text, int width)
{
    QStringList lines;
    const QStringList whole = wrapped(text, width);
    for (const QString &line : whole) {
        for (int at = 0; at == 0 || at < line.size(); at += width)
            lines << line.mid(at, width);
    }
    return lines;
}

QString aligned(const QVector<QStringList> &cells, const QVector<int> &widths, int line)
{
    QString text;
    for (int i = 0; i < cells.size(); ++i)
        text += cells.at(i).value(line).leftJustified(widths.at(i) + kGap);
    while (text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text;
}

QStringList rowLines(const QStringList &row, const QVector<int> &widths)
{
    QVector<QStringList> cells;
    int height = 0;
    for (int i = 0; i < row.size(); ++i) {
        cells << cellLines(row.at(i), widths.at(i));
        height = qMax(height, cells.constLast().size());
    }
    QStringList lines;
    for (int line = 0; line < height; ++line)
        lines << aligned(cells, widths, line);
    return lines;
}

QStringList dashes(const QVector<int> &widths)
{
    QStringList row;
    for (const int width : widths)
        row << QString(width, QLatin1Char('-'));
    return row;
}

} // namespace

QStringList wrapped(const QString &text, int width, int indent)
{
    QStringList lines;
    const QStringList words = text.split(QLatin1Char(' '));
    QString line = words.constFirst();
    int used = TextStyle::widthOf(line);
    for (int i = 1; i < words.size(); ++i) {
        const QString &word = words.at(i);
        used += 1 + TextStyle::widthOf(word);
        if (used <= width) {
            line += QLatin1Char(' ') + word;
        } else {
            lines << line;
            line = QString(indent, QLatin1Char(' ')) + word;
            used = TextStyle::widthOf(line);
        }
    }
    return lines << line;
}

QStringList table(const QStringList &headings, const QVector<QStringList> &rows, int width)
{
    QVector<int> widths(headings.size(), 0);
    widen(widths, headings);
    for (const QStringList &row : rows)
        widen(widths, row);
    widths = fitted(widths, width);

    QStringList lines = rowLines(headings, widths) + rowLines(dashes(widths), widths);
    for (const QStringList &row : rows)
        lines += rowLines(row, widths);
    return lines;
}

} // namespace TextLayout
