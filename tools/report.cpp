#include "tools/report.h"

#include "tools/commandline.h"
#include "tools/console.h"
#include "tools/finding.h"
#include "tools/htmlreport.h"
#include "tools/jsonreport.h"
#include "tools/textreport.h"

Report::Report(const CommandLine &line, Console &console)
    : m_console(console)
    , m_page(line.pagePath())
{
    if (line.isSet("json"))
        m_writers.push_back(std::make_unique<JsonReport>(console.out()));
    else
        m_writers.push_back(std::make_unique<TextReport>(console.out()));
    if (!line.pagePath().isEmpty())
        m_writers.push_back(std::make_unique<HtmlReport>(m_page));
}

std::optional<ExitStatus> Report::open()
{
    if (m_page.fileName().isEmpty() || m_page.open(QIODevice::WriteOnly))
        return std::nullopt;
    return failPage();
}

void Report::begin(const QString &subcommand, const QString &title)
{
    for (const auto &writer : m_writers)
        writer->begin(subcommand, title);
}

void Report::section(const QString &id, const QString &heading)
{
    for (const auto &writer : m_writers)
        writer->section(id, heading);
}

void Report::sentence(const QString &text)
{
    for (const auto &writer : m_writers)
        writer->sentence(text);
}

void Report::table(const Table &table)
{
    for (const auto &writer : m_writers)
        writer->table(table);
}

void Report::finding(const Finding &finding)
{
    m_hasSeriousFindings = m_hasSeriousFindings || finding.severity != Severity::Note;
    for (const auto &writer : m_writers)
        writer->finding(finding);
}

void Report::fact(const QString &id, const QString &label, const QVariant &value)
{
    for (const auto &writer : m_writers)
        writer->fact(id, label, value);
}

void Report::end(ExitStatus status, const QString &verdict)
{
    for (const auto &writer : m_writers)
        writer->end(status, verdict);
}

ExitStatus Report::findingsStatus() const
{
    return m_hasSeriousFindings ? ExitStatus::Findings : ExitStatus::Fine;
}

ExitStatus Report::conclude(ExitStatus status, const QString &verdict)
{
    end(status, verdict);
    if (!m_page.isOpen() || m_page.commit())
        return status;
    return failPage();
}

ExitStatus Report::failPage() const
{
    return m_console.fail(ExitStatus::Usage,
                          QStringLiteral("The page '%1' cannot be written: %2")
                              .arg(m_page.fileName(), m_page.errorString()));
}
