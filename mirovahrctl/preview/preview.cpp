#include "cli/text.h"
#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/preview/previewnames.h"
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
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/site/sitedatabase.h"

#include <QFileInfo>
#include <QScopeGuard>

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Shows what a forced synchronisation with an export would change in the attendance database, "
    "by doing it: copies the rows and routines that the plugin reaches into a private database "
    "server, lets the plugin's own code synchronise the copy, and reports what happens to each "
    "person. Only reads the site's database, keeps the export, and removes the copy afterwards. "
    "Needs MariaDB's server programs on this machine, and twice the room of these rows in the "
    "folder for temporary files.");

/// Does what writes a file of statements: its words are the same in every language.
template <typename Write> auto inEnglish(const Write &write)
{
    const QString language = Language::code();
    const auto useAgain = qScopeGuard([&language] { Language::use(language); });
    Language::use(QStringLiteral("en"));
    return write();
}

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
    std::optional<ExitStatus> writeUndo(PreviewWork &work, const PreviewServer &server);
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
        if (const auto end = writeUndo(work, server))
            return *end;
    }
    PreviewView view;
    if (const auto end = readView(work, view))
        return *end;
    PreviewReport report(work, m_configuration, view, m_report);
    if (const auto refused = work.names().refusal())
        return fail(*refused);
    m_report.begin(m_line.subcommand(), title());
    if (!m_line.isSet("details"))
        m_report.abbreviateText(
            Text::tr("--details shows everything, --html a page, --person one person"));
    report.write();
    if (m_undo.isOpen())
        noteUndo();
    for (OutputFile *const file : {&m_sql, &m_undo, &m_log}) {
        if (const auto end = file->finish(m_console))
            return *end;
    }
    return m_report.conclude(report.verdict());
}

/// Makes names of its own: those of the report are in the reader's language.
std::optional<ExitStatus> PreviewCommand::writeUndo(PreviewWork &work, const PreviewServer &server)
{
    PreviewNames names(server.attendance());
    const PreviewUndoPlan plan = inEnglish(
        [&] { return PreviewUndoPlan(work.schema(), work.changes(), work.moments(), names); });
    if (const auto refused = names.refusal())
        return fail(*refused);
    const PreviewUndo undo(work.schema(), work.moments(), plan);
    if (const auto refused = undo.refusal())
        return fail(*refused);
    inEnglish([&] {
        undo.write(m_export,
                   m_line.isSet("partial") ? PreviewUndo::Extent::Partial
                                           : PreviewUndo::Extent::AllOrNone,
                   m_undo);
    });
    m_undoLimits = undoLimits(work.schema(), plan);
    return std::nullopt;
}

void PreviewCommand::noteUndo()
{
    m_report.section(QStringLiteral("undo"),
                     Text::tr("What %1 does not take back").arg(m_undo.fileName()));
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
    if (const auto refused = work.names().refusal())
        return fail(*refused);
    if (!view.uids.isEmpty())
        return std::nullopt;
    return m_console.fail(
        ExitStatus::Usage,
        Text::tr("Neither the database nor the export has a person '%1'").arg(view.person));
}

QString PreviewCommand::title() const
{
    return m_line.isSet("person")
        ? Text::tr("Preview of HR export %1 for person %2").arg(m_export, m_line.value("person"))
        : Text::tr("Preview of HR export %1").arg(m_export);
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
        return m_console.fail(ExitStatus::Usage, Text::tr("There is no file '%1'").arg(m_export));
    if (!info.isReadable())
        return m_console.fail(ExitStatus::Usage, Text::tr("'%1' cannot be read").arg(m_export));
    if (const auto end = refuseOverwriting(
            m_export, {m_line.pagePath(), m_sql.fileName(), m_undo.fileName(), m_log.fileName()},
            m_console))
        return end;
    if (m_line.isSet("partial") && !m_line.isSet("undo"))
        return m_console.fail(ExitStatus::Usage, Text::tr("--partial belongs to --undo"));
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
    line.addArgument(Text::tr("file"), Text::tr("The export."));
    PluginConfiguration::addTo(line);
    line.addFlag("summary", Text::tr("Show only the verdict, the findings and the totals."));
    line.addOption(
        "person", Text::tr("id"),
        Text::tr("Show only what happens to one person: a payroll id such as 1234.1, a personal "
                 "number or a pid."));
    line.addFlag("details", Text::tr("Show everybody, not only the first, and the bookkeeping."));
    line.addOption("sql", Text::tr("file"),
                   Text::tr("Also write the differences as SQL statements."));
    line.addOption("undo", Text::tr("file"),
                   Text::tr("Also write SQL statements that take the differences back after the "
                            "synchronisation."));
    line.addFlag(
        "partial",
        Text::tr("Let these statements take back all other rows when somebody has changed one, not "
                 "none."));
    line.addOption("log", Text::tr("file"),
                   Text::tr("Also write the plugin's whole log of the synchronisation."));
    line.addFlag("all-rows", Text::tr("Also copy the rows that a synchronisation does not reach."));
    line.addReportOptions(CommandLine::Page::Offered);
    line.addDatabaseOptions();
    return Report::run(line, arguments, console,
                       [&](Report &report) { return PreviewCommand(line, report, console).run(); });
}
