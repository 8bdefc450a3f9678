#pragma once

#include <QString>
#include <QStringList>

#include <string_view>

/// What the system knows of the attendance database (TEPDB): tables, columns, unique keys and
/// routines, and what the plugin does with each column. Everything else that needs to know it asks
/// here; a site's tables may hold more.
///
/// Tests compare reference-db/schema.sql, which describes the columns' meaning and units, and
/// reference-db/grants.sql with this header.
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
    UniqueKey keys[2] = {};
    /// Column that the database fills on insert and whose value the insert's caller reads back.
    const char *generatedColumn = "";
    /// The columns that only other components of the attendance server use, by the classes here.
    const char *columnsElsewhere = "";
    /// The primary key of a table whose rows may repeat, AUTO_INCREMENT and invisible. No statement
    /// names it: a site may lack it, or call it otherwise.
    const char *ownNumber = "";
};

/// Privileges of the plugin's account on a column; they add up.
enum Right : unsigned {
    S = 1, ///< SELECT
    I = 2, ///< INSERT
    U = 4, ///< UPDATE; MariaDB wants it for every column of an upsert
    Omitted = 8 ///< no privilege: some inserts leave the column to its default
};

enum class Kind { Nothing, Number, Time, Id, Text };

/// What the plugin writes into a column.
struct Written {
    Kind kind = Kind::Nothing;
    double from = 0; ///< the smallest number, or second since 1970
    double to = 0; ///< the largest
    int length = 0; ///< characters of the plugin's own longest text; 0 for texts of others
    const char *owner = ""; ///< the column whose ids are written: "people.uid"
    const char *key = ""; ///< the key or group of the INI file that determines the value
    int room = 0; ///< for texts of the INI file: characters that reference-db/schema.sql grants
    bool null = false; ///< also NULL
    bool isNow = false; ///< the moment of writing, UNIX_TIMESTAMP()
};

/// How a value is shown to people.
enum class Shown {
    Plain,
    Day, ///< a Unix time, 0 and NULL for none
    DayAfter, ///< the day after a Unix time
    Branch,
    CalendarGroup,
    Editor, ///< an administrator, 0 for HR
    CalculationDue, ///< a Unix time, 0 when a calculation is due
    Hundredths, ///< of a day
    Flags, ///< kinds of data of a terminal
    Calculated, ///< below 0: to be calculated
    YesNo,
};

/// A column that the plugin uses.
struct Column {
    const char *table;
    const char *name;
    unsigned rights; ///< the plugin's
    Written written = {};
    const char *label = ""; ///< its name for people, for Text::tr()
    Shown shown = Shown::Plain;

    /// "people.uid"
    QString fullName() const;
};

enum class RoutineKind { Function, Procedure };

struct Routine {
    const char *name;
    RoutineKind kind;
    int argumentCount;
};

/// How the plugin finds rows of a table that may be large. Without a key for it each such statement
/// walks the whole table.
struct Lookup {
    const char *table;
    const char *columns; ///< compared for equality; by the last of them alone few rows remain
};

inline constexpr double kUnsigned16 = 65535.0;
inline constexpr double kUnsigned32 = 4294967295.0;

constexpr Written number(double from, double to)
{
    return {Kind::Number, from, to};
}

constexpr Written time(double from, double to)
{
    return {Kind::Time, from, to};
}

/// Any day that the export may name: of the years 1 to 9999, in any time zone.
constexpr Written day()
{
    return time(-62135683200.0, 253402387199.0);
}

/// A moment that the server determines: UNIX_TIMESTAMP() ends there up to MariaDB 11.4.
constexpr Written serverTime()
{
    return time(0, 2147483647.0);
}

constexpr Written now()
{
    Written written = serverTime();
    written.isNow = true;
    return written;
}

/// A month such as 202403.
constexpr Written month()
{
    return number(0, 999912.0);
}

constexpr Written idOf(const char *owner)
{
    return {Kind::Id, 0, 0, 0, owner};
}

/// A text of the plugin's own.
constexpr Written text(int length)
{
    return {Kind::Text, 0, 0, length};
}

/// A text of HR or of the INI file, of any length.
constexpr Written anyText()
{
    return text(0);
}

constexpr Written orNull(Written written)
{
    written.null = true;
    return written;
}

