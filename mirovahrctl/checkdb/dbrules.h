#pragma once

#include "mirovahrctl/checkdb/serversettings.h"

#include <QString>
#include <QVector>

class DbAssessment;
class DbSchema;
class PluginConfiguration;
struct AskedNode;

/// What a database server is, by what its VERSION() returns.
struct ServerVersion {
    bool isMariaDb = false;
    int major = 0;
    QString text; ///< as the server gives it, such as "10.11.6-MariaDB-0+deb12u1"

    static ServerVersion parse(const QString &text);

    /// "MariaDB 10.11.6-MariaDB-0+deb12u1", "MySQL 8.0.35".
    QString name() const;

    /// Whether a table can be called `groups` only in quotes: in MySQL from 8 on.
    bool reservesGroups() const { return !isMariaDb && major >= 8; }
};

/// The rules of check-db. Each function writes a section of the report.
namespace DbRules {

/// Whose account the connection uses. The rights of another account say nothing about the plugin.
enum class Account { OfThePlugin, Another };

void checkServer(DbAssessment &check);
/// For a node of a cluster: its state and its settings. \a status: of readClusterStatus(). False
/// when the node refuses statements on tables, so that nothing else can be checked.
bool checkCluster(DbAssessment &check, const ServerSettings &settings,
                  const ServerSettings &status);
/// For a server that is none. \a nodesWanted: a cluster was expected.
void checkNoCluster(DbAssessment &check, const ServerSettings &settings, bool nodesWanted);
/// For a node of a cluster: the engines of the tables.
void checkClusterTables(DbAssessment &check, const DbSchema &schema);
/// Compares the other nodes of a cluster with this one. \a unnamed: how many of its members have
/// no address.
void checkNodes(DbAssessment &check, const AskedNode &own, const QVector<AskedNode> &others,
                int unnamed);
/// \a connectOptions: those that the user gave, which for the plugin's account are the attendance
/// server's.
void checkConnection(DbAssessment &check, Account account, const QString &connectOptions);
void checkTime(DbAssessment &check);
void checkTables(DbAssessment &check, const DbSchema &schema);
/// Leaves the values of the INI file to checkConfiguration() when they are known.
void checkColumns(DbAssessment &check, const DbSchema &schema, bool configurationIsKnown);
void checkConfiguration(DbAssessment &check, const DbSchema &schema,
                        const PluginConfiguration &configuration);
void checkKeys(DbAssessment &check, const DbSchema &schema);
void checkKeylessTables(DbAssessment &check, const DbSchema &schema,
                        const ServerSettings &settings);
/// Whether the plugin's statements find their rows by keys.
void checkStatements(DbAssessment &check, const DbSchema &schema);
void checkRoutines(DbAssessment &check, Account account);
void checkRights(DbAssessment &check, const DbSchema &schema);
/// For a database that has all tables and columns.
void checkContent(DbAssessment &check);

} // namespace DbRules
