#include "tests/mirovahrctl/preview/previewbench.h"

#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/preview/previewsql.h"
#include "mirovahrctl/preview/previewwork.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/site/sitedatabase.h"
#include "mirovahrctl/site/sqlsession.h"
#include "tests/support/programrun.h"

#include <QBuffer>
#include <QSettings>

namespace {

QVector<PreviewLine> linesOf(PreviewWork &work)
{
    QVector<PreviewLine> lines;
    const PreviewWords words(work.names(), work.moments());
    for (const PreviewChange &change : work.changes())
        lines += words.describe(change);
    return lines;
}

QHash<QString, QString> cellsOf(const PreviewTable &table, const QStringList &row)
{
    QHash<QString, QString> cells;
    for (int i = 0; i < row.size(); ++i)
        cells[table.columns.at(i).name] = row.at(i);
    return cells;
}

QVector<PreviewedRow> rowsOf(const PreviewWork &work)
{
    QVector<PreviewedRow> rows;
    for (const PreviewChange &change : work.changes()) {
        rows += {change.table->name, cellsOf(*change.table, change.before),
                 cellsOf(*change.table, change.after)};
    }
    return rows;
}

QString sqlOf(const PreviewWork &work)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    PreviewSql(work.schema(), work.moments()).write(work.changes(), buffer);
    return QString::fromUtf8(buffer.data());
}

} // namespace

QStringList PreviewResult::described() const
{
    QStringList texts;
    for (const PreviewLine &line : lines) {
        texts +=
            QStringLiteral("%1 | %2 | %3 | %4 -> %5")
                .arg(PreviewWords::idOf(line.kind), line.who, line.text(), line.before, line.after);
    }
    return texts;
}

QStringList PreviewResult::warned() const
{
    QStringList texts;
    for (const Finding &warning : warnings)
        texts += warning.rule + ": " + warning.message;
    return texts;
}

bool PreviewBench::start(const QStringList &serverOptions)
{
    if (!m_site.start(serverOptions))
        return false;
    m_site.run(QStringLiteral("ALTER USER mirovahrctl@localhost IDENTIFIED BY '%1' ACCOUNT UNLOCK")
                   .arg(m_site.server().password()));
    writeIni();
    return true;
}

void PreviewBench::writeIni(const QString &more)
{
    QFile file(iniPath());
    if (!file.open(QIODevice::WriteOnly))
        qFatal("%s cannot be written", qPrintable(iniPath()));
    file.write(QStringLiteral("importFile=\"%1\"\ndeleteFile=false\n%2\n")
                   .arg(m_export.path(), more)
                   .toUtf8());
}

QStringList PreviewBench::arguments(const QString &user) const
{
    PrivateMariaDb &server = const_cast<PreviewBench *>(this)->m_site.server();
    QStringList arguments{
        "--socket", server.socketPath(), "--database", server.databaseName(), "--user", user};
    if (user != "root")
        arguments += {"--password-file", server.passwordFile()};
    return arguments + QStringList{"--config", iniPath()};
}

PreviewResult PreviewBench::preview(const QString &user, PreviewSelection::Extent extent,
                                    const std::function<void()> &meanwhile)
{
    QBuffer out;
    QBuffer err;
    out.open(QIODevice::WriteOnly);
    err.open(QIODevice::WriteOnly);
    QBuffer log;
    log.open(QIODevice::WriteOnly);
    Console console(out, err);
    CommandLine line("preview", "");
    PluginConfiguration::addTo(line);
    line.addReportOptions(CommandLine::Page::Offered);
    line.addDatabaseOptions();
    const Configuration configuration = Configuration::read(*Configuration::open(iniPath()));
    PreviewWork work(console, m_server, configuration, m_export.path(), extent);
    PreviewResult result;
    SiteDatabase site;
    if (line.parse(arguments(user), console)
        || site.open(line, DatabaseAccess::ReadOnly, console)) {
        result.refusal = PreviewRefusal{ExitStatus::NoDatabase, err.data()};
        return result;
    }
    result.refusal = work.copy(site.sql());
    meanwhile();
    if (!result.refusal)
        result.refusal = work.synchronise(&log);
    if (result.refusal)
        return result;
    result.schema = work.schema();
    result.lines = linesOf(work);
    result.warnings = work.warnings();
    result.rows = rowsOf(work);
    result.changes = work.changes().size();
    result.sql = sqlOf(work);
    result.log = log.data();
    result.doubts = work.doubts();
    return result;
}

int PreviewBench::copiedRows(const char *table) const
{
    SqlSession copy(m_server.administrator());
    return copy.value(QStringLiteral("SELECT COUNT(*) FROM `%1`").arg(table)).toInt();
}

QString PreviewBench::synchroniseSite()
{
    ProgramRun program;
    const bool ended =
        program.run(SINGLESYNC,
                    {m_site.server().socketPath(), m_site.server().databaseName(),
                     m_site.server().userName(), m_site.server().password(), iniPath()});
    m_siteLog = program.errors().split('\n');
    return ended && program.status() == 0 ? QString() : QString::fromUtf8(program.report());
}
