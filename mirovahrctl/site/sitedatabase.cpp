#include "mirovahrctl/site/sitedatabase.h"

#include "cli/database.h"
#include "cli/text.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"

#include <QStringList>

namespace {

constexpr char kAnswer[] = "SELECT 1";

/// Connect options that do not name a socket: it would take precedence over the host.
QString withoutSocket(const QString &connectOptions)
{
    QStringList others;
    const QStringList options = connectOptions.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString &option : options) {
        if (option.section(QLatin1Char('='), 0, 0).trimmed() != QLatin1String("UNIX_SOCKET"))
            others += option;
    }
    return others.join(QLatin1Char(';'));
}

} // namespace

SiteDatabase::SiteDatabase() = default;

SiteDatabase::~SiteDatabase()
{
    if (m_console != nullptr)
        m_console->setLoss({});
}

std::optional<ExitStatus> SiteDatabase::open(const CommandLine &line, DatabaseAccess access,
                                             Console &console)
{
    if (const auto end = line.readDatabase(m_options, console))
        return end;
    if (!Database::isDriverAvailable())
        return console.fail(ExitStatus::NoDatabase, Database::missingDriverText());
    m_database = std::make_unique<Database>(m_options, QStringLiteral("mirovahrctl"));
    if (!m_database->open()) {
        return console.fail(
            ExitStatus::NoDatabase,
            Text::tr("The database cannot be opened: %1").arg(m_database->errorString()));
    }
    m_sql.emplace(m_database->handle());
    m_console = &console;
    console.setLoss([this] { return loss(); });
    if (access == DatabaseAccess::ReadOnly && !m_sql->refuseWriting())
        return console.fail(ExitStatus::NoDatabase, m_sql->failure());
    return std::nullopt;
}

QString SiteDatabase::loss() const
{
    SqlSession question(m_sql->database());
    question.run(QLatin1String(kAnswer));
    if (!question.isLost())
        return {};
    return Text::tr("The database server %1 has closed the connection or did not answer in "
                    "time (see --read-timeout)")
        .arg(m_options.server());
}

QString SiteDatabase::openNode(const SiteDatabase &site, const QString &host, uint port)
{
    m_options = site.m_options;
    m_options.host = host;
    m_options.port = port;
    m_options.socket.clear();
    m_options.connectOptions = withoutSocket(m_options.connectOptions);
    m_database = std::make_unique<Database>(m_options, QStringLiteral("mirovahrctl node"));
    if (!m_database->open())
        return m_database->errorString();
    m_sql.emplace(m_database->handle());
    return m_sql->refuseWriting() ? QString() : m_sql->errorString();
}
