#include "cli/text.h"
#include "mirovahrctl/drift/driftpeople.h"
#include "mirovahrctl/drift/driftreport.h"
#include "mirovahrctl/drift/driftrows.h"
#include "mirovahrctl/drift/driftsearch.h"
#include "mirovahrctl/drift/driftsql.h"
#include "mirovahrctl/export/namedexport.h"
#include "mirovahrctl/gatestate/siteexport.h"
#include "mirovahrctl/pluginside/forceflag.h"
#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/pluginside/pluginview.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/outputfile.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/wording.h"
#include "mirovahrctl/site/midnights.h"
#include "mirovahrctl/site/sitedatabase.h"

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Finds what the database lacks although the plugin counts it as done, after a deadlock, a "
    "conflict in a cluster or a lost connection: compares the export that was synchronised last "
    "with the database, and reports what a forced synchronisation brings, what the next start of "
    "the attendance server brings, and what never comes by itself. Changes nothing. FILE is the "
    "export; by default the one that the gate admitted last, or else importFile.");

class DriftRun {
public:
    DriftRun(const CommandLine &line, Report &report, Console &console)
        : m_line(line)
        , m_console(console)
        , m_report(report)
        , m_sql(line.value("sql"))
    {
    }

    ExitStatus run();

private:
    std::optional<ExitStatus> prepare();
    std::optional<ExitStatus> readSince();
    std::optional<ExitStatus> openExport();
    std::optional<ExitStatus> readExport(SqlSession &site);
    ExitStatus search(PluginView &view);
    ExitStatus report(const DriftSearch &search, bool isForced);
    ExitStatus fail(const PluginView &view);

    const CommandLine &m_line;
    Console &m_console;
    Report &m_report;
    OutputFile m_sql;
    PluginConfiguration m_configuration;
    SiteExport m_source;
    QDate m_since;
    DriftPeople m_people;
    Backslash m_backslash = Backslash::Escapes;
};

ExitStatus DriftRun::run()
{
    if (const auto end = prepare())
        return *end;
    SiteDatabase site;
    if (const auto end = site.open(m_line, DatabaseAccess::ReadOnly, m_console))
        return *end;
    const QString disagreement = Midnights::disagreement(site.sql());
    if (!disagreement.isEmpty())
        return m_console.fail(ExitStatus::Usage, disagreement);
    if (const auto end = readExport(site.sql()))
        return *end;
    PluginView view;
    if (!view.open(site.sql().database(), m_configuration.values()))
        return fail(view);
    return search(view);
}

std::optional<ExitStatus> DriftRun::prepare()
{
    if (const auto end = readSince())
        return end;
    if (const auto end = m_configuration.read(m_line, m_console))
        return end;
    if (const auto end = openExport())
        return end;
    return m_sql.begin(m_console);
}

std::optional<ExitStatus> DriftRun::readSince()
{
    if (!m_line.isSet("since"))
        return std::nullopt;
    m_since = QDate::fromString(m_line.value("since"), Qt::ISODate);
    if (m_since.isValid())
        return std::nullopt;
    return m_console.fail(ExitStatus::Usage, Text::tr("--since takes a day such as 2026-03-01"));
}

std::optional<ExitStatus> DriftRun::openExport()
{
    if (!m_source.open(m_line.argument(0), m_line.value("gate-folder"), m_configuration.values(),
                       SiteExport::Preference::Admitted))
        return m_console.fail(ExitStatus::Usage, m_source.errorString());
    if (m_source.source() == SiteExport::Source::None) {
        return m_console.fail(
            ExitStatus::Usage,
            Text::tr("There is no export: name the file that was synchronised last"));
    }
    return refuseOverwriting(m_source.path(), {m_line.pagePath(), m_sql.fileName()}, m_console);
}

std::optional<ExitStatus> DriftRun::readExport(SqlSession &site)
{
    const auto backslash = readBackslash(site);
    if (!backslash)
        return m_console.fail(ExitStatus::NoDatabase, site.failure());
    m_backslash = *backslash;
    QString error;
    const ColumnWidths widths = readColumnWidths(site, error);
    if (widths.isEmpty())
        return m_console.fail(ExitStatus::ContractBroken, error);
    if (m_people.read(m_source.file(), widths, {m_source.gateTexts(), m_backslash}, m_console))
        return std::nullopt;
    return NamedExport::failReading(m_source.path(), m_people.errorString(), m_console);
}

ExitStatus DriftRun::search(PluginView &view)
{
    ForceFlag flag(view.database());
    const auto isForced = flag.isSet();
    if (!isForced)
        return m_console.fail(ExitStatus::ContractBroken, flag.errorString());
    DriftRows rows;
    if (!rows.read(view))
        return fail(view);
    DriftSearch search(view, rows, m_backslash, m_since);
    for (const DriftPerson &person : m_people.people())
        search.examine(person);
    search.examineTerminals();
    if (!view.errorString().isEmpty())
        return fail(view);
    return report(search, *isForced);
}

ExitStatus DriftRun::report(const DriftSearch &search, bool isForced)
{
    m_report.begin(m_line.subcommand(), Text::tr("Database and export %1").arg(m_source.path()));
    DriftReport report(search.found(), m_report);
    m_report.fact(QStringLiteral("compared"), Text::tr("People compared"),
                  m_people.people().size() - search.unclear());
    report.writeDifferences();
    report.writeLimits(m_configuration, m_source, search.waiting(),
                       m_people.leftOut() + search.unclear(), isForced);
    if (m_sql.isOpen()) {
        DriftSql::write(QStringLiteral("What the plugin does not write again, by the export %1.")
                            .arg(Wording::visible(m_source.path())),
                        report.statements(), m_sql);
    }
    if (const auto end = m_sql.finish(m_console))
        return *end;
    return m_report.conclude(report.verdict());
}

ExitStatus DriftRun::fail(const PluginView &view)
{
    return m_console.fail(view.isConnected() ? ExitStatus::ContractBroken : ExitStatus::NoDatabase,
                          Text::tr("The database cannot be used: %1").arg(view.errorString()));
}

} // namespace

ExitStatus runDrift(const QStringList &arguments, Console &console)
{
    CommandLine line("drift", kDescription);
    line.addOptionalArgument(Text::tr("file"), Text::tr("The export that was synchronised last."));
    line.addOption("gate-folder", Text::tr("folder"),
                   Text::tr("The gate's own folder, whose last admitted file is compared; by "
                            "default that of the gate in syncCommand."));
    line.addOption(
        "since", Text::tr("day"),
        Text::tr("Leave out what is done once for each person or member, and would have been done "
                 "before this day: payroll export, terminals and administrators."));
    line.addOption("sql", Text::tr("file"),
                   Text::tr("Also write statements that mend what does not come by itself."));
    PluginConfiguration::addTo(line);
    line.addReportOptions(CommandLine::Page::Offered);
    line.addDatabaseOptions();
    return Report::run(line, arguments, console,
                       [&](Report &report) { return DriftRun(line, report, console).run(); });
}
