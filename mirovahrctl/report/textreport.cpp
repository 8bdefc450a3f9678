#include "mirovahrctl/report/textreport.h"

#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/textlayout.h"
#include "mirovahrctl/report/wording.h"

#include <QIODevice>
#include <QStringList>

namespace {

/// Of the lines below a finding's or a fact's first one.
constexpr int kIndent = 4;

/// "line 12, DatumNastupu (1234.1 Jana Nováková): warning: ".
QString findingHead(const Finding &finding)
{
    QStringList place;
    if (finding.line > 0)
        place << QStringLiteral("line %1").arg(finding.line);
    if (!finding.field.isEmpty())
        place << Wording::visible(finding.field);
    QString head = place.join(QStringLiteral(", "));
    if (!finding.subject.isEmpty())
        head += QStringLiteral(" (%1)").arg(Wording::visible(finding.subject));
    if (!head.isEmpty())
        head = head.trimmed() + QStringLiteral(": ");
    return head + severityWord(finding.severity) + QStringLiteral(": ");
}

QStringList cellTexts(const QVariantList &row)
{
    QStringList texts;
    for (const QVariant &cell : row)
        texts << Wording::visible(Wording::plain(cell));
    return texts;
}

QStringList headings(const Table &table)
{
    QStringList texts;
    for (const Table::Column &column : table.columns)
        texts << column.heading;
    return texts;
}

} // namespace

TextReport::TextReport(QIODevice &out, int columns)
    : m_out(out)
    , m_columns(columns)
{
}

void TextReport::begin(const QString &, const QString &title)
{
    heading(title, QLatin1Char('='));
}

void TextReport::section(const QString &, const QString &title)
{
    line(QString());
    heading(title, QLatin1Char('-'));
}

void TextReport::sentence(const QString &text)
{
    paragraph(Wording::visible(text), 0);
}

void TextReport::table(const Table &table)
{
    QVector<QStringList> rows;
    for (const QVariantList &row : table.rows)
        rows << cellTexts(row);
    const QStringList lines = TextLayout::table(headings(table), rows, m_columns);
    for (const QString &text : lines)
        line(text);
}

void TextReport::finding(const Finding &finding)
{
    paragraph(QStringLiteral("%1%2 [%3]")
                  .arg(findingHead(finding), Wording::visible(finding.message), finding.rule),
              kIndent / 2);
    if (!finding.advice.isEmpty()) {
        const QString indent(kIndent, QLatin1Char(' '));
        paragraph(indent + (finding.forHr ? QStringLiteral("Tell HR: ") : QString())
                      + Wording::visible(finding.advice),
                  kIndent);
    }
}

void TextReport::fact(const QString &, const QString &label, const QVariant &value)
{
    paragraph(QStringLiteral("%1: %2").arg(label, Wording::visible(Wording::plain(value))),
              kIndent);
}

void TextReport::end(ExitStatus, const QString &verdict)
{
    line(QString());
    sentence(verdict);
}

void TextReport::heading(const QString &text, QChar underline)
{
    const QStringList lines = TextLayout::wrapped(Wording::visible(text), m_columns);
    int width = 0;
    for (const QString &part : lines) {
        line(part);
        width = qMax(width, part.size());
    }
    line(QString(width, underline));
}

void TextReport::paragraph(const QString &text, int indent)
{
    const QStringList lines = TextLayout::wrapped(text, m_columns, indent);
    for (const QString &part : lines)
        line(part);
}

void TextReport::line(const QString &text)
{
    m_out.write((text + QLatin1Char('\n')).toUtf8());
}