/// A value of the INI file. \a written is what any such file could make of it.
constexpr Written configured(const char *key, Written written, int room = 0)
{
    written.key = key;
    written.room = room;
    return written;
}

// clang-format off
inline constexpr Table kTables[] = {
    // People
    {"people",        {{"pid", KeyUse::Upsert}, {"uid", KeyUse::Identity}}, "uid"},
    {"people_pam",    {{"uid", KeyUse::Upsert}}},
    {"atten",         {{"uid date", KeyUse::Identity}}},

    // Branches and what belongs to them
    {"branches",      {{"bid", KeyUse::Identity}}, "bid",
                      "name address note wh1b wh1e wh2b wh2e wh3b wh3e wh4b wh4e wh5b wh5e wh6b wh6e"
                      " wh7b wh7e"},
    {"brape",         {{"bid uid", KeyUse::Upsert}}},
    {"bradm",         {{"bid aid", KeyUse::Upsert}}},
    {"sections",      {{"secid", KeyUse::Identity}}, "", "secid"},
    {"sec_branch",    {{"secid", KeyUse::Upsert}}, "", "secid bid"},
    {"bas",           {{"bid attrid secid", KeyUse::Upsert}}, "", "bid attrid secid"},

    // Calendars
    {"mastergroups",  {{"mgid", KeyUse::Identity}}},
    {"groups",        {{"gid", KeyUse::Identity}}},
    {"groups_plan",   {{"uid since", KeyUse::Upsert}}},
    {"groups_month",  {{"uid month", KeyUse::Upsert}}},

    // Funds
    {"funds",         {{"fid", KeyUse::Identity}}},
    {"funds_move",    {{"type day fid uid", KeyUse::Upsert}}},

    // Administrators
    {"admins",        {{"aid", KeyUse::Identity}}},
    {"admins_people", {{"aid uid", KeyUse::Upsert}}},

    // Terminals
    {"term",          {{"tid", KeyUse::Identity}}},
    {"term_sync",     {}, "", "ref_col2 ref_id2", "id"},
    {"people_term",   {{"tid uid", KeyUse::Upsert}}},
    {"inters",        {{"iid", KeyUse::Identity}}, "", "iid"},
    {"inters_term",   {{"iid tid", KeyUse::Identity}}, "", "iid tid"},
    {"pzt",           {}, "", "zid tid", "id"},

    // Settings
    {"vars",          {{"name", KeyUse::Upsert}}},
};

