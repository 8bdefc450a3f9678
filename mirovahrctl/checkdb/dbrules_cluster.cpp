// A node of a Galera cluster: its state, its settings, and the engines of the tables.

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/checkdb/dbassessment.h"
#include "mirovahrctl/checkdb/dbrules.h"
#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/site/dbschema.h"

#include <QStringList>

namespace {

/// wsrep_local_state of a node that has all that the cluster has committed.
constexpr char kSynced[] = "4";
/// Conflicts of one statement that are repeated before the plugin gets an error.
constexpr int kEnoughRetries = 5;
/// The bit of wsrep_sync_wait that is about reading.
constexpr int kWaitBeforeReading = 1;

QString valueOf(const ServerSettings &settings, const char *name)
{
    return settings.value(QLatin1String(name), Text::tr("unknown", "of a setting"));
}

/// Why the node refuses every statement on a table; empty when it does not.
QString refusal(const ServerSettings &settings, const ServerSettings &status)
{
    const QString rejected =
        settings.value(QStringLiteral("wsrep_reject_queries"), QStringLiteral("NONE"));
    if (rejected != QLatin1String("NONE"))
        return QStringLiteral("wsrep_reject_queries = %1").arg(rejected);
    if (!isOn(status, "wsrep_ready"))
        return Text::tr("state %1, wsrep_ready = %2")
            .arg(nodeState(status), valueOf(status, "wsrep_ready"));
    return QString();
}

/// False when the node refuses statements.
bool checkState(DbAssessment &check, const ServerSettings &settings, const ServerSettings &status)
{
    const QString component = valueOf(status, "wsrep_cluster_status");
    if (component != QLatin1String("Primary")) {
        check.reportViolation(
            CheckDbRules::kClusterNotPrimary, {},
            Text::tr("The node has lost the majority of its cluster (wsrep_cluster_status = "
                     "%1): it refuses every statement on a table with error 1047")
                .arg(component));
        return false;
    }
    const QString refused = refusal(settings, status);
    if (!refused.isEmpty()) {
        check.reportViolation(CheckDbRules::kClusterNotSynced, {},
                              Text::tr("The node refuses every statement on a table with "
                                       "error 1047 (%1)")
                                  .arg(refused));
        return false;
    }
    if (valueOf(status, "wsrep_local_state") != QLatin1String(kSynced)) {
        Finding finding = makeFinding(
            CheckDbRules::kClusterNotSynced,
            Text::tr("The node is not in step with the cluster (state %1): what is read here "
                     "may lack what other nodes have committed.")
                .arg(nodeState(status)));
        finding.severity = CheckDbRules::kClusterNotSynced.otherSeverity;
        check.report(finding);
    }
    return true;
}

void checkFormat(DbAssessment &check, const ServerSettings &settings)
{
    const QString forced =
        settings.value(QStringLiteral("wsrep_forced_binlog_format"), QStringLiteral("NONE"));
    const QString format =
        forced == QLatin1String("NONE") ? valueOf(settings, "binlog_format") : forced;
    if (format == QLatin1String("ROW"))
        return;
    check.report(CheckDbRules::kClusterBinlogFormat, {},
                 Text::tr("binlog_format is %1: a Galera cluster replicates rows only, and "
                          "other formats can leave the nodes with different data")
                     .arg(format));
}

void checkAutomaticNumbers(DbAssessment &check, const ServerSettings &settings)
{
    const QString mode = valueOf(settings, "innodb_autoinc_lock_mode");
    if (mode == QLatin1String("2"))
        return;
    check.report(CheckDbRules::kClusterAutoincLockMode, {},
                 Text::tr("innodb_autoinc_lock_mode is %1: inserts keep their table's counter "
                          "locked, and inserts that arrive from other nodes can block each "
                          "other until the node stands still")
                     .arg(mode));
}

void checkRetries(DbAssessment &check, const ServerSettings &settings)
{
    const QString retries = valueOf(settings, "wsrep_retry_autocommit");
    if (retries.toInt() >= kEnoughRetries)
        return;
    check.report(CheckDbRules::kClusterFewRetries, {},
                 Text::tr("wsrep_retry_autocommit is %1: a statement that conflicts more "
                          "often with what other nodes write fails with error 1213 "
                          "(deadlock), and the plugin does not repeat it")
                     .arg(retries));
}

void checkReading(DbAssessment &check, const ServerSettings &settings)
{
    const QString wait = valueOf(settings, "wsrep_sync_wait");
    if ((wait.toInt() & kWaitBeforeReading) != 0)
        return;
    check.report(CheckDbRules::kClusterStaleReads, {},
                 Text::tr("wsrep_sync_wait is %1, without the bit 1: a query may miss what "
                          "other nodes have committed. After a fail-over the plugin may not "
                          "see what it has just written")
                     .arg(wait));
}

/// What a node does to the one that it copies when it joins the cluster; empty when that node goes
/// on working.
QString burdenOfTransfer(const ServerSettings &settings)
{
    static const QStringList working{QStringLiteral("mariabackup"), QStringLiteral("xtrabackup"),
                                     QStringLiteral("xtrabackup-v2"), QStringLiteral("clone")};
    static const QStringList blocking{QStringLiteral("rsync"), QStringLiteral("rsync_wan"),
                                      QStringLiteral("mysqldump")};
    const QString method = valueOf(settings, "wsrep_sst_method");
    if (isOn(settings, "wsrep_sst_donor_rejects_queries"))
        return Text::tr("wsrep_sst_donor_rejects_queries is ON: a node that is being copied "
                        "to another one refuses every query meanwhile");
    if (blocking.contains(method))
        return Text::tr("wsrep_sst_method is %1: a node that is being copied to another one "
                        "makes every write wait until the transfer has ended")
            .arg(method);
    if (!working.contains(method))
        return Text::tr("wsrep_sst_method is %1, which this check does not know: a node that "
                        "is being copied to another one may make every write wait")
            .arg(method);
    return QString();
}

void checkTransfer(DbAssessment &check, const ServerSettings &settings)
{
    const QString burden = burdenOfTransfer(settings);
    if (!burden.isEmpty())
        check.report(CheckDbRules::kClusterDonorBlocked, {}, burden);
}

} // namespace

