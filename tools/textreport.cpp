#include "tools/textreport.h"

#include "tools/finding.h"
#include "tools/plaintext.h"

#include <QIODevice>
#include <QStringList>

namespace {

QString underline(const QString &text, QChar with)
{
    return QString(text.size(), with);
}

/// "line 12, DatumNastupu (1234.1 Jana Nováková): warning: ".
QString findingHead(const Finding &finding)
{
    QStringList place;
    if (finding.line > 0)
        place << QStringLiteral("line %1").arg(finding.line);
    if (!finding.field.isEmpty())
        place << PlainText::visible(finding.field);
    QString head = place.join(QStringLiteral(", "));
    if (!finding.subject.isEmpty())
        head += QStringLiteral(" (%1)").arg(PlainText::visible(finding.subject));
    if (!head.isEmpty())
        head = head.trimmed() + QStringLiteral(": ");
    return head + severityWord(finding.severity) + QStringLiteral(": ");
}

QStringList cellTexts(const QVariantList &row)
{
    QStringList texts;
    for (const QVariant &cell : row)
        texts << PlainText::visible(cell.toString());
    return texts;
}

QStringList headings(const Table &table)
{
    QStringList texts;
    for (const Table::Column &column : table.columns)
        texts << column.heading;
    return texts;
}

QVector<int> columnWidths(const QVector<QStringList> &rows)
{
    QVector<int> widths(rows.constFirst().size(), 0);
    for (const QStringList &row : rows) {
        for (int i = 0; i < row.size(); ++i)
            widths[i] = qMax(widths.at(i), row.at(i).size());
    }
    return widths;
}

QString aligned(const QStringList &row, const QVector<int> &widths)
{
    QString text;
    for (int i = 0; i < row.size(); ++i)
        text += row.at(i).leftJustified(widths.at(i) + 2);
    while (text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text;
}

QStringList rule(const QVector<int> &widths)
{
    QStringList dashes;
    for (const int width : widths)
        dashes << QString(width, QLatin1Char('-'));
    return dashes;
}

} // namespace

TextReport::TextReport(QIODevice &out)
    : m_out(out)
{
}

void TextReport::begin(const QString &, const QString &title)
{
    const QString text = PlainText::visible(title);
    line(text);
    line(underline(text, QLatin1Char('=')));
}

void TextReport::section(const QString &, const QString &heading)
{
    const QString text = PlainText::visible(heading);
    line(QString());
    line(text);
    line(underline(text, QLatin1Char('-')));
}

void TextReport::sentence(const QString &text)
{
    line(PlainText::visible(text));
}

void TextReport::table(const Table &table)
{
    QVector<QStringList> rows{headings(table)};
    for (const QVariantList &row : table.rows)
        rows << cellTexts(row);
    const QVector<int> widths = columnWidths(rows);
    rows.insert(1, rule(widths));
    for (const QStringList &row : qAsConst(rows))
        line(aligned(row, widths));
}

void TextReport::finding(const Finding &finding)
{
    line(QStringLiteral("%1%2 [%3]")
             .arg(findingHead(finding), PlainText::visible(finding.message), finding.rule));
    if (!finding.advice.isEmpty()) {
        line((finding.forHr ? QStringLiteral("    Tell HR: ") : QStringLiteral("    "))
             + PlainText::visible(finding.advice));
    }
}

void TextReport::fact(const QString &, const QString &label, const QVariant &value)
{
    line(QStringLiteral("%1: %2").arg(label, PlainText::visible(value.toString())));
}

void TextReport::end(ExitStatus, const QString &verdict)
{
    line(QString());
    line(PlainText::visible(verdict));
}

void TextReport::line(const QString &text)
{
    m_out.write((text + QLatin1Char('\n')).toUtf8());
}
