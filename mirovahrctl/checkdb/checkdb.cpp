#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/wording.h"
#include "mirovahrctl/site/dbschema.h"
#include "mirovahrctl/site/sitedatabase.h"

namespace {

constexpr char kDescription[] =
    "Checks whether the attendance database meets the plugin's requirements: the server,\n"
    "the connection, tables, columns, keys and routines, the rights of the account, and\n"
    "some of the data. Writes nothing: the server itself refuses it.\n\n"
    "Check twice. First connect as the plugin does: with its account, its connect options\n"
    "and its time zone (TZ). That account sees only the columns on which it has rights. A\n"
    "column without a default value that the site added makes every new row fail; only a\n"
    "second check finds it, with an account that reads whole tables and --other-account.\n"
    "With --config the check is about the department and the relationship states of that\n"
    "configuration, and otherwise about any.";

DbRules::Account accountOf(const CommandLine &line)
{
    return line.isSet("other-account") ? DbRules::Account::Another : DbRules::Account::OfThePlugin;
}

/// False when the tables are not complete enough for their data to be checked.
bool checkSchema(DbAssessment &check, DbRules::Account account,
                 const PluginConfiguration *configuration)
{
    DbSchema schema;
    if (!schema.load(check.sql()))
        return false;
    const int violationsBefore = check.violationCount();
    DbRules::checkTables(check, schema);
    DbRules::checkColumns(check, schema, configuration != nullptr);
    DbRules::checkKeys(check, schema);
    DbRules::checkKeylessTables(check, schema, DbRules::readKeySettings(check));
    DbRules::checkStatements(check, schema);
    if (account == DbRules::Account::OfThePlugin)
        DbRules::checkRights(check, schema);
    const bool readable = check.violationCount() == violationsBefore;
    if (configuration != nullptr)
        DbRules::checkConfiguration(check, schema, *configuration);
    return readable;
}

void checkAll(DbAssessment &check, DbRules::Account account, const QString &connectOptions,
              const PluginConfiguration *configuration)
{
    DbRules::checkServer(check);
    DbRules::checkConnection(check, account, connectOptions);
    DbRules::checkTime(check);
    const bool readable = checkSchema(check, account, configuration);
    DbRules::checkRoutines(check, account);
    if (readable)
        DbRules::checkContent(check);
}

QString verdict(const DbAssessment &check)
{
    if (check.isContractBroken()) {
        return QStringLiteral("The plugin cannot work properly with this database: %1.")
            .arg(Wording::counted(check.violationCount(), QStringLiteral("requirement is violated"),
                                  QStringLiteral("requirements are violated")));
    }
    const QString begin = check.isPartlySeen()
        ? QStringLiteral("As far as this account can see, the")
        : QStringLiteral("The");
    if (check.seriousCount() == 0)
        return QStringLiteral("%1 database meets the plugin's requirements.").arg(begin);
    return QStringLiteral("%1 plugin can work with this database; %2.")
        .arg(begin,
             Wording::counted(check.seriousCount(), QStringLiteral("finding needs attention"),
                              QStringLiteral("findings need attention")));
}

ExitStatus check(const CommandLine &line, Report &report, Console &console)
{
    PluginConfiguration configuration;
    if (line.isSet("config")) {
        if (const auto end = configuration.read(line, console))
            return *end;
    }
    SiteDatabase site;
    if (const auto end = site.open(line, DatabaseAccess::ReadOnly, console))
        return *end;
    const QSqlDatabase &db = site.sql().database();
    report.begin(line.subcommand(), QStringLiteral("Database %1").arg(db.databaseName()));
    DbAssessment check(db, report);
    checkAll(check, accountOf(line), site.givenConnectOptions(),
             line.isSet("config") ? &configuration : nullptr);
    // A statement that may fail may have been the last one.
    if (check.sql().failed() || !site.loss().isEmpty())
        return console.fail(ExitStatus::NoDatabase, check.sql().failure());
    return report.conclude(check.isContractBroken() ? ExitStatus::ContractBroken
                                                    : report.findingsStatus(),
                           verdict(check));
}

} // namespace

ExitStatus runCheckDb(const QStringList &arguments, Console &console)
{
    CommandLine line("check-db", kDescription);
    line.addFlag("other-account", "The account is not the plugin's: do not check its rights.");
    line.addOption("config", "file", "The plugin's INI file, whose values must fit the columns.");
    line.addReportOptions(CommandLine::Page::NotOffered);
    line.addDatabaseOptions();
    return Report::run(line, arguments, console,
                       [&](Report &report) { return check(line, report, console); });
}