bool DbRules::checkCluster(DbAssessment &check, const ServerSettings &settings,
                           const ServerSettings &status)
{
    check.begin("cluster", Text::tr("Cluster"));
    check.writer().fact(QStringLiteral("clusterSize"), Text::tr("Members of the cluster"),
                        status.value(QStringLiteral("wsrep_cluster_size")).toInt());
    check.writer().fact(QStringLiteral("nodeState"), Text::tr("State of this node"),
                        nodeState(status));
    const bool answers = checkState(check, settings, status);
    checkFormat(check, settings);
    checkAutomaticNumbers(check, settings);
    checkRetries(check, settings);
    checkReading(check, settings);
    checkTransfer(check, settings);
    check.end(Text::tr("The node is in step with its cluster, and its settings are suitable "
                       "for the plugin."));
    return answers;
}

void DbRules::checkNoCluster(DbAssessment &check, const ServerSettings &settings, bool nodesWanted)
{
    const QString provider = settings.value(QStringLiteral("wsrep_provider"));
    const bool isPrepared = !provider.isEmpty() && provider != QLatin1String("none");
    if (!isPrepared && !nodesWanted)
        return;
    check.begin("cluster", Text::tr("Cluster"));
    if (isPrepared) {
        check.report(CheckDbRules::kClusterOff, {},
                     Text::tr("The server has a wsrep_provider, and wsrep_on = OFF for this "
                              "connection: what it writes stays on this server, and the other "
                              "nodes of its cluster do not get it"));
    }
    check.end(Text::tr("The server does not belong to a cluster: there are no other nodes."));
}

void DbRules::checkClusterTables(DbAssessment &check, const DbSchema &schema)
{
    QStringList others;
    for (const TepDbContract::Table &entry : TepDbContract::kTables) {
        const QString table = QString::fromLatin1(entry.name);
        const QString engine = schema.engine(table);
        if (!engine.isEmpty() && engine != QLatin1String("InnoDB"))
            others += QStringLiteral("%1 (%2)").arg(table, engine);
    }
    check.begin("cluster-tables", Text::tr("Tables on the cluster"));
    if (!others.isEmpty()) {
        check.report(CheckDbRules::kClusterEngine, {},
                     Text::tr("Only tables of the engine InnoDB are replicated with their "
                              "conflicts noticed. These have another one, so that their rows "
                              "may differ between the nodes: %1")
                         .arg(others.join(QStringLiteral(", "))));
    }
    check.end(Text::tr("All tables have the engine that the cluster replicates."));
}
