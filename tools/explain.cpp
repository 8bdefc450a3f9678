#include "tools/explain.h"

#include "cli/database.h"
#include "cli/databaseoptions.h"
#include "plugin/configuration.h"
#include "tools/commandline.h"
#include "tools/console.h"
#include "tools/databaseaccess.h"
#include "tools/forceflag.h"
#include "tools/midnights.h"
#include "tools/personexplanation.h"
#include "tools/pluginview.h"
#include "tools/report.h"
#include "tools/soughtlines.h"
#include "tools/soughtperson.h"
#include "tools/sqlsession.h"
#include "worker/importfile.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace {

constexpr char kDescription[] =
    "Tells why a person did not arrive, or arrived so: what the plugin makes of the\n"
    "person's line in the export, what the database holds, and what each step of a\n"
    "synchronisation does with the two, in the order in which the plugin decides.\n"
    "PERSON is a payroll id such as 1234.1, or a pid such as 12341. Changes nothing.";

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
    std::optional<ExitStatus> readConfiguration();
    std::optional<ExitStatus> findExport();
    ExitStatus explain(const QSqlDatabase &site);
    std::optional<ExitStatus> readExport(const QSqlDatabase &site);
    ExitStatus failMissing();
    ExitStatus fail(ExitStatus status, const QString &sentence);

    const CommandLine &m_line;
    Console &m_console;
    Report m_report;
    std::optional<SoughtPerson> m_person;
    ExplainedSource m_source;
    Configuration m_configuration;
    std::optional<SoughtLines> m_lines;
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
    return disagreement.isEmpty() ? explain(database->handle())
                                  : fail(ExitStatus::Usage, disagreement);
}

std::optional<ExitStatus> ExplainRun::prepare()
{
    m_person = SoughtPerson::parse(m_line.argument(0));
    if (!m_person) {
        return fail(ExitStatus::Usage,
                    QStringLiteral("'%1' is neither a payroll id such as 1234.1 nor a pid such as "
                                   "12341")
                        .arg(m_line.argument(0)));
    }
    if (const auto end = readConfiguration())
        return end;
    return findExport();
}

std::optional<ExitStatus> ExplainRun::readConfiguration()
{
    const bool isNamed = m_line.isSet("config");
    m_source.configurationPath = isNamed ? m_line.value("config") : QString(Configuration::kPath);
    const QFileInfo info(m_source.configurationPath);
    m_source.hasConfiguration = info.isFile();
    if (isNamed && !info.isFile())
        return fail(ExitStatus::Usage,
                    QStringLiteral("There is no file '%1'").arg(info.filePath()));
    if (info.isFile() && !info.isReadable())
        return fail(ExitStatus::Usage, QStringLiteral("'%1' cannot be read").arg(info.filePath()));
    m_configuration = Configuration::read(*Configuration::open(m_source.configurationPath));
    return std::nullopt;
}

std::optional<ExitStatus> ExplainRun::findExport()
{
    const QString named = m_line.argument(1);
    m_source.exportPath = named.isEmpty() ? ImportFile::path(m_configuration.importFile) : named;
    const QFileInfo info(m_source.exportPath);
    if (!named.isEmpty() && !info.isFile())
        return failMissing();
    // Two files that are not there count as the same.
    if (info.exists() && QFileInfo(m_line.pagePath()) == info) {
        return fail(ExitStatus::Usage,
                    QStringLiteral("The result would be written over the export; name another "
                                   "file"));
    }
    return std::nullopt;
}

ExitStatus ExplainRun::explain(const QSqlDatabase &site)
{
    if (const auto end = readExport(site))
        return *end;
    PluginView view;
    const auto failView = [&] {
        return fail(view.isConnected() ? ExitStatus::ContractBroken : ExitStatus::NoDatabase,
                    QStringLiteral("The database cannot be used: %1").arg(view.errorText()));
    };
    if (!view.open(site, m_configuration))
        return failView();
    ForceFlag flag(view.database());
    const auto forced = flag.isSet();
    if (!forced) {
        return fail(ExitStatus::ContractBroken,
                    QStringLiteral("The database cannot be used: %1").arg(flag.errorText()));
    }
    m_source.isForced = *forced;
    if (const auto end = m_report.open())
        return *end;
    m_report.begin(m_line.subcommand(), QStringLiteral("What became of %1").arg(m_person->name()));
    PersonExplanation explanation(*m_person, m_source, m_configuration, view, m_report);
    const QString verdict = explanation.explain(m_lines ? &*m_lines : nullptr);
    if (!view.errorText().isEmpty())
        return failView();
    return m_report.conclude(m_report.findingsStatus(), verdict);
}

std::optional<ExitStatus> ExplainRun::readExport(const QSqlDatabase &site)
{
    QFile file;
    QString error;
    switch (ImportFile::open(m_source.exportPath, file, error)) {
    case ImportFile::Opening::Done:
        break;
    case ImportFile::Opening::NotFound:
        return m_line.argument(1).isEmpty() ? std::nullopt : std::make_optional(failMissing());
    case ImportFile::Opening::Failed:
        return fail(ExitStatus::Usage,
                    QStringLiteral("'%1' cannot be opened: %2").arg(m_source.exportPath, error));
    }
    const TextWidths widths = readTextWidths(site, error);
    if (widths.isEmpty())
        return fail(ExitStatus::ContractBroken, error);
    m_lines.emplace(*m_person);
    if (m_lines->find(file, widths, m_console))
        return std::nullopt;
    return fail(ExitStatus::Usage,
                QStringLiteral("'%1' cannot be read to its end: %2")
                    .arg(m_source.exportPath, m_lines->errorString()));
}

/// There is no such export, though the command line names it.
ExitStatus ExplainRun::failMissing()
{
    return fail(ExitStatus::Usage,
                QStringLiteral("There is no file '%1'").arg(m_source.exportPath));
}

ExitStatus ExplainRun::fail(ExitStatus status, const QString &sentence)
{
    return m_console.fail(status, sentence);
}

} // namespace

ExitStatus runExplain(const QStringList &arguments, Console &console)
{
    CommandLine line("explain", kDescription);
    line.addArgument("person", "A payroll id such as 1234.1, or a pid such as 12341.");
    line.addOptionalArgument("file", "The export; importFile of the INI file when left out.");
    line.addOption("config", "file", "The plugin's INI file; /etc/yav/MirovaHR.ini when left out.");
    line.addReportOptions(CommandLine::Page::Offered);
    line.addDatabaseOptions();
    if (const auto end = line.parse(arguments, console))
        return *end;
    return ExplainRun(line, console).run();
}
