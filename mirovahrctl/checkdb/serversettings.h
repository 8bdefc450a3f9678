#pragma once

#include <QHash>
#include <QString>

class SqlSession;

/// Settings, or values of the status, of a database server by name; names are in lower case.
using ServerSettings = QHash<QString, QString>;

/// Reads the settings on which rules depend, as the connection has them. Those that the server does
/// not know are missing.
ServerSettings readSettings(SqlSession &server);

/// Reads what a node of a cluster says about itself and the cluster.
ServerSettings readClusterStatus(SqlSession &server);

/// Whether a setting is ON.
bool isOn(const ServerSettings &settings, const char *name);

/// Whether a setting that is a list, separated by commas, has a word.
bool has(const ServerSettings &settings, const char *name, const char *word);

/// Whether the server replicates as a node of a Galera cluster what the connection writes.
bool isClusterNode(const ServerSettings &settings);

/// The state of a node by its status, such as "Synced", or "unknown".
QString nodeState(const ServerSettings &status);
