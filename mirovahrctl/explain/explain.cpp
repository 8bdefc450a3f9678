#include "cli/database.h"
#include "cli/databaseoptions.h"
#include "mirovahrctl/explain/peoplesearch.h"
#include "mirovahrctl/explain/personexplanation.h"
#include "mirovahrctl/explain/personid.h"
#include "mirovahrctl/explain/personlines.h"
#include "mirovahrctl/pluginside/forceflag.h"
#include "mirovahrctl/pluginside/pluginview.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/site/databaseaccess.h"
#include "mirovahrctl/site/midnights.h"
#include "mirovahrctl/site/sqlsession.h"

#include <QFileInfo>

namespace {

constexpr char kDescription[] =
    "Explains why a person did not arrive, or not as expected: how the plugin reads the\n"
    "person's line in the export, what the database holds, and what each step of a\n"
    "synchronisation does with the two, in the order of the plugin's decisions.\n"
    "PERSON is a payroll id such as 1234.1, a personal number, a pid, or a name, such as\n"
    "novakova, whose capitals and accents do not matter. Several matches are listed.\n"
    "Changes nothing.";

class ExplainRun {
public:
    ExplainRun(const CommandLine &line, Console &console)
        : m_line(line)
        , m_console(console)
        , m_report(line, console)
    {
    }

    ExitStatus run();

private:
    std::optional<ExitStatus> prepare();
    std::optional<ExitStatus> readPerson();
    std::optional<ExitStatus> openExport();
    ExitStatus answer(const QSqlDatabase &site);
    std::optional<ExitStatus> search(const QSqlDatabase &site);
    ExitStatus explain(const QSqlDatabase &site);
    std::optional<ExitStatus> readExport(const QSqlDatabase &site);
    bool hasExport() const { return m_source.file.source() != ExplainedExport::Source::None; }
    ExitStatus failExport(const QString &error);
    ExitStatus fail(ExitStatus status, const QString &sentence);

    const CommandLine &m_line;
    Console &m_console;
    Report m_report;
    std::optional<PersonId> m_person;
    std::optional<PeopleSearch> m_search; ///< when there is no person yet
    ExplainedSource m_source;
    std::optional<PersonLines> m_lines;
};

ExitStatus ExplainRun::run()
{
    DatabaseOptions options;
    if (const auto end = m_line.readDatabase(options, m_console))
        return *end;
    if (const auto end = prepare())
        return *end;
    QString error;
    const auto database = openDatabase(options, DatabaseAccess::ReadOnly, error);
    if (!database)
        return fail(ExitStatus::NoDatabase, error);
    SqlSession site(database->handle());
    const QString disagreement = Midnights::disagreement(site);
    return disagreement.isEmpty() ? answer(database->handle())
                                  : fail(ExitStatus::Usage, disagreement);
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
    return fail(
        ExitStatus::Usage,
        QStringLiteral("'%1' is neither a payroll id such as 1234.1, nor a number, nor a name")
            .arg(text));
}

std::optional<ExitStatus> ExplainRun::openExport()
{
    ExplainedExport &file = m_source.file;
    if (!file.open(m_line.argument(1), m_line.value("gate-folder"),
                   m_source.configuration.values()))
        return fail(ExitStatus::Usage, file.errorString());
    if (hasExport() && QFileInfo(m_line.pagePath()) == QFileInfo(file.path())) {
        return fail(ExitStatus::Usage,
                    QStringLiteral("The result would overwrite the export; name another file"));
    }
    return std::nullopt;
}

ExitStatus ExplainRun::answer(const QSqlDatabase &site)
{
    if (m_search) {
        if (const auto end = search(site))
            return *end;
    }
    if (const auto end = readExport(site))
        return *end;
    return explain(site);
}

/// Finds the person; ends with a list unless it is exactly one.
std::optional<ExitStatus> ExplainRun::search(const QSqlDatabase &site)
{
    SqlSession sql(site);
    if (hasExport() && !m_search->searchExport(m_source.file.file(), m_console))
        return failExport(m_search->errorString());
    m_search->searchDatabase(sql);
    if (sql.failed()) {
        return fail(ExitStatus::ContractBroken,
                    QStringLiteral("The database cannot be used: %1").arg(sql.errorString()));
    }
    const QVector<FoundPerson> people = m_search->people();
    if (people.size() == 1)
        m_person = people.first().person();
    if (m_person)
        return std::nullopt;
    if (const auto end = m_report.open())
        return end;
    m_report.begin(m_line.subcommand(), QStringLiteral("Who is %1?").arg(m_search->text()));
    const QString verdict = m_search->reportPeople(m_report);
    return m_report.conclude(m_report.findingsStatus(), verdict);
}

ExitStatus ExplainRun::explain(const QSqlDatabase &site)
{
    PluginView view;
    const auto failView = [&] {
        return fail(view.isConnected() ? ExitStatus::ContractBroken : ExitStatus::NoDatabase,
                    QStringLiteral("The database cannot be used: %1").arg(view.errorString()));
    };
    if (!view.open(site, m_source.configuration.values()))
        return failView();
    ForceFlag flag(view.database());
    const auto forced = flag.isSet();
    if (!forced)
        return fail(ExitStatus::ContractBroken, flag.errorString());
    m_source.isForced = *forced;
    if (const auto end = m_report.open())
        return *end;
    m_report.begin(m_line.subcommand(), QStringLiteral("What happens to %1").arg(m_person->name()));
    PersonExplanation explanation(*m_person, m_source, view, m_report);
    const QString verdict = explanation.explain(m_lines ? &*m_lines : nullptr);
    if (!view.errorString().isEmpty())
        return failView();
    return m_report.conclude(m_report.findingsStatus(), verdict);
}

std::optional<ExitStatus> ExplainRun::readExport(const QSqlDatabase &site)
{
    if (!hasExport())
        return std::nullopt;
    QString error;
    SqlSession sql(site);
    const ColumnWidths widths = readColumnWidths(sql, error);
    if (widths.isEmpty())
        return fail(ExitStatus::ContractBroken, error);
    m_lines.emplace(*m_person);
    if (m_lines->find(m_source.file.file(), widths, m_console))
        return std::nullopt;
    return failExport(m_lines->errorString());
}

ExitStatus ExplainRun::failExport(const QString &error)
{
    return fail(
        ExitStatus::Usage,
        QStringLiteral("'%1' cannot be read to its end: %2").arg(m_source.file.path(), error));
}

ExitStatus ExplainRun::fail(ExitStatus status, const QString &sentence)
{
    return m_console.fail(status, sentence);
}

} // namespace

ExitStatus runExplain(const QStringList &arguments, Console &console)
{
    CommandLine line("explain", kDescription);
    line.addArgument("person", "A payroll id such as 1234.1, a personal number, a pid, or a name.");
    line.addOptionalArgument("file", "The export; importFile of the INI file by default.");
    line.addOption("gate-folder", "folder",
                   "The gate's own folder, whose last admitted file is used when importFile is "
                   "gone; by default that of the gate in syncCommand.");
    line.addOption("config", "file", "The plugin's INI file; /etc/yav/MirovaHR.ini by default.");
    line.addReportOptions(CommandLine::Page::Offered);
    line.addDatabaseOptions();
    if (const auto end = line.parse(arguments, console))
        return *end;
    return ExplainRun(line, console).run();
}
