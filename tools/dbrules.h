#pragma once

class DbCheck;
class DbSchema;

/// The rules of check-db. Each function writes a section of the report.
namespace DbRules {

/// Whose account the connection uses. Another one than the plugin's may look, but its rights say
/// nothing about the plugin.
enum class Account { OfThePlugin, Another };

void checkServer(DbCheck &check);
void checkConnection(DbCheck &check);
void checkTime(DbCheck &check);
void checkTables(DbCheck &check, const DbSchema &schema);
void checkColumns(DbCheck &check, const DbSchema &schema);
void checkKeys(DbCheck &check, const DbSchema &schema);
void checkRoutines(DbCheck &check, Account account);
void checkRights(DbCheck &check, const DbSchema &schema);
/// Only for tables that are all there.
void checkContent(DbCheck &check);

} // namespace DbRules