inline constexpr Column kColumns[] = {
    {"people", "uid",        S,         {}, QT_TRANSLATE_NOOP("Text", "uid")},
    {"people", "pid",        S | I | U, number(0, kUnsigned32), QT_TRANSLATE_NOOP("Text", "pid")},
    {"people", "pamId",      S | I | U, text(21), QT_TRANSLATE_NOOP("Text", "payroll id")}, // 4294967295.4294967295
    {"people", "title",      S | I | U, anyText(), QT_TRANSLATE_NOOP("Text", "title")},
    {"people", "name",       S | I | U, anyText(), QT_TRANSLATE_NOOP("Text", "first name")},
    {"people", "surname",    S | I | U, anyText(), QT_TRANSLATE_NOOP("Text", "surname")},
    {"people", "title2",     S | I | U, anyText(), QT_TRANSLATE_NOOP("Text", "title after the name")},
    {"people", "phone",      S | I | U, anyText(), QT_TRANSLATE_NOOP("Text", "telephone")},
    {"people", "begin",      S | I | U, time(0, kUnsigned32), QT_TRANSLATE_NOOP("Text", "employed from"), Shown::Day},
    {"people", "end",        S | I | U, orNull(day()), QT_TRANSLATE_NOOP("Text", "employed until"), Shown::Day},
    {"people", "created",    S | I | U, now(), QT_TRANSLATE_NOOP("Text", "created"), Shown::Day},
    {"people", "edited",     S | U,     now(), QT_TRANSLATE_NOOP("Text", "last changed"), Shown::Day},
    {"people", "editor",     U,         number(0, 0), QT_TRANSLATE_NOOP("Text", "last changed by"), Shown::Editor},
    {"people", "rsBegin",    S | I | U, orNull(day()), QT_TRANSLATE_NOOP("Text", "relationship state from"), Shown::Day},
    {"people", "rsEnd",      S | I | U, orNull(day()), QT_TRANSLATE_NOOP("Text", "relationship state until"), Shown::Day},
    {"people", "rsText",     S | I | U, configured("MES", anyText(), 120), QT_TRANSLATE_NOOP("Text", "relationship state")},
    {"people", "type",       S | I | U, number(0, 4), QT_TRANSLATE_NOOP("Text", "employment type")},
    {"people", "did",        S | I | U, configured("departmentId", orNull(number(1, kUnsigned32))), QT_TRANSLATE_NOOP("Text", "department")},
    {"people", "calendarID", S | I | U, number(0, kUnsigned32), QT_TRANSLATE_NOOP("Text", "HR's calendar")},
    {"people", "bid",        S | I | U, orNull(number(0, kUnsigned16)), QT_TRANSLATE_NOOP("Text", "home branch"), Shown::Branch},
    {"people", "status",     S | U,     number(0, 1), QT_TRANSLATE_NOOP("Text", "active"), Shown::YesNo},
    {"people", "lastCalc",   S | U,     day(), QT_TRANSLATE_NOOP("Text", "attendance recalculated from"), Shown::DayAfter},
    {"people", "calc",       S | U,     number(0, 0), QT_TRANSLATE_NOOP("Text", "last calculation"), Shown::CalculationDue},
    {"people", "gid",        S,         {}, QT_TRANSLATE_NOOP("Text", "calendar group by default"), Shown::CalendarGroup},

    {"people_pam", "uid", I | U,     idOf("people.uid")},
    {"people_pam", "id",  S | I | U, number(0, 2), QT_TRANSLATE_NOOP("Text", "settings of the payroll export")},

    {"atten", "uid",  S},
    {"atten", "date", S},
    {"atten", "ok",   S | U, number(-1, -1), QT_TRANSLATE_NOOP("Text", "below 0: to be calculated"), Shown::Calculated},
    {"atten", "lock", S},
    {"atten", "man",  S},

    {"branches", "bid",    S},
    {"branches", "number", S, {}, QT_TRANSLATE_NOOP("Text", "cost centre")},
    {"branches", "mgid",   S},

    {"brape", "bid",   S | I | U, number(0, kUnsigned16), QT_TRANSLATE_NOOP("Text", "branch")},
    {"brape", "uid",   S | I | U, idOf("people.uid")},
    {"brape", "since", S | I | U, now(), QT_TRANSLATE_NOOP("Text", "member since"), Shown::Day},

    {"bradm", "bid", S},
    {"bradm", "aid", S},

    {"mastergroups", "mgid", S},

    {"groups", "gid",        S},
    {"groups", "parent",     S},
    {"groups", "calendarID", S},

    {"groups_plan", "gid",   S | I | U, idOf("groups.gid"), QT_TRANSLATE_NOOP("Text", "calendar group"), Shown::CalendarGroup},
    {"groups_plan", "uid",   S | I | U, idOf("people.uid")},
    {"groups_plan", "since", S | I | U, month(), QT_TRANSLATE_NOOP("Text", "month")},

    {"groups_month", "gid",   S | I | U, idOf("groups_plan.gid"), QT_TRANSLATE_NOOP("Text", "calendar group"), Shown::CalendarGroup},
    {"groups_month", "uid",   S | I | U, idOf("people.uid")},
    {"groups_month", "month", S | I | U, month(), QT_TRANSLATE_NOOP("Text", "month")},

    {"funds", "fid",  S},
    {"funds", "iid",  S},
    {"funds", "unit", S},

    {"funds_move", "type",  S | I | U, number(0, 3), QT_TRANSLATE_NOOP("Text", "kind of movement")},
    {"funds_move", "day",   S | I | U, serverTime(), QT_TRANSLATE_NOOP("Text", "day")},
    {"funds_move", "month", I | U,     month(), QT_TRANSLATE_NOOP("Text", "month")},
    {"funds_move", "value", S | I | U, number(-2147483648.0, 2147483647.0), QT_TRANSLATE_NOOP("Text", "hundredths of a day"), Shown::Hundredths},
    {"funds_move", "fid",   S | I | U, number(0, kUnsigned16), QT_TRANSLATE_NOOP("Text", "fund")},
    {"funds_move", "uid",   S | I | U, idOf("people.uid")},

    {"admins", "aid",            S},
    {"admins", "personalNumber", S},

    {"admins_people", "aid",     S | I | U, idOf("admins.aid")},
    {"admins_people", "uid",     S | I | U, idOf("people.uid")},
    {"admins_people", "request", S | I | U | Omitted, number(0, 1), QT_TRANSLATE_NOOP("Text", "receives the requests"), Shown::YesNo},

    {"term", "tid",    S},
    {"term", "bid",    S},
    {"term", "status", S},
    {"term", "flags",  S},
    {"term", "syn",    S | U, number(0, 323), QT_TRANSLATE_NOOP("Text", "kinds of data to fetch"), Shown::Flags},

    {"term_sync", "tid",     I, idOf("term.tid")},
    {"term_sync", "type",    I, text(1)},
    {"term_sync", "ref",     I, text(11)}, // people_term
    {"term_sync", "ref_col", I, text(11)}, // colorGroups
    {"term_sync", "ref_id",  I, idOf("people.uid")},
    {"term_sync", "created", I, now(), QT_TRANSLATE_NOOP("Text", "queued")},
    {"term_sync", "flags",   I, number(0, 256), QT_TRANSLATE_NOOP("Text", "kind of data")},

    {"people_term", "tid", S | I | U, idOf("term.tid")},
    {"people_term", "uid", S | I | U, idOf("people.uid")},

    {"vars", "name",  S | I | U, text(30)}, // exportPam.4294967295.selPeople
    {"vars", "value", S | I | U, anyText()},
};

