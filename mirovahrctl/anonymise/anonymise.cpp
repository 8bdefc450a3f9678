#include "cli/text.h"
#include "mirovahrctl/anonymise/otherexport.h"
#include "mirovahrctl/export/namedexport.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/outputfile.h"
#include "mirovahrctl/program/progress.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/language.h"

#include <QFile>
#include <QRandomGenerator>

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Writes an HR export again for a support case: with other texts, phone numbers, personal "
    "numbers and cost centres, but the same people and supervisors, and every mistake where it "
    "was. Dates, relationships, calendars, codes and vacation balances stay: the plugin decides by "
    "them.");

class AnonymiseRun {
public:
    AnonymiseRun(const CommandLine &line, Report &report, Console &console)
        : m_line(line)
        , m_console(console)
        , m_report(report)
        , m_path(line.argument(0))
        , m_output(line.value("output"))
    {
    }

    ExitStatus run();

private:
    std::optional<ExitStatus> prepare();
    std::optional<ExitStatus> write(OtherExport &other);
    ExitStatus report(const OtherExport &other);

    const CommandLine &m_line;
    Console &m_console;
    Report &m_report;
    const QString m_path;
    QFile m_file;
    OutputFile m_output;
};

ExitStatus AnonymiseRun::run()
{
    if (const auto end = prepare())
        return *end;
    // The generator of the operating system: from the numbers of another one, its others could be
    // computed.
    OtherExport other(m_file, *QRandomGenerator::system());
    if (const auto end = write(other))
        return *end;
    if (const int kept = other.countKept(); kept > 0) {
        m_console.warn(Text::tr("%Ln personal number(s) stay as they are: with other numbers, "
                                "other people would have the same pid",
                                nullptr, kept));
    }
    return m_output.fileName().isEmpty() ? ExitStatus::Fine : report(other);
}

std::optional<ExitStatus> AnonymiseRun::prepare()
{
    if (m_line.isSet("json") && m_output.fileName().isEmpty()) {
        return m_console.fail(
            ExitStatus::Usage,
            Text::tr("--json needs --output: the export would follow on standard output"));
    }
    if (const auto end = NamedExport::open(m_path, m_file, m_console))
        return end;
    if (const auto end = refuseOverwriting(m_path, {m_output.fileName()}, m_console))
        return end;
    if (const auto end = m_output.begin(m_console))
        return end;
    if (m_output.isOpen())
        m_output.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    return std::nullopt;
}

std::optional<ExitStatus> AnonymiseRun::write(OtherExport &other)
{
    Progress progress(m_console, Text::tr("Anonymising the export"));
    other.setProgressListener(
        [&progress](qint64 done, qint64 total) { progress.update(done, total); });
    if (!other.write(m_output.isOpen() ? m_output : m_console.out()))
        return NamedExport::failReading(m_path, other.errorString(), m_console);
    return m_output.finish(m_console);
}

ExitStatus AnonymiseRun::report(const OtherExport &other)
{
    m_report.begin(m_line.subcommand(), Text::tr("HR export %1").arg(m_path));
    m_report.section(QStringLiteral("summary"), Text::tr("Summary"));
    m_report.sentence(Text::tr(
        "All texts, phone numbers, personal numbers and cost centres were replaced. Dates, "
        "relationships, calendars, codes and vacation balances are those of the export: whoever "
        "knows the people may recognise somebody by them."));
    if (const qint64 broken = other.countBroken(); broken > 0) {
        m_report.sentence(
            Text::tr("%Ln line(s) have too few or too many fields: there all dates and "
                     "all numbers below 1000 stay, whatever they are.",
                     nullptr, Language::count(broken)));
    }
    m_report.fact(QStringLiteral("lines"), Text::tr("Lines"), other.countLines());
    m_report.fact(QStringLiteral("keptNumbers"), Text::tr("Personal numbers that stay"),
                  other.countKept());
    return m_report.conclude(
        Text::tr("The export is in %1, with other names and numbers.").arg(m_output.fileName()));
}

} // namespace

ExitStatus runAnonymise(const QStringList &arguments, Console &console)
{
    CommandLine line("anonymise", kDescription);
    line.addArgument(Text::tr("file"), Text::tr("The export."));
    line.addOption("output", Text::tr("file"),
                   Text::tr("Write to this file, which only its owner may read, and report what is "
                            "in it; otherwise to standard output."));
    line.addReportOptions(CommandLine::Page::NotOffered);
    return Report::run(line, arguments, console,
                       [&](Report &report) { return AnonymiseRun(line, report, console).run(); });
}
