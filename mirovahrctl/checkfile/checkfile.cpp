#include "cli/text.h"
#include "mirovahrctl/export/exportscan.h"
#include "mirovahrctl/export/namedexport.h"
#include "mirovahrctl/export/rejectswriter.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/outputfile.h"
#include "mirovahrctl/program/progress.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/site/sitedatabase.h"

#include <QFile>
#include <QFileInfo>
#include <QMap>

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Reads an HR export exactly as the plugin does, and changes nothing. Reports every line that "
    "the plugin would drop, every field that it would misread, people who appear twice or have the "
    "same number, and texts that break a statement. With a database it also reports texts that are "
    "longer than its columns.");

class CheckFileRun {
public:
    CheckFileRun(const CommandLine &line, Report &report, Console &console);

    ExitStatus run();

private:
    std::optional<ExitStatus> prepare();
    std::optional<ExitStatus> readSite();
    bool check(ExportScan &check);
    void report(const CheckedLine &line);
    void report(const Finding &finding);
    void conclude(const ExportScan &check);
    ExitStatus commit(const ExportScan::Counts &counts);

    const CommandLine &m_line;
    Console &m_console;
    Report &m_report;
    const QString m_path;
    QFile m_file;
    OutputFile m_rejectsFile;
    RejectsWriter m_rejects;
    ColumnWidths m_widths;
    SqlTexts::Route m_texts;
    QMap<QString, qint64> m_countByRule;
};

Table ruleTable(const QMap<QString, qint64> &countByRule)
{
    Table table{QStringLiteral("rules"),
                {{QStringLiteral("rule"), Text::tr("Rule")},
                 {QStringLiteral("count"), Text::tr("Findings")}},
                {}};
    for (auto rule = countByRule.cbegin(); rule != countByRule.cend(); ++rule)
        table.rows.append({rule.key(), rule.value()});
    return table;
}

QString verdict(const ExportScan::Counts &counts, ExitStatus status)
{
    if (status == ExitStatus::Fine)
        return Text::tr("The export is fine.");
    if (counts.rejected == 0) {
        return counts.records == 0
            ? Text::tr("The file contains no people.")
            : Text::tr("Everybody in the export arrives, but there are findings.");
    }
    return Text::tr("The export has %Ln line(s) with errors; the plugin drops %1 of them.", nullptr,
                    Language::count(counts.rejected))
        .arg(Language::number(counts.dropped));
}

CheckFileRun::CheckFileRun(const CommandLine &line, Report &report, Console &console)
    : m_line(line)
    , m_console(console)
    , m_report(report)
    , m_path(line.argument(0))
    , m_rejectsFile(line.value("rejects"))
    , m_rejects(m_rejectsFile, QFileInfo(m_path).fileName())
{
}

ExitStatus CheckFileRun::run()
{
    if (const auto end = prepare())
        return *end;
    ExportScan exportCheck(m_file, m_widths, m_texts);
    m_report.begin(m_line.subcommand(), Text::tr("HR export %1").arg(m_path));
    if (!check(exportCheck))
        return NamedExport::failReading(m_path, exportCheck.errorString(), m_console);
    conclude(exportCheck);
    return commit(exportCheck.counts());
}

std::optional<ExitStatus> CheckFileRun::prepare()
{
    if (const auto end = NamedExport::open(m_path, m_file, m_console))
        return end;
    if (const auto end =
            refuseOverwriting(m_path, {m_rejectsFile.fileName(), m_line.pagePath()}, m_console))
        return end;
    if (const auto end = m_rejectsFile.begin(m_console))
        return end;
    if (m_rejectsFile.isOpen())
        m_rejects.begin();
    return readSite();
}

std::optional<ExitStatus> CheckFileRun::readSite()
{
    if (!m_line.namesDatabase())
        return std::nullopt;
    SiteDatabase site;
    if (const auto end = site.open(m_line, DatabaseAccess::ReadOnly, m_console))
        return end;
    QString error;
    m_widths = readColumnWidths(site.sql(), error);
    if (m_widths.isEmpty())
        return m_console.fail(ExitStatus::ContractBroken, error);
    const auto backslash = readBackslash(site.sql());
    if (!backslash)
        return m_console.fail(ExitStatus::NoDatabase, site.sql().failure());
    m_texts.server = *backslash;
    return std::nullopt;
}

bool CheckFileRun::check(ExportScan &check)
{
    Progress progress(m_console, Text::tr("Checking the export"));
    check.setProgressListener(
        [&progress](qint64 done, qint64 total) { progress.update(done, total); });
    return check.run([this](const CheckedLine &line) { report(line); });
}

void CheckFileRun::report(const CheckedLine &line)
{
    for (const Finding &finding : line.findings)
        report(finding);
    if (m_rejectsFile.isOpen() && (line.isRejected() || line.hasWarnings()))
        m_rejects.add(line);
}

void CheckFileRun::report(const Finding &finding)
{
    if (m_countByRule.isEmpty())
        m_report.section(QStringLiteral("findings"), Text::tr("Findings"));
    ++m_countByRule[finding.rule];
    m_report.finding(finding);
}

void CheckFileRun::conclude(const ExportScan &check)
{
    const QVector<Finding> findings = check.fileFindings();
    for (const Finding &finding : findings)
        report(finding);
    m_report.section(QStringLiteral("summary"), Text::tr("Summary"));
    if (!m_countByRule.isEmpty())
        m_report.table(ruleTable(m_countByRule));
    const ExportScan::Counts &counts = check.counts();
    m_report.fact(QStringLiteral("lines"), Text::tr("Lines"), counts.lines);
    m_report.fact(QStringLiteral("records"), Text::tr("Read as people"), counts.records);
    m_report.fact(QStringLiteral("dropped"), Text::tr("Dropped by the plugin"), counts.dropped);
    m_report.fact(QStringLiteral("rejected"), Text::tr("Lines with errors"), counts.rejected);
}

ExitStatus CheckFileRun::commit(const ExportScan::Counts &counts)
{
    if (m_rejectsFile.isOpen())
        m_rejects.end();
    if (const auto end = m_rejectsFile.finish(m_console))
        return *end;
    const ExitStatus status = m_report.findingsStatus();
    return m_report.conclude(status, verdict(counts, status));
}

} // namespace

ExitStatus runCheckFile(const QStringList &arguments, Console &console)
{
    CommandLine line("check-file", kDescription);
    line.addArgument(Text::tr("file"), Text::tr("The export."));
    line.addOption("rejects", Text::tr("file"),
                   Text::tr("Also write the lines with errors or warnings into a file, with the "
                            "reasons, to send to HR."));
    line.addReportOptions(CommandLine::Page::Offered);
    line.addDatabaseOptions();
    return Report::run(line, arguments, console,
                       [&](Report &report) { return CheckFileRun(line, report, console).run(); });
}