inline constexpr Routine kRoutines[] = {
    {"midnightFromTs",     RoutineKind::Function,  1}, // timestamp: midnight of its day
    {"monthFromTimestamp", RoutineKind::Function,  1}, // timestamp: its month, yyyyMM
    {"getCurrentGid",      RoutineKind::Function,  3}, // uid, month, default gid: gid in force or NULL
    {"updateTermsSync",    RoutineKind::Procedure, 2}, // uid, bit of term.flags: marks terminals
};

inline constexpr Lookup kLookups[] = {
    {"people",        "uid"},
    {"people",        "pid"},
    {"atten",         "uid"},
    {"branches",      "bid"},
    {"brape",         "bid uid"},
    {"bradm",         "bid"},
    {"mastergroups",  "mgid"},
    {"groups",        "calendarID parent"},
    {"groups_plan",   "uid"},
    {"funds_move",    "fid uid"},
    {"admins",        "personalNumber"},
    {"admins_people", "uid"},
    {"term",          "tid"},
    {"term",          "bid"},
    {"people_term",   "uid"},
    {"vars",          "name"},
};
// clang-format on

/// The names of a list.
QStringList names(const char *list);

/// All columns of a table, those that the plugin uses first.
QStringList columnsOf(const Table &table);

/// The columns of a table on which the plugin needs any of these rights, in their order; empty for
/// a table that is none of the contract's.
QStringList columnsWith(unsigned rights, const QString &table);

/// Null for a column that the plugin does not use. Capitals count.
const Column *findColumn(const QString &table, const QString &name);

/// Whether a table of the contract may have equal rows, as a queue has.
bool rowsMayRepeat(const QString &table);

/// Whether the plugin reads or writes a table.
inline bool isUsed(const QString &table)
{
    return !columnsWith(S | I | U, table).isEmpty();
}

/// Whether the plugin inserts or updates rows of a table.
inline bool isWritten(const QString &table)
{
    return !columnsWith(I | U, table).isEmpty();
}

/// Whether the plugin inserts rows into a table.
inline bool getsRows(const QString &table)
{
    return !columnsWith(I, table).isEmpty();
}

/// The name for people of a column that the plugin uses, for Text::tr(). Does not compile for any
/// other.
constexpr const char *labelOf(std::string_view table, std::string_view name)
{
    for (const Column &column : kColumns) {
        if (column.table == table && column.name == name)
            return column.label;
    }
    throw "no such column";
}

/// The column into which the plugin writes the value of a key, or the texts of a group, of the INI
/// file. Does not compile for one that is not written.
constexpr const Column &columnOfKey(std::string_view key)
{
    for (const Column &column : kColumns) {
        if (column.written.key == key)
            return column;
    }
    throw "no such key";
}

} // namespace TepDbContract
