#include "mirovahrctl/site/sitedatabase.h"

#include "cli/database.h"
#include "cli/databaseoptions.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"

namespace {

constexpr char kAnswer[] = "SELECT 1";

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
    DatabaseOptions options;
    if (const auto end = line.readDatabase(options, console))
        return end;
    if (!Database::isDriverAvailable())
        return console.fail(ExitStatus::NoDatabase, Database::missingDriverText());
    m_database = std::make_unique<Database>(options, QStringLiteral("mirovahrctl"));
    if (!m_database->open()) {
        return console.fail(
            ExitStatus::NoDatabase,
            QStringLiteral("The database cannot be opened: %1").arg(m_database->errorString()));
    }
    m_server = options.server();
    m_givenConnectOptions = options.connectOptions;
    m_sql.emplace(m_database->handle());
    m_console = &console;
    console.setLoss([this] { return loss(); });
    if (access == DatabaseAccess::ReadOnly && !m_sql->refuseWriting())
        return console.fail(ExitStatus::NoDatabase, m_sql->failure());
    return std::nullopt;
}

QString SiteDatabase::loss() const
{
    if (SqlSession(m_sql->database()).run(QLatin1String(kAnswer)))
        return {};
    return QStringLiteral("The database server %1 has closed the connection or did not answer in "
                          "time (see --read-timeout)")
        .arg(m_server);
}
