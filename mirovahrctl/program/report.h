#pragma once

#include "mirovahrctl/program/outputfile.h"
#include "mirovahrctl/report/reportwriter.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class CommandLine;
class Console;
class TextReport;

/// The report of a subcommand in every format that its command line selects: text or JSON on the
/// console, and the page of --html.
class Report : public ReportWriter {
public:
    /// Writes the report of a subcommand and returns the status to end with.
    using Work = std::function<ExitStatus(Report &report)>;

    ~Report() override;

    /// The course of a subcommand: parses its command line, opens the report that it selects, and
    /// runs \a work. Ends without it when only the help is requested, or when the command line or
    /// the page cannot be used: then the error was printed.
    static ExitStatus run(CommandLine &line, const QStringList &arguments, Console &console,
                          const Work &work);

    void begin(const QString &subcommand, const QString &title) override;
    void answer(const QString &verdict) override;
    void section(const QString &id, const QString &heading) override;
    void sentence(const QString &text) override;
    void table(const Table &table) override;
    void card(const Card &card) override;
    void data(const Table &table) override;
    /// Also counts for findingsStatus().
    void finding(const Finding &finding) override;
    void fact(const QString &id, const QString &label, const QVariant &value) override;
    void datum(const QString &id, const QVariant &value) override;
    void end(ExitStatus status, const QString &verdict) override;

    /// Whether what is for scripts only is written: data() and datum().
    bool isForScripts() const { return m_text == nullptr; }

    /// As TextReport::abbreviate(), if the console wants text.
    void abbreviateText(const QString &hint);

    /// Findings after a warning or an error, otherwise Fine.
    ExitStatus findingsStatus() const;

    /// Ends the report and saves the page. Returns the status to end with: the given one, or Usage
    /// when the page could not be written, and the error was printed.
    ExitStatus conclude(ExitStatus status, const QString &verdict);
    /// The same with findingsStatus().
    ExitStatus conclude(const QString &verdict) { return conclude(findingsStatus(), verdict); }

private:
    Report(const CommandLine &line, Console &console);

    Console &m_console;
    OutputFile m_page;
    std::unique_ptr<TextReport> m_text; ///< null when the console wants JSON
    std::unique_ptr<ReportWriter> m_html; ///< null without a page
    ReportWriter *m_main; ///< the text, or the console's JSON
    std::vector<ReportWriter *> m_writers; ///< all of them
    bool m_hasSeriousFindings = false;
};
