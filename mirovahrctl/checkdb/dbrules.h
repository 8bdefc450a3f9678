#pragma once

#include <QHash>
#include <QString>

class DbAssessment;
class DbSchema;
class PluginConfiguration;

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

/// Settings of the server by name; names are in lower case.
using ServerSettings = QHash<QString, QString>;

void checkServer(DbAssessment &check);
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
/// Reads the settings that decide whether tables without a primary key work.
ServerSettings readKeySettings(DbAssessment &check);
void checkKeylessTables(DbAssessment &check, const DbSchema &schema,
                        const ServerSettings &settings);
/// Whether the plugin's statements find their rows by keys.
void checkStatements(DbAssessment &check, const DbSchema &schema);
void checkRoutines(DbAssessment &check, Account account);
void checkRights(DbAssessment &check, const DbSchema &schema);
/// For a database that has all tables and columns.
void checkContent(DbAssessment &check);

} // namespace DbRules
