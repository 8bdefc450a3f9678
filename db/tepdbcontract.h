#pragma once

/// What the attendance database (TEPDB) must have for the classes here and for the worker: the
/// tables, columns, unique keys and routines that their SQL names. A site's tables may hold more.
/// reference-db/schema.sql describes the columns' meaning and units; a test compares it with this
/// header.
///
/// Lists of names are texts, the names separated by one blank.
namespace TepDbContract {

enum class KeyUse {
    None, ///< No key in this place.
    Upsert, ///< "ON DUPLICATE KEY UPDATE" must hit it: without it rows double.
    Identity ///< Identifies a row; no statement depends on it.
};

struct UniqueKey {
    const char *columns = "";
    KeyUse use = KeyUse::None;
};

struct Table {
    const char *name;
    const char *columns; ///< Every column that a statement names.
    UniqueKey keys[2] = {};
    /// Column that the database fills on insert and whose value the insert's caller reads back.
    const char *generatedColumn = "";
};

enum class RoutineKind { Function, Procedure };

struct Routine {
    const char *name;
    RoutineKind kind;
    int argumentCount;
};

// clang-format off
inline constexpr Table kTables[] = {
    // People
    {"people",        "uid pid pamId title name surname title2 phone begin end created edited editor"
                      " rsBegin rsEnd rsText type did calendarID bid status lastCalc calc gid",
                      {{"pid", KeyUse::Upsert}, {"uid", KeyUse::Identity}}, "uid"},
    {"people_pam",    "uid id", {{"uid", KeyUse::Upsert}}},
    {"atten",         "uid date ok lock man", {{"uid date", KeyUse::Identity}}},

    // Branches and what belongs to them
    {"branches",      "bid number name address note wh1b wh1e wh2b wh2e wh3b wh3e wh4b wh4e wh5b wh5e"
                      " wh6b wh6e wh7b wh7e mgid", {{"bid", KeyUse::Identity}}, "bid"},
    {"brape",         "bid uid since", {{"bid uid", KeyUse::Upsert}}},
    {"bradm",         "bid aid", {{"bid aid", KeyUse::Upsert}}},
    {"sections",      "secid", {{"secid", KeyUse::Identity}}},
    {"sec_branch",    "secid bid", {{"secid", KeyUse::Upsert}}},
    {"bas",           "bid attrid secid", {{"bid attrid secid", KeyUse::Upsert}}},

    // Calendars
    {"mastergroups",  "mgid", {{"mgid", KeyUse::Identity}}},
    {"groups",        "gid parent calendarID", {{"gid", KeyUse::Identity}}},
    {"groups_plan",   "gid uid since", {{"uid since", KeyUse::Upsert}}},
    {"groups_month",  "gid uid month", {{"uid month", KeyUse::Upsert}}},

    // Funds
    {"funds",         "fid iid unit", {{"fid", KeyUse::Identity}}},
    {"funds_move",    "type day month value fid uid", {{"type day fid uid", KeyUse::Upsert}}},

    // Administrators
    {"admins",        "aid personalNumber", {{"aid", KeyUse::Identity}}},
    {"admins_people", "aid uid request", {{"aid uid", KeyUse::Upsert}}},

    // Terminals; the queue and the time zones have no key: their rows may repeat
    {"term",          "tid bid status flags syn", {{"tid", KeyUse::Identity}}},
    {"term_sync",     "tid type ref ref_col ref_id ref_col2 ref_id2 created flags"},
    {"people_term",   "tid uid", {{"tid uid", KeyUse::Upsert}}},
    {"inters",        "iid", {{"iid", KeyUse::Identity}}},
    {"inters_term",   "iid tid", {{"iid tid", KeyUse::Identity}}},
    {"pzt",           "zid tid"},

    // Settings
    {"vars",          "name value", {{"name", KeyUse::Upsert}}},
};

inline constexpr Routine kRoutines[] = {
    {"midnightFromTs",     RoutineKind::Function,  1}, // timestamp: midnight of its day
    {"monthFromTimestamp", RoutineKind::Function,  1}, // timestamp: its month, yyyyMM
    {"getCurrentGid",      RoutineKind::Function,  3}, // uid, month, default gid: gid in force or NULL
    {"updateTermsSync",    RoutineKind::Procedure, 2}, // uid, bit of term.flags: marks terminals
};
// clang-format on

} // namespace TepDbContract
