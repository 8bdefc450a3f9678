#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/preview/previewreport.h"
#include "mirovahrctl/preview/previewserver.h"
#include "mirovahrctl/preview/previewsql.h"
#include "mirovahrctl/preview/previewundo.h"
#include "mirovahrctl/preview/previewundolimits.h"
#include "mirovahrctl/preview/previewundoplan.h"
#include "mirovahrctl/preview/previewwork.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/outputfile.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/site/sitedatabase.h"

#include <QFileInfo>

namespace {

constexpr char kDescription[] =
    "Shows what a forced synchronisation with an export would change in the attendance\n"
    "database, by doing it: copies the rows and routines that the plugin reaches into a\n"
    "private database server, lets the plugin's own code synchronise the copy, and reports\n"
    "what happens to each person. Only reads the site's database, keeps the export, and\n"
    "removes the copy afterwards. Needs MariaDB's server programs on this machine, and twice\n"
    "the room of these rows in the folder for temporary files.";

constexpr char kWhereTheRestIs[] = "--details shows everything, --html a page, --person one person";

class PreviewCommand {
public:
    PreviewCommand(const CommandLine &line, Report &report, Console &console)
        : m_line(line)
        , m_console(console)
        , m_report(report)
        , m_export(line.argument(0))
        , m_sql(line.value("sql"))
        , m_undo(line.value("undo"))
        , m_log(line.value("log"))
    {
    }

    ExitStatus run();

private:
    std::optional<ExitStatus> prepare();
    std::optional<ExitStatus> copySite(PreviewWork &work);
    std::optional<ExitStatus> writeUndo(PreviewWork &work);
    std::optional<ExitStatus> readView(PreviewWork &work, PreviewView &view);
    void noteUndo();
    QString title() const;
    ExitStatus fail(const PreviewRefusal &refusal)
    {
        return m_console.fail(refusal.status, refusal.sentence);
    }

