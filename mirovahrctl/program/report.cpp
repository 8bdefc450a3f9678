#include "mirovahrctl/program/report.h"

#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/htmlreport.h"
#include "mirovahrctl/report/jsonreport.h"
#include "mirovahrctl/report/textreport.h"

Report::Report(const CommandLine &line, Console &console)
    : m_console(console)
    , m_page(line.pagePath())
    , m_main(console.json())
{
    if (m_main == nullptr) {
        m_text = std::make_unique<TextReport>(console.out(), console.terminal().columns,
                                              console.terminal().isColoured);
        m_main = m_text.get();
    }
    m_writers.push_back(m_main);
    if (!line.pagePath().isEmpty()) {
        m_html = std::make_unique<HtmlReport>(m_page);
        m_writers.push_back(m_html.get());
    }
}

Report::~Report() = default;

ExitStatus Report::run(CommandLine &line, const QStringList &arguments, Console &console,
                       const Work &work)
{
    if (const auto end = line.parse(arguments, console))
        return *end;
    Report report(line, console);
    if (const auto end = report.m_page.begin(console))
        return *end;
    return work(report);
}

void Report::begin(const QString &subcommand, const QString &title)
{
    for (ReportWriter *const writer : m_writers)
        writer->begin(subcommand, title);
}

void Report::answer(const QString &verdict)
{
    for (ReportWriter *const writer : m_writers)
        writer->answer(verdict);
}

void Report::section(const QString &id, const QString &heading)
{
    for (ReportWriter *const writer : m_writers)
        writer->section(id, heading);
}

void Report::sentence(const QString &text)
{
    for (ReportWriter *const writer : m_writers)
        writer->sentence(text);
}

void Report::table(const Table &table)
{
    for (ReportWriter *const writer : m_writers)
        writer->table(table);
}

void Report::card(const Card &card)
{
    for (ReportWriter *const writer : m_writers)
        writer->card(card);
}

void Report::data(const Table &table)
{
    for (ReportWriter *const writer : m_writers)
        writer->data(table);
}

void Report::finding(const Finding &finding)
{
    m_hasSeriousFindings = m_hasSeriousFindings || finding.severity != Severity::Note;
    for (ReportWriter *const writer : m_writers)
        writer->finding(finding);
}

void Report::fact(const QString &id, const QString &label, const QVariant &value)
{
    for (ReportWriter *const writer : m_writers)
        writer->fact(id, label, value);
}

void Report::datum(const QString &id, const QVariant &value)
{
    for (ReportWriter *const writer : m_writers)
        writer->datum(id, value);
}

void Report::end(ExitStatus status, const QString &verdict)
{
    for (ReportWriter *const writer : m_writers)
        writer->end(status, verdict);
}

void Report::abbreviateText(const QString &hint)
{
    if (m_text)
        m_text->abbreviate(hint);
}

ExitStatus Report::findingsStatus() const
{
    return m_hasSeriousFindings ? ExitStatus::Findings : ExitStatus::Fine;
}

ExitStatus Report::conclude(ExitStatus status, const QString &verdict)
{
    // The page first: JSON has the reason in place of the verdict when it cannot be written.
    if (m_html)
        m_html->end(status, verdict);
    if (const auto end = m_page.finish(m_console))
        return *end;
    m_main->end(status, verdict);
    return status;
}
