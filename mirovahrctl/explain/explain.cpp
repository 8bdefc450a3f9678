#include "cli/text.h"
#include "mirovahrctl/explain/peoplesearch.h"
#include "mirovahrctl/explain/personexplanation.h"
#include "mirovahrctl/explain/personid.h"
#include "mirovahrctl/explain/personlines.h"
#include "mirovahrctl/export/namedexport.h"
#include "mirovahrctl/pluginside/forceflag.h"
#include "mirovahrctl/pluginside/pluginview.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/outputfile.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/site/midnights.h"
#include "mirovahrctl/site/sitedatabase.h"

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Explains why a person did not arrive, or not as expected: how the plugin reads the person's "
    "line in the export, what the database holds, and what each step of a synchronisation does "
    "with the two, in the order of the plugin's decisions. Changes nothing.\n\n"
    "PERSON is a payroll id such as 1234.1, a personal number, a pid, or a name, such as novakova, "
    "whose capitals and accents do not matter. Several matches are listed.");

class ExplainRun {
public:
    ExplainRun(const CommandLine &line, Report &report, Console &console)
        : m_line(line)
        , m_console(console)
        , m_report(report)
    {
    }

    ExitStatus run();

private:
    std::optional<ExitStatus> prepare();
    std::optional<ExitStatus> readPerson();
    std::optional<ExitStatus> openExport();
    ExitStatus answer(SqlSession &site);
    std::optional<ExitStatus> readTexts(SqlSession &site);
    std::optional<ExitStatus> search(SqlSession &site);
    ExitStatus explain(const SqlSession &site);
    std::optional<ExitStatus> readExport(SqlSession &site);
    bool hasExport() const { return m_source.file.source() != SiteExport::Source::None; }
    ExitStatus failExport(const QString &error);

    const CommandLine &m_line;
    Console &m_console;
    Report &m_report;
    std::optional<PersonId> m_person;
    std::optional<PeopleSearch> m_search; ///< when there is no person yet
    ExplainedSource m_source;
    std::optional<PersonLines> m_lines;
};

ExitStatus ExplainRun::run()
{
    if (const auto end = prepare())
        return *end;
    SiteDatabase site;
    if (const auto end = site.open(m_line, DatabaseAccess::ReadOnly, m_console))
        return *end;
    const QString disagreement = Midnights::disagreement(site.sql());
    return disagreement.isEmpty() ? answer(site.sql())
                                  : m_console.fail(ExitStatus::Usage, disagreement);
}

std::optional<ExitStatus> ExplainRun::prepare()
{
    if (const auto end = readPerson())
        return end;
    if (const auto end = m_source.configuration.read(m_line, m_console))
        return end;
    return openExport();
}

std::optional<ExitStatus> ExplainRun::readPerson()
{
    const QString text = m_line.argument(0);
    m_person = PersonId::parse(text);
    if (!m_person)
        m_search = PeopleSearch::parse(text);
    if (m_person || m_search)
        return std::nullopt;
    return m_console.fail(
        ExitStatus::Usage,
        Text::tr("'%1' is neither a payroll id such as 1234.1, nor a number, nor a name")
            .arg(text));
}

std::optional<ExitStatus> ExplainRun::openExport()
{
    SiteExport &file = m_source.file;
    if (!file.open(m_line.argument(1), m_line.value("gate-folder"), m_source.configuration.values(),
                   SiteExport::Preference::ImportFile))
        return m_console.fail(ExitStatus::Usage, file.errorString());
    return hasExport() ? refuseOverwriting(file.path(), {m_line.pagePath()}, m_console)
                       : std::nullopt;
}

ExitStatus ExplainRun::answer(SqlSession &site)
{
    if (const auto end = readTexts(site))
        return *end;
    if (m_search) {
        if (const auto end = search(site))
            return *end;
    }
    if (const auto end = readExport(site))
        return *end;
    return explain(site);
}

std::optional<ExitStatus> ExplainRun::readTexts(SqlSession &site)
{
    const auto backslash = readBackslash(site);
    if (!backslash)
        return m_console.fail(ExitStatus::NoDatabase, site.failure());
    m_source.texts = {m_source.file.gateTexts(), *backslash};
    return std::nullopt;
}

/// Finds the person; ends with a list unless it is exactly one.
std::optional<ExitStatus> ExplainRun::search(SqlSession &site)
{
    if (hasExport() && !m_search->searchExport(m_source.file.file(), m_source.texts, m_console))
        return failExport(m_search->errorString());
    m_search->searchDatabase(site);
    if (site.failed())
        return m_console.fail(ExitStatus::ContractBroken, site.failure());
    const QVector<FoundPerson> people = m_search->people();
    if (people.size() == 1)
        m_person = people.first().person();
    if (m_person)
        return std::nullopt;
    m_report.begin(m_line.subcommand(), Text::tr("Who is %1?").arg(m_search->text()));
    const QString verdict = m_search->reportPeople(m_report);
    return m_report.conclude(verdict);
}

ExitStatus ExplainRun::explain(const SqlSession &site)
{
    PluginView view;
    const auto failView = [&] {
        return m_console.fail(view.isConnected() ? ExitStatus::ContractBroken
                                                 : ExitStatus::NoDatabase,
                              Text::tr("The database cannot be used: %1").arg(view.errorString()));
    };
    if (!view.open(site.database(), m_source.configuration.values()))
        return failView();
    ForceFlag flag(view.database());
    const auto forced = flag.isSet();
    if (!forced)
        return m_console.fail(ExitStatus::ContractBroken, flag.errorString());
    m_source.isForced = *forced;
    PersonExplanation explanation(*m_person, m_source, view);
    explanation.assess(m_lines ? &*m_lines : nullptr);
    if (!view.errorString().isEmpty())
        return failView();
    m_report.begin(m_line.subcommand(), Text::tr("What happens to %1").arg(m_person->name()));
    const QString verdict = explanation.writeTo(m_report);
    return m_report.conclude(verdict);
}

std::optional<ExitStatus> ExplainRun::readExport(SqlSession &site)
{
    if (!hasExport())
        return std::nullopt;
    QString error;
    const ColumnWidths widths = readColumnWidths(site, error);
    if (widths.isEmpty())
        return m_console.fail(ExitStatus::ContractBroken, error);
    m_lines.emplace(*m_person);
    if (m_lines->find(m_source.file.file(), widths, m_source.texts, m_console))
        return std::nullopt;
    return failExport(m_lines->errorString());
}

ExitStatus ExplainRun::failExport(const QString &error)
{
    return NamedExport::failReading(m_source.file.path(), error, m_console);
}

} // namespace

ExitStatus runExplain(const QStringList &arguments, Console &console)
{
    CommandLine line("explain", kDescription);
    line.addArgument(Text::tr("person"),
                     Text::tr("A payroll id such as 1234.1, a personal number, a pid, or a name."));
    line.addOptionalArgument(Text::tr("file"),
                             Text::tr("The export; importFile of the INI file by default."));
    line.addOption("gate-folder", Text::tr("folder"),
                   Text::tr("The gate's own folder, whose last admitted file is used when "
                            "importFile is gone; by default that of the gate in syncCommand."));
    PluginConfiguration::addTo(line);
    line.addReportOptions(CommandLine::Page::Offered);
    line.addDatabaseOptions();
    return Report::run(line, arguments, console,
                       [&](Report &report) { return ExplainRun(line, report, console).run(); });
}
