#include "mirovahrctl/report/textreport.h"

#include "cli/text.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/textlayout.h"
#include "mirovahrctl/report/wording.h"

#include <QIODevice>
#include <QStringList>

namespace {

using TextStyle::Style;

/// Of the lines below a finding's or a fact's first one.
constexpr int kIndent = 4;

// What an abbreviated section shows: so many findings, and cards until they fill so many lines.
constexpr int kMostFindings = 8;
constexpr int kMostCardLines = 10;

/// "line 12, DatumNastupu (1234.1 Jana Nováková): "; empty for a finding about the whole.
QString findingPlace(const Finding &finding)
{
    QStringList place;
    if (finding.line > 0)
        place << Text::tr("line %1").arg(finding.line);
    if (!finding.field.isEmpty())
        place << Wording::visible(finding.field);
    QString head = place.join(QStringLiteral(", "));
    const QString who = findingPerson(finding);
    if (!who.isEmpty())
        head += QStringLiteral(" (%1)").arg(Wording::visible(who));
    return head.isEmpty() ? head : head.trimmed() + QStringLiteral(": ");
}

QStringList cellTexts(const QVariantList &row)
{
    QStringList texts;
    for (const QVariant &cell : row)
        texts << Wording::visible(Wording::plain(cell));
    return texts;
}

/// "1234.1 Jana Malá: surname: Nováková → Malá; joins the branch Sklad."
QString cardText(const Card &card, const QStringList &parts)
{
    return Wording::visible(
        QStringLiteral("%1: %2.").arg(card.who, parts.join(QStringLiteral("; "))));
}

QStringList headings(const Table &table)
{
    QStringList texts;
    for (const Table::Column &column : table.columns)
        texts << column.heading;
    return texts;
}

} // namespace

TextReport::TextReport(QIODevice &out, int columns, bool isColoured)
    : m_out(out)
    , m_columns(columns)
    , m_isColoured(isColoured)
{
}

void TextReport::begin(const QString &, const QString &title)
{
    heading(title, QLatin1Char('='));
}

void TextReport::answer(const QString &verdict)
{
    m_isAnswered = true;
    line(QString());
    paragraph(Wording::visible(verdict), Style::Heading);
}

void TextReport::section(const QString &, const QString &title)
{
    endSection();
    m_heading = title;
    m_findings = 0;
    m_cardLines = 0;
}

void TextReport::sentence(const QString &text)
{
    beginContent();
    paragraph(Wording::visible(text), 0);
}

void TextReport::table(const Table &table)
{
    beginContent();
    QVector<QStringList> rows;
    for (const QVariantList &row : table.rows)
        rows << cellTexts(row);
    const QStringList lines = TextLayout::table(headings(table), rows, m_columns);
    for (const QString &text : lines)
        line(text);
}

void TextReport::card(const Card &card)
{
    if (isAbbreviated() && card.what.isEmpty())
        return;
    if (isAbbreviated() && m_cardLines >= kMostCardLines) {
        m_leftOut += card.leads ? 0 : 1;
        return;
    }
    beginContent();
    const QStringList parts = isAbbreviated() ? card.what : card.what + card.details;
    m_cardLines += paragraph(cardText(card, parts), kIndent);
}

void TextReport::finding(const Finding &finding)
{
    if (isAbbreviated() && m_findings == kMostFindings) {
        ++m_leftOut;
        return;
    }
    ++m_findings;
    beginContent();
    paragraph(QStringLiteral("%1%2: %3 [%4]")
                  .arg(findingPlace(finding), severity(finding.severity),
                       Wording::visible(finding.message), finding.rule),
              kIndent / 2);
    if (!finding.advice.isEmpty()) {
        const QString indent(kIndent, QLatin1Char(' '));
        const QString advice = Wording::visible(finding.advice);
        paragraph(indent + (finding.forHr ? Text::tr("Tell HR: %1").arg(advice) : advice), kIndent);
    }
    if (!finding.lineText.isEmpty() && finding.line != m_shownLine) {
        m_shownLine = finding.line;
        paragraph(QString(kIndent, QLatin1Char(' '))
                      + Text::tr("The line: %1").arg(Wording::visible(finding.lineText)),
                  kIndent);
    }
}

void TextReport::fact(const QString &, const QString &label, const QVariant &value)
{
    const QString text =
        QStringLiteral("%1: %2").arg(label, Wording::visible(Wording::plain(value)));
    if (isAbbreviated()) {
        m_facts += text;
        return;
    }
    beginContent();
    paragraph(text, kIndent);
}

void TextReport::end(ExitStatus status, const QString &verdict)
{
    endSection();
    if (m_isAnswered)
        return;
    line(QString());
    paragraph(Wording::visible(verdict), status == ExitStatus::Fine ? Style::Good : Style::Bad);
}

/// A section without content has no heading.
void TextReport::beginContent()
{
    if (m_heading.isEmpty())
        return;
    line(QString());
    heading(m_heading, QLatin1Char('-'));
    m_heading.clear();
}

void TextReport::endSection()
{
    if (!m_facts.isEmpty()) {
        beginContent();
        paragraph(m_facts.join(QStringLiteral("; ")) + QLatin1Char('.'), 0);
    }
    m_facts.clear();
    if (m_leftOut > 0)
        paragraph(Text::tr("… and %1 more: %2.").arg(Language::number(m_leftOut), m_hint), 0);
    m_leftOut = 0;
    m_heading.clear();
}

void TextReport::heading(const QString &text, QChar underline)
{
    const QStringList lines = TextLayout::wrapped(Wording::visible(text), m_columns);
    int width = 0;
    for (const QString &part : lines) {
        line(styled(part, Style::Heading));
        width = qMax(width, part.size());
    }
    line(QString(width, underline));
}

int TextReport::paragraph(const QString &text, int indent)
{
    const QStringList lines = TextLayout::wrapped(text, m_columns, indent);
    for (const QString &part : lines)
        line(part);
    return lines.size();
}

void TextReport::paragraph(const QString &text, Style style)
{
    const QStringList lines = TextLayout::wrapped(text, m_columns);
    for (const QString &part : lines)
        line(styled(part, style));
}

void TextReport::line(const QString &text)
{
    m_out.write((text + QLatin1Char('\n')).toUtf8());
}

QString TextReport::styled(const QString &text, Style style) const
{
    return m_isColoured ? TextStyle::styled(text, style) : text;
}

/// The word for it.
QString TextReport::severity(Severity severity) const
{
    const QString word = severityText(severity);
    switch (severity) {
    case Severity::Note:
        return word;
    case Severity::Warning:
        return styled(word, Style::Warning);
    case Severity::Error:
        return styled(word, Style::Bad);
    }
    Q_UNREACHABLE();
}
