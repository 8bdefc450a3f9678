#pragma once

#include <QHash>
#include <QString>

class DbCheck;
class DbSchema;

/// The rules of check-db. Each function writes a section of the report.
namespace DbRules {

/// Whose account the connection uses. Another one than the plugin's may look, but its rights say
/// nothing about the plugin.
enum class Account { OfThePlugin, Another };

/// Settings of the server by their names, which are in lower case.
using ServerSettings = QHash<QString, QString>;

void checkServer(DbCheck &check);
void checkConnection(DbCheck &check);
void checkTime(DbCheck &check);
void checkTables(DbCheck &check, const DbSchema &schema);
void checkColumns(DbCheck &check, const DbSchema &schema);
void checkKeys(DbCheck &check, const DbSchema &schema);
/// The settings that decide about tables without a primary key.
ServerSettings readKeySettings(DbCheck &check);
void checkKeylessTables(DbCheck &check, const DbSchema &schema, const ServerSettings &settings);
void checkRoutines(DbCheck &check, Account account);
void checkRights(DbCheck &check, const DbSchema &schema);
/// Only for tables that are all there.
void checkContent(DbCheck &check);

} // namespace DbRules
