#include "cli/text.h"
#include "mirovahrctl/comparison/comparedpeople.h"
#include "mirovahrctl/comparison/exportdifferences.h"
#include "mirovahrctl/diff/diffreport.h"
#include "mirovahrctl/diff/persondiff.h"
#include "mirovahrctl/export/namedexport.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/outputfile.h"
#include "mirovahrctl/program/progress.h"
#include "mirovahrctl/program/report.h"
#include "worker/boundedlinereader.h"

#include <QFile>

#include <limits>

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Compares two HR exports as the plugin reads them, and changes nothing. Reports who is new, "
    "leaves, returns or gets another cost centre, and for each field how many values changed, "
    "were emptied, or are misread by the plugin now.");

/// So many people of each list are shown without --all.
constexpr int kMostShown = 20;

class DiffRun {
public:
    DiffRun(const CommandLine &line, Report &report, Console &console)
        : m_line(line)
        , m_console(console)
        , m_report(report)
    {
    }

    ExitStatus run();

private:
    std::optional<ExitStatus> read(QFile &file, ComparedPeople::Side side);
    ExitStatus reportAll();
    ExitStatus reportPeople();

    const CommandLine &m_line;
    Console &m_console;
    Report &m_report;
    ComparedPeople m_people;
};

ExitStatus DiffRun::run()
{
    QFile before;
    QFile now;
    if (const auto end = NamedExport::open(m_line.argument(0), before, m_console))
        return *end;
    if (const auto end = NamedExport::open(m_line.argument(1), now, m_console))
        return *end;
    for (int i = 0; i < 2; ++i) {
        if (const auto end = refuseOverwriting(m_line.argument(i), {m_line.pagePath()}, m_console))
            return *end;
    }
    if (const auto end = read(before, ComparedPeople::Before))
        return *end;
    if (const auto end = read(now, ComparedPeople::Now))
        return *end;
    return m_line.isSet("person") ? reportPeople() : reportAll();
}

std::optional<ExitStatus> DiffRun::read(QFile &file, ComparedPeople::Side side)
{
    Progress progress(m_console, Text::tr("Reading the exports"));
    const qint64 size = file.size();
    BoundedLineReader reader(file);
    while (reader.next()) {
        m_people.add(side, reader.line());
        progress.update(side * size + file.pos(), 2 * size);
    }
    if (!reader.hasFailed())
        return std::nullopt;
    return NamedExport::failReading(m_line.argument(side), reader.errorString(), m_console);
}

ExitStatus DiffRun::reportAll()
{
    const ExportDifferences differences = ExportDifferences::of(m_people, QDate::currentDate());
    const int most = m_line.isSet("all") ? std::numeric_limits<int>::max() : kMostShown;
    m_report.begin(
        m_line.subcommand(),
        Text::tr("HR export %1 compared with %2").arg(m_line.argument(1), m_line.argument(0)));
    DiffReport report(m_people, differences, most, m_report);
    report.write();
    return m_report.conclude(report.verdict());
}

ExitStatus DiffRun::reportPeople()
{
    const QString id = m_line.value("person");
    const QVector<int> people = peopleNamed(m_people, id);
    if (people.isEmpty())
        return m_console.fail(ExitStatus::Usage,
                              Text::tr("Neither export has a person '%1'").arg(id));
    m_report.begin(m_line.subcommand(), Text::tr("Person %1 in two HR exports").arg(id));
    for (const int person : people)
        reportPerson(m_people, person, m_report);
    return m_report.conclude(ExitStatus::Fine, Text::tr("This is what the exports say."));
}

} // namespace

ExitStatus runDiff(const QStringList &arguments, Console &console)
{
    CommandLine line("diff", kDescription);
    line.addArgument(Text::tr("old"), Text::tr("The older export."));
    line.addArgument(Text::tr("new"), Text::tr("The newer export."));
    line.addOption("person", Text::tr("id"),
                   Text::tr("Show only what differs for one person: a payroll id such as 1234.1, a "
                            "personal number or a pid."));
    line.addFlag("all", Text::tr("Show all people of each list, not only the first 20."));
    line.addReportOptions(CommandLine::Page::Offered);
    return Report::run(line, arguments, console,
                       [&](Report &report) { return DiffRun(line, report, console).run(); });
}
