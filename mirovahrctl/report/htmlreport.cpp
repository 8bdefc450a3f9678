#include "mirovahrctl/report/htmlreport.h"

#include "cli/text.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/wording.h"

#include <QDateTime>
#include <QIODevice>

#include <algorithm>
#include <iterator>

namespace {

// The policy ensures that the page fetches nothing, whatever text of a file is in it.
constexpr char kHead[] = R"(<!DOCTYPE html>
<html lang="%1">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'unsafe-inline'">
)";

constexpr char kStyle[] = R"(<style>
:root { color-scheme: light; }
body { font: 16px/1.45 system-ui, "DejaVu Sans", sans-serif; color: #1c2430; background: #fff;
       max-width: 75rem; margin: 0 auto; padding: 1rem; }
h1 { font-size: 1.5rem; margin: 0 0 .5rem; overflow-wrap: anywhere; }
h2 { font-size: 1.2rem; margin: 2rem 0 .5rem; border-bottom: 2px solid #d5dbe3; }
p { margin: .4rem 0; overflow-wrap: anywhere; }
.verdict { font-weight: 600; padding: .6rem .8rem; border-left: .4rem solid #b3261e;
           background: #fbeceb; }
.verdict.fine { border-color: #1d6b3a; background: #e9f5ed; }
dl { display: flex; flex-wrap: wrap; gap: .3rem 1.5rem; margin: .8rem 0; }
dl div { display: flex; gap: .4rem; }
dt { color: #50596a; }
dd { margin: 0; font-weight: 600; overflow-wrap: anywhere; }
table { border-collapse: collapse; width: 100%; margin: .6rem 0; }
th, td { text-align: left; vertical-align: top; padding: .35rem .5rem;
         border-bottom: 1px solid #d5dbe3; overflow-wrap: break-word; }
th { background: #eef1f5; white-space: nowrap; }
td:last-child, td.who { overflow-wrap: anywhere; }
th.who { min-width: 8rem; }
.findings th:last-child { width: 50%; }
.findings th:nth-child(2):last-child { width: 100%; }
.error { color: #b3261e; font-weight: 600; }
.warning { color: #8a5300; font-weight: 600; }
.note { color: #50596a; }
.advice { color: #33415c; }
.line { font: .85rem/1.4 "DejaVu Sans Mono", monospace; background: #f6f8fa; padding: .2rem .4rem; }
article { display: grid; grid-template-columns: 17rem 1fr; gap: 0 1rem; padding: .35rem .5rem;
          border-bottom: 1px solid #d5dbe3; }
.lead { background: #eef1f5; }
h3 { font-size: 1rem; margin: 0; grid-row: span 2; overflow-wrap: anywhere; }
ul { margin: 0; padding-left: 1.1rem; }
li, details { overflow-wrap: anywhere; }
details { grid-column: 2; color: #50596a; font-size: .9rem; }
summary { cursor: pointer; }
footer { margin-top: 2rem; color: #50596a; font-size: .85rem; }
@media screen and (max-width: 44rem) {
  thead { display: none; }
  table, tbody, tr, td { display: block; }
  tr { border: 1px solid #d5dbe3; border-radius: .4rem; margin: .6rem 0; padding: .2rem 0; }
  td { border: 0; padding: .2rem .6rem; overflow-wrap: anywhere; }
  td:empty { display: none; }
  article { display: block; padding: .5rem 0; }
  td[data-label]::before { content: attr(data-label) ": "; color: #50596a; font-weight: 400; }
}
@media print {
  body { font-size: 10pt; max-width: none; padding: 0; }
  thead { display: table-header-group; }
  tr, article { break-inside: avoid; }
  details:not([open]) { display: none; }
  h2 { break-after: avoid; }
}
</style>
)";

QString html(const QString &text)
{
    return Wording::visible(text).toHtmlEscaped();
}

QString cell(const QString &label, const QString &content, const char *attributes = "")
{
    return QStringLiteral("<td data-label=\"%1\"%2>%3</td>")
        .arg(html(label), QLatin1String(attributes), content);
}

struct FindingColumn {
    const char *heading;
    const char *attributes; ///< of its cells
};

constexpr FindingColumn kFindingColumns[] = {
    {QT_TRANSLATE_NOOP("Text", "Line"), ""},
    {QT_TRANSLATE_NOOP("Text", "Who"), " class=\"who\""},
    {QT_TRANSLATE_NOOP("Text", "Field"), ""},
    {QT_TRANSLATE_NOOP("Text", "Result"), ""},
    {QT_TRANSLATE_NOOP("Text", "What is wrong"), ""},
};

QString placeOf(const Finding &finding)
{
    return finding.line > 0 ? QString::number(finding.line) : QString();
}

QString messageOf(const Finding &finding)
{
    QString text = html(finding.message);
    if (!finding.advice.isEmpty())
        text += QStringLiteral("<p class=\"advice\">%1</p>").arg(html(finding.advice));
    return text;
}

/// The line itself, unless it was shown with another finding.
QString lineOf(const Finding &finding, qint64 shown)
{
    if (finding.lineText.isEmpty() || finding.line == shown)
        return QString();
    return QStringLiteral("<p class=\"line\">%1</p>").arg(html(finding.lineText));
}

QString severityOf(const Finding &finding)
{
    const QString word = severityWord(finding.severity);
    const QString text = finding.dropped ? Text::tr("dropped") : severityText(finding.severity);
    return QStringLiteral("<span class=\"%1\">%2</span>").arg(word, text);
}

/// What is in each of the columns.
QStringList cellsOf(const Finding &finding, qint64 shownLine)
{
    return {placeOf(finding), html(findingPerson(finding)), html(finding.field),
            severityOf(finding), messageOf(finding) + lineOf(finding, shownLine)};
}

/// The columns in which a row has something: most findings about a database have neither a line nor
/// a person.
QVector<int> usedColumns(const QVector<QStringList> &rows)
{
    QVector<int> used;
    for (int column = 0; column < int(std::size(kFindingColumns)); ++column) {
        if (std::any_of(rows.cbegin(), rows.cend(),
                        [column](const QStringList &row) { return !row.at(column).isEmpty(); }))
            used.append(column);
    }
    return used;
}

QString findingsTable(const QVector<QStringList> &rows)
{
    const QVector<int> columns = usedColumns(rows);
    QString text = QStringLiteral("<table class=\"findings\">\n<thead><tr>");
    for (const int column : columns) {
        const FindingColumn &head = kFindingColumns[column];
        text += QStringLiteral("<th%1>%2</th>")
                    .arg(QLatin1String(head.attributes), html(Text::tr(head.heading)));
    }
    text += QStringLiteral("</tr></thead>\n<tbody>\n");
    for (const QStringList &row : rows) {
        text += QStringLiteral("<tr>");
        for (const int column : columns) {
            const FindingColumn &head = kFindingColumns[column];
            text += cell(Text::tr(head.heading), row.at(column), head.attributes);
        }
        text += QStringLiteral("</tr>\n");
    }
    return text + QStringLiteral("</tbody>\n</table>\n");
}

QString tableHead(const Table &table)
{
    QString text = QStringLiteral("<table>\n<thead><tr>");
    for (const Table::Column &column : table.columns)
        text += QStringLiteral("<th>%1</th>").arg(html(column.heading));
    return text + QStringLiteral("</tr></thead>\n<tbody>\n");
}

QString tableRow(const Table &table, const QVariantList &row)
{
    QString text = QStringLiteral("<tr>");
    for (int i = 0; i < table.columns.size(); ++i)
        text += cell(table.columns.at(i).heading, html(Wording::plain(row.at(i))));
    return text + QStringLiteral("</tr>\n");
}

/// Without the end tags that HTML lets a page leave out: there may be thousands of lists.
QString list(const QStringList &items)
{
    if (items.isEmpty())
        return QString();
    QString text = QStringLiteral("<ul>");
    for (const QString &item : items)
        text += QStringLiteral("<li>") + html(item);
    return text + QStringLiteral("</ul>");
}

} // namespace

HtmlReport::HtmlReport(QIODevice &out)
    : m_out(out)
{
}

void HtmlReport::begin(const QString &, const QString &title)
{
    m_title = title;
}

void HtmlReport::section(const QString &id, const QString &heading)
{
    endSection();
    m_opening = QStringLiteral("<section id=\"%1\">\n<h2>%2</h2>\n").arg(html(id), html(heading));
}

void HtmlReport::sentence(const QString &text)
{
    endFindings();
    beginContent();
    m_sections += QStringLiteral("<p>%1</p>\n").arg(html(text));
}

void HtmlReport::table(const Table &table)
{
    endFindings();
    beginContent();
    m_sections += tableHead(table);
    for (const QVariantList &row : table.rows)
        m_sections += tableRow(table, row);
    m_sections += QStringLiteral("</tbody>\n</table>\n");
}

void HtmlReport::card(const Card &card)
{
    endFindings();
    beginContent();
    m_sections +=
        card.leads ? QStringLiteral("<article class=\"lead\">") : QStringLiteral("<article>");
    m_sections += QStringLiteral("<h3>%1</h3>\n%2").arg(html(card.who), list(card.what));
    if (!card.details.isEmpty()) {
        m_sections += QStringLiteral("<details><summary>%1</summary>%2</details>")
                          .arg(html(Text::tr("Details")), list(card.details));
    }
    m_sections += QStringLiteral("</article>\n");
}

void HtmlReport::finding(const Finding &finding)
{
    beginContent();
    if (m_findingCount == kMostFindings) {
        ++m_leftOut;
        return;
    }
    ++m_findingCount;
    m_findings.append(cellsOf(finding, m_shownLine));
    if (!finding.lineText.isEmpty())
        m_shownLine = finding.line;
}

void HtmlReport::fact(const QString &, const QString &label, const QVariant &value)
{
    const bool isInSection = m_inSection || !m_opening.isEmpty();
    QString &facts = m_isAnswered && isInSection ? m_sectionFacts : m_facts;
    facts += QStringLiteral("<div><dt>%1:</dt><dd>%2</dd></div>\n")
                 .arg(html(label), html(Wording::plain(value)));
}

void HtmlReport::end(ExitStatus status, const QString &verdict)
{
    endSection();
    const QString origin =
        Text::tr("Written by mirovahrctl %1 on %2.")
            .arg(QStringLiteral(MIROVAHR_VERSION), Moment::text(QDateTime::currentDateTime()));
    const QString page =
        QStringLiteral("<title>%1</title>\n%2</head>\n<body>\n<header>\n<h1>%1</h1>\n"
                       "<p class=\"verdict %3\">%4</p>\n<dl>\n%5</dl>\n</header>\n<main>\n%6"
                       "</main>\n<footer><p>%7</p></footer>\n</body>\n</html>\n")
            .arg(html(m_title), QLatin1String(kStyle), exitStatusWord(status), html(verdict),
                 m_facts, m_sections, html(origin));
    m_out.write(QString::fromLatin1(kHead).arg(Language::code()).toUtf8());
    m_out.write(page.toUtf8());
}

void HtmlReport::beginContent()
{
    if (m_opening.isEmpty())
        return;
    m_sections += m_opening;
    m_opening.clear();
    m_inSection = true;
}

void HtmlReport::endSection()
{
    endFindings();
    writeLeftOut();
    if (!m_sectionFacts.isEmpty()) {
        beginContent();
        m_sections += QStringLiteral("<dl>\n%1</dl>\n").arg(m_sectionFacts);
    }
    m_sectionFacts.clear();
    if (m_inSection)
        m_sections += QStringLiteral("</section>\n");
    m_inSection = false;
    m_opening.clear();
}

void HtmlReport::endFindings()
{
    if (!m_findings.isEmpty())
        m_sections += findingsTable(m_findings);
    m_findings.clear();
}

void HtmlReport::writeLeftOut()
{
    if (m_leftOut == 0)
        return;
    m_sections += QStringLiteral("<p>%1</p>\n")
                      .arg(html(Text::tr("Not shown on this page: %Ln more finding(s).", nullptr,
                                         Language::count(m_leftOut))));
    m_leftOut = 0;
}