    const CommandLine &m_line;
    Console &m_console;
    Report &m_report;
    const QString m_export;
    OutputFile m_sql;
    OutputFile m_undo;
    QStringList m_undoLimits;
    OutputFile m_log;
    PluginConfiguration m_configuration;
};

ExitStatus PreviewCommand::run()
{
    if (const auto end = prepare())
        return *end;
    PreviewServer server;
    PreviewWork work(m_console, server, m_configuration.values(), m_export,
                     m_line.isSet("all-rows") ? PreviewSelection::Extent::All
                                              : PreviewSelection::Extent::Reached);
    if (const auto end = copySite(work))
        return *end;
    if (const auto refused = work.synchronise(m_log.isOpen() ? &m_log : nullptr))
        return fail(*refused);
    if (m_sql.isOpen())
        PreviewSql(work.schema(), work.moments()).write(work.changes(), m_sql);
    if (m_undo.isOpen()) {
        if (const auto end = writeUndo(work))
            return *end;
    }
    PreviewView view;
    if (const auto end = readView(work, view))
        return *end;
    m_report.begin(m_line.subcommand(), title());
    if (!m_line.isSet("details"))
        m_report.abbreviateText(QString::fromLatin1(kWhereTheRestIs));
    PreviewReport report(work, m_configuration, view, m_report);
    report.write();
    if (m_undo.isOpen())
        noteUndo();
    for (OutputFile *const file : {&m_sql, &m_undo, &m_log}) {
        if (const auto end = file->finish(m_console))
            return *end;
    }
    return m_report.conclude(report.verdict());
}

std::optional<ExitStatus> PreviewCommand::writeUndo(PreviewWork &work)
{
    const PreviewUndoPlan plan(work.schema(), work.changes(), work.moments(), work.names());
    const PreviewUndo undo(work.schema(), work.moments(), plan);
    if (const auto refused = undo.refusal())
        return fail(*refused);
    undo.write(m_export,
               m_line.isSet("partial") ? PreviewUndo::Extent::Partial
                                       : PreviewUndo::Extent::AllOrNone,
               m_undo);
    m_undoLimits = undoLimits(work.schema(), plan);
    return std::nullopt;
}

void PreviewCommand::noteUndo()
{
    m_report.section(QStringLiteral("undo"),
                     QStringLiteral("What %1 does not take back").arg(m_undo.fileName()));
    for (const QString &sentence : qAsConst(m_undoLimits))
        m_report.sentence(sentence);
}

/// The people are those of the copy after the synchronisation, new ones among them.
std::optional<ExitStatus> PreviewCommand::readView(PreviewWork &work, PreviewView &view)
{
    view.isSummary = m_line.isSet("summary");
    view.person = m_line.value("person");
    if (!m_line.isSet("person"))
        return std::nullopt;
    view.uids = work.names().uidsNamed(view.person);
    if (!view.uids.isEmpty())
        return std::nullopt;
    return m_console.fail(
        ExitStatus::Usage,
        QStringLiteral("Neither the database nor the export has a person '%1'").arg(view.person));
}

QString PreviewCommand::title() const
{
    const QString title = QStringLiteral("Preview of HR export %1").arg(m_export);
    return m_line.isSet("person")
        ? title + QStringLiteral(" for person %1").arg(m_line.value("person"))
        : title;
}

/// The connection to the site is closed as soon as the copy exists.
std::optional<ExitStatus> PreviewCommand::copySite(PreviewWork &work)
{
    SiteDatabase site;
    if (const auto end = site.open(m_line, DatabaseAccess::ReadOnly, m_console))
        return end;
    const auto refused = work.copy(site.sql());
    return refused ? std::make_optional(fail(*refused)) : std::nullopt;
}

std::optional<ExitStatus> PreviewCommand::prepare()
{
    const QFileInfo info(m_export);
    if (!info.isFile())
        return m_console.fail(ExitStatus::Usage,
                              QStringLiteral("There is no file '%1'").arg(m_export));
    if (!info.isReadable())
        return m_console.fail(ExitStatus::Usage,
                              QStringLiteral("'%1' cannot be read").arg(m_export));
    if (const auto end = refuseOverwriting(
            m_export, {m_line.pagePath(), m_sql.fileName(), m_undo.fileName(), m_log.fileName()},
            m_console))
        return end;
    if (m_line.isSet("partial") && !m_line.isSet("undo"))
        return m_console.fail(ExitStatus::Usage, QStringLiteral("--partial belongs to --undo"));
    if (const auto end = m_configuration.read(m_line, m_console))
        return end;
    for (OutputFile *const file : {&m_sql, &m_undo, &m_log}) {
        if (const auto end = file->begin(m_console))
            return end;
    }
    return std::nullopt;
}

} // namespace

ExitStatus runPreview(const QStringList &arguments, Console &console)
{
    CommandLine line("preview", kDescription);
    line.addArgument("file", "The export.");
    PluginConfiguration::addTo(line);
    line.addFlag("summary", "Show only the verdict, the findings and the totals.");
    line.addOption("person", "id",
                   "Show only what happens to one person: a payroll id such as 1234.1, a personal "
                   "number or a pid.");
    line.addFlag("details", "Show everybody, not only the first, and the bookkeeping.");
    line.addOption("sql", "file", "Also write the differences as SQL statements.");
    line.addOption("undo", "file",
                   "Also write SQL statements that take the differences back after the "
                   "synchronisation.");
    line.addFlag("partial",
                 "Let these statements take back all other rows when somebody has changed one, not "
                 "none.");
    line.addOption("log", "file", "Also write the plugin's whole log of the synchronisation.");
    line.addFlag("all-rows", "Also copy the rows that a synchronisation does not reach.");
    line.addReportOptions(CommandLine::Page::Offered);
    line.addDatabaseOptions();
    return Report::run(line, arguments, console,
                       [&](Report &report) { return PreviewCommand(line, report, console).run(); });
}
