#include "mirovahrctl/preview/previewwork.h"

#include "cli/text.h"
#include "mirovahrctl/preview/previewcopy.h"
#include "mirovahrctl/preview/previewrun.h"
#include "mirovahrctl/preview/previewschemareader.h"
#include "mirovahrctl/preview/previewserver.h"
#include "mirovahrctl/program/progress.h"
#include "mirovahrctl/report/rules/previewrules.h"
#include "mirovahrctl/site/midnights.h"
#include "mirovahrctl/site/sqlsession.h"

#include <QIODevice>

namespace {

constexpr char kIsolation[] = "SET SESSION TRANSACTION ISOLATION LEVEL REPEATABLE READ";
constexpr char kSnapshot[] = "START TRANSACTION WITH CONSISTENT SNAPSHOT";
constexpr char kRelease[] = "COMMIT";

QString levelOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
    case QtFatalMsg:
        break;
    }
    return QStringLiteral("critical");
}

PreviewRefusal refusal(const QString &sentence)
{
    return {ExitStatus::NoDatabase, sentence};
}

/// The copy's server is private, so the site's table is what prevents setting the force flag.
PreviewRefusal cannotForce(const QString &error)
{
    return {ExitStatus::ContractBroken,
            Text::tr("The copy cannot be synchronised: %1. Run check-db for details").arg(error)};
}

} // namespace

PreviewWork::PreviewWork(Console &console, PreviewServer &server,
                         const Configuration &configuration, const QString &exportFile,
                         PreviewSelection::Extent extent)
    : m_console(console)
    , m_server(server)
    , m_configuration(configuration)
    , m_exportFile(exportFile)
    , m_extent(extent)
    , m_people(PreviewPeople::of(exportFile, configuration))
{
}

PreviewWork::~PreviewWork() = default;

std::optional<PreviewRefusal> PreviewWork::copy(SqlSession &site)
{
    site.run(QLatin1String(kIsolation));
    site.run(QLatin1String(kSnapshot));
    auto refused = copyFrom(site);
    if (!refused && !site.run(QLatin1String(kRelease)))
        refused = refusal(site.errorString());
    return refused;
}

std::optional<PreviewRefusal> PreviewWork::copyFrom(SqlSession &site)
{
    const QString disagreement = Midnights::disagreement(site);
    if (!disagreement.isEmpty())
        return PreviewRefusal{ExitStatus::Usage, disagreement};
    PreviewSchemaReader reader(site);
    if (auto refused = reader.read())
        return refused;
    m_schema = reader.schema();
    if (auto refused = startServer())
        return refused;
    PreviewSelection selection(m_schema, m_people, m_extent);
    selection.read(site);
    m_doubts = selection.doubts();
    for (PreviewTable &table : m_schema.tables)
        table.changing = selection.changingRowsOf(table.name);
    Progress progress(m_console, Text::tr("Copying the database"));
    PreviewCopy copy(m_schema, selection, m_server.administrator());
    if (copy.copyTables(site, [&](qint64 done, qint64 total) { progress.update(done, total); })
        && copy.createPrograms())
        return std::nullopt;
    return refusal(copy.errorString());
}

std::optional<PreviewRefusal> PreviewWork::startServer()
{
    if (!m_server.start(m_schema))
        return refusal(m_server.errorString());
    SqlSession copy(m_server.administrator());
    m_copyVersion = copy.value(QStringLiteral("SELECT VERSION()"));
    return std::nullopt;
}

std::optional<PreviewRefusal> PreviewWork::synchronise(QIODevice *log)
{
    PreviewRun run(m_configuration, m_exportFile);
    {
        Progress progress(m_console, Text::tr("Synchronising the copy"));
        if (!run.run(
                m_server.attendance(),
                [&](QtMsgType type, const QString &text) { take(type, text, log); },
                [&](qint64 done, qint64 total) { progress.update(done, total); }))
            return cannotForce(run.errorString());
    }
    if (auto refused = run.refusal())
        return refused;
    if (!(PreviewPeople::of(m_exportFile, m_configuration) == m_people)) {
        return PreviewRefusal{
            ExitStatus::Usage,
            Text::tr("'%1' was changed meanwhile. Run preview again").arg(m_exportFile)};
    }
    m_moments = std::make_unique<PreviewMoments>(run.begin(), run.end());
    m_names = std::make_unique<PreviewNames>(m_server.attendance());
    return compare();
}

std::optional<PreviewRefusal> PreviewWork::compare()
{
    PreviewDiff diff(m_schema, m_server.administrator());
    if (!diff.read()) {
        return refusal(
            Text::tr("The changes in the copy cannot be read: %1").arg(diff.errorString()));
    }
    m_changes = diff.changes();
    return std::nullopt;
}

void PreviewWork::take(QtMsgType type, const QString &text, QIODevice *log)
{
    if (log)
        log->write(QStringLiteral("%1\t%2\n").arg(levelOf(type), text).toUtf8());
    if (type != QtWarningMsg && type != QtCriticalMsg)
        return;
    m_warnings += makeFinding(
        type == QtWarningMsg ? PreviewRules::kPluginWarning : PreviewRules::kPluginError, text);
}
