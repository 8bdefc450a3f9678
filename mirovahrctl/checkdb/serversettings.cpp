#include "mirovahrctl/checkdb/serversettings.h"

#include "cli/text.h"
#include "mirovahrctl/site/sqlsession.h"

#include <QStringList>

namespace {

constexpr char kSelectSettings[] =
    "SHOW VARIABLES WHERE Variable_name IN ('binlog_format', 'default_storage_engine',"
    " 'default_tmp_storage_engine', 'enforce_storage_engine', 'innodb_autoinc_lock_mode',"
    " 'innodb_force_primary_key', 'sql_mode', 'wsrep_certify_nonPK', 'wsrep_forced_binlog_format',"
    " 'wsrep_mode', 'wsrep_on', 'wsrep_provider', 'wsrep_reject_queries', 'wsrep_retry_autocommit',"
    " 'wsrep_sst_donor_rejects_queries', 'wsrep_sst_method', 'wsrep_sync_wait')";

constexpr char kSelectClusterStatus[] =
    "SHOW STATUS WHERE Variable_name IN ('wsrep_cluster_size', 'wsrep_cluster_state_uuid',"
    " 'wsrep_cluster_status', 'wsrep_gcomm_uuid', 'wsrep_incoming_addresses', 'wsrep_local_index',"
    " 'wsrep_local_state', 'wsrep_local_state_comment', 'wsrep_ready')";

ServerSettings read(SqlSession &server, const char *query)
{
    ServerSettings settings;
    const QVector<QStringList> rows = server.rows(QLatin1String(query));
    for (const QStringList &row : rows)
        settings.insert(row.at(0).toLower(), row.at(1));
    return settings;
}

} // namespace

ServerSettings readSettings(SqlSession &server)
{
    return read(server, kSelectSettings);
}

ServerSettings readClusterStatus(SqlSession &server)
{
    return read(server, kSelectClusterStatus);
}

bool isOn(const ServerSettings &settings, const char *name)
{
    return settings.value(QLatin1String(name)) == QLatin1String("ON");
}

bool has(const ServerSettings &settings, const char *name, const char *word)
{
    const QStringList words = settings.value(QLatin1String(name)).split(QLatin1Char(','));
    return words.contains(QLatin1String(word));
}

bool isClusterNode(const ServerSettings &settings)
{
    // A server that was built for clusters and runs alone may say ON.
    return isOn(settings, "wsrep_on")
        && settings.value(QStringLiteral("wsrep_provider")) != QLatin1String("none");
}

QString nodeState(const ServerSettings &status)
{
    return status.value(QStringLiteral("wsrep_local_state_comment"),
                        Text::tr("unknown", "of a state"));
}
