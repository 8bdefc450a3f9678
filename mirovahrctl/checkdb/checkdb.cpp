#include "cli/text.h"
#include "mirovahrctl/checkdb/clusternodes.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/recordedreport.h"
#include "mirovahrctl/site/dbschema.h"
#include "mirovahrctl/site/sitedatabase.h"

namespace {

constexpr char kDescription[] = QT_TRANSLATE_NOOP(
    "Text",
    "Checks whether the attendance database meets the plugin's requirements: the server, the "
    "connection, tables, columns, keys and routines, the rights of the account, and some of the "
    "data. Writes nothing: the server itself refuses it.\n\n"
    "Check twice. First connect as the plugin does: with its account, its connect options and its "
    "time zone (TZ). That account sees only the columns on which it has rights. A column without a "
    "default value that the site added makes every new row fail; only a second check finds it, "
    "with an account that reads whole tables and --other-account. With --config the check is about "
    "the department and the relationship states of that configuration, and otherwise about any.");

/// What the command line asks for.
struct Request {
    DbRules::Account account;
    bool everyNode;
    const PluginConfiguration *configuration; ///< null: any
};

Request requestOf(const CommandLine &line, const PluginConfiguration &configuration)
{
    return {line.isSet("other-account") ? DbRules::Account::Another : DbRules::Account::OfThePlugin,
            line.isSet("every-node"), line.isSet("config") ? &configuration : nullptr};
}

/// False when the tables are not complete enough for their data to be checked.
bool checkSchema(DbAssessment &check, const Request &request, const ServerSettings &settings)
{
    DbSchema schema;
    if (!schema.load(check.sql()))
        return false;
    const int violationsBefore = check.violationCount();
    DbRules::checkTables(check, schema);
    DbRules::checkColumns(check, schema, request.configuration != nullptr);
    DbRules::checkKeys(check, schema);
    DbRules::checkKeylessTables(check, schema, settings);
    if (isClusterNode(settings))
        DbRules::checkClusterTables(check, schema);
    DbRules::checkStatements(check, schema);
    if (request.account == DbRules::Account::OfThePlugin)
        DbRules::checkRights(check, schema);
    const bool readable = check.violationCount() == violationsBefore;
    if (request.configuration != nullptr)
        DbRules::checkConfiguration(check, schema, *request.configuration);
    return readable;
}

/// False when the node of a cluster refuses statements.
bool checkCluster(DbAssessment &check, SiteDatabase &site, const Request &request,
                  const ServerSettings &settings)
{
    if (!isClusterNode(settings)) {
        DbRules::checkNoCluster(check, settings, request.everyNode);
        return true;
    }
    if (!DbRules::checkCluster(check, settings, readClusterStatus(check.sql())))
        return false;
    if (request.everyNode) {
        const ClusterNodes nodes = ClusterNodes::ask(site);
        DbRules::checkNodes(check, nodes.own(), nodes.others(), nodes.unnamed());
    }
    return true;
}

/// False when the node of a cluster refuses statements: then only its state was checked.
bool checkAll(DbAssessment &check, SiteDatabase &site, const Request &request)
{
    // The cluster first: a node that has lost it may answer nothing but SHOW.
    const ServerSettings settings = readSettings(check.sql());
    if (!checkCluster(check, site, request, settings))
        return false;
    DbRules::checkServer(check);
    DbRules::checkConnection(check, request.account, site.givenConnectOptions());
    DbRules::checkTime(check);
    const bool readable = checkSchema(check, request, settings);
    DbRules::checkRoutines(check, request.account);
    if (readable)
        DbRules::checkContent(check);
    return true;
}

QString verdict(const DbAssessment &check)
{
    if (check.isContractBroken()) {
        return Text::tr(
            "The plugin cannot work properly with this database: %Ln requirement(s) are "
            "violated.",
            nullptr, check.violationCount());
    }
    const int findings = check.seriousCount();
    if (check.isPartlySeen()) {
        return findings == 0
            ? Text::tr(
                "As far as this account can see, the database meets the plugin's requirements.")
            : Text::tr("As far as this account can see, the plugin can work with this database; "
                       "%Ln finding(s) need attention.",
                       nullptr, findings);
    }
    return findings == 0 ? Text::tr("The database meets the plugin's requirements.")
                         : Text::tr("The plugin can work with this database; %Ln finding(s) need "
                                    "attention.",
                                    nullptr, findings);
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
    // On a lost connection statements that may fail fail for no reason of the database's.
    RecordedReport assessed;
    DbAssessment check(db, assessed);
    const bool answers = checkAll(check, site, requestOf(line, configuration));
    // Such a statement may have been the last one.
    if (check.sql().failed() || (answers && !site.loss().isEmpty()))
        return console.fail(ExitStatus::NoDatabase, check.sql().failure());
    report.begin(line.subcommand(), Text::tr("Database %1").arg(db.databaseName()));
    assessed.replay(report);
    return report.conclude(check.isContractBroken() ? ExitStatus::ContractBroken
                                                    : report.findingsStatus(),
                           verdict(check));
}

} // namespace

ExitStatus runCheckDb(const QStringList &arguments, Console &console)
{
    CommandLine line("check-db", kDescription);
    line.addFlag("other-account",
                 Text::tr("The account is not the plugin's: do not check its rights."));
    line.addFlag("every-node",
                 Text::tr("On a cluster: ask the other nodes, too, and report what differs."));
    line.addOption("config", Text::tr("file"),
                   Text::tr("The plugin's INI file, whose values must fit the columns."));
    line.addReportOptions(CommandLine::Page::NotOffered);
    line.addDatabaseOptions();
    return Report::run(line, arguments, console,
                       [&](Report &report) { return check(line, report, console); });
}
