#include "mirovahrctl/site/sitedatabase.h"

#include "cli/database.h"
#include "cli/databaseoptions.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"

SiteDatabase::SiteDatabase() = default;

SiteDatabase::~SiteDatabase() = default;

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
    m_sql.emplace(m_database->handle());
    if (access == DatabaseAccess::ReadOnly && !m_sql->refuseWriting())
        return console.fail(ExitStatus::NoDatabase, m_sql->failure());
    return std::nullopt;
}
