#pragma once

#include <QString>
#include <QStringList>

/// The privileges that the plugin's account needs, as reference-db/grants.sql grants them. Two
/// tests compare this header with that file. What TepDbContract names beyond this is used only by
/// other components of the attendance server.
namespace PluginRights {

/// The columns of a table by privilege: lists of names, separated by one space.
struct TableRights {
    const char *table;
    const char *select;
    const char *insert = "";
    const char *update = "";
    /// Columns that some inserts name and others leave to their defaults.
    const char *notAlwaysInserted = "";
};

// clang-format off
inline constexpr TableRights kTables[] = {
    {"people",        "uid pid pamId title name surname title2 phone begin end created edited rsBegin"
                      " rsEnd rsText type did calendarID bid status lastCalc calc gid",
                      "pid pamId title name surname title2 phone begin end created rsBegin rsEnd rsText"
                      " type did calendarID bid",
                      "pid pamId title name surname title2 phone begin end created edited editor rsBegin"
                      " rsEnd rsText type did calendarID bid status lastCalc calc"},
    {"people_pam",    "id", "uid id", "uid id"},
    {"atten",         "uid date ok lock man", "", "ok"},
    {"branches",      "bid number mgid"},
    {"brape",         "bid uid since", "bid uid since", "bid uid since"},
    {"bradm",         "bid aid"},
    {"mastergroups",  "mgid"},
    {"groups",        "gid parent calendarID"},
    {"groups_plan",   "gid uid since", "gid uid since", "gid uid since"},
    {"groups_month",  "gid uid month", "gid uid month", "gid uid month"},
    {"funds",         "fid iid unit"},
    {"funds_move",    "type day value fid uid", "type day month value fid uid",
                      "type day month value fid uid"},
    {"admins",        "aid personalNumber"},
    {"admins_people", "aid uid request", "aid uid request", "aid uid request", "request"},
    {"term",          "tid bid status flags syn", "", "syn"},
    {"term_sync",     "", "tid type ref ref_col ref_id created flags"},
    {"people_term",   "tid uid", "tid uid", "tid uid"},
    {"vars",          "name value", "name value", "name value"},
};
// clang-format on

/// The names of such a list.
inline QStringList names(const char *list)
{
    return QString::fromLatin1(list).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// The privileges for a table; null when the plugin does not use it.
const TableRights *find(const QString &table);

/// Whether the plugin reads or writes a column.
bool usesColumn(const QString &table, const QString &column);

/// Whether the plugin writes a column, by insert or by update.
bool writesColumn(const QString &table, const QString &column);

/// Whether the plugin inserts or updates rows of a table.
bool writesTo(const QString &table);

/// Whether the plugin inserts rows into a table.
bool insertsInto(const QString &table);

} // namespace PluginRights
