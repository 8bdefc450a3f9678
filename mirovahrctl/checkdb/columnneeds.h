#pragma once

/// What the plugin writes to each column: the range of numbers, the length of texts.
namespace ColumnNeeds {

/// A column for numbers.
struct Number {
    const char *table;
    const char *column;
    double from; ///< the smallest number that is written
    double to; ///< the largest
    const char *meaning; ///< what they are
    bool null = false; ///< the plugin also writes NULL
    bool isTime = false; ///< seconds since 1970
};

/// A column for ids that another column holds.
struct Reference {
    const char *table;
    const char *column;
    const char *ownerTable;
    const char *ownerColumn;
};

/// A column for texts. HR's texts have no maximum length: check-file checks them.
struct Text {
    const char *table;
    const char *column;
    int length; ///< characters of the longest text that is not from HR; 0: all are from HR
};

constexpr double kUnsigned32 = 4294967295.0;
constexpr double kUnsigned16 = 65535.0;
/// The last moment of the server's own UNIX_TIMESTAMP() up to MariaDB 11.4.
constexpr double kLastServerTime = 2147483647.0;
/// The years 1 to 9999, of which the export may name any day, in any time zone.
constexpr double kFirstDay = -62135683200.0;
constexpr double kLastDay = 253402387199.0;
constexpr double kLastMonth = 999912.0;

// clang-format off
inline constexpr Number kNumbers[] = {
    {"people", "pid", 0, kUnsigned32, "a personal number and the number of the relationship"},
    {"people", "begin", 0, kUnsigned32, "the first day of the employment", false, true},
    {"people", "end", kFirstDay, kLastDay, "the last day of the employment", true, true},
    {"people", "created", 0, kLastServerTime, "the time of creation", false, true},
    {"people", "edited", 0, kLastServerTime, "the time of the last change", false, true},
    {"people", "editor", 0, 0, "0"},
    {"people", "rsBegin", kFirstDay, kLastDay, "the first day of a relationship state", true, true},
    {"people", "rsEnd", kFirstDay, kLastDay, "the last day of a relationship state", true, true},
    {"people", "type", 0, 4, "the employment type"},
    {"people", "did", 0, 1, "the department", true},
    {"people", "calendarID", 0, kUnsigned16, "HR's calendar code"},
    {"people", "bid", 0, kUnsigned16, "the branch", true},
    {"people", "status", 0, 1, "1 for an active person"},
    {"people", "lastCalc", kFirstDay, kLastDay, "the day from which attendance is calculated again", false, true},
    {"people", "calc", 0, 0, "0"},
    {"people_pam", "id", 0, 2, "the settings of the payroll export"},
    {"atten", "ok", -1, -1, "the mark of a day that is to be calculated again"},
    {"brape", "bid", 0, kUnsigned16, "the branch"},
    {"brape", "since", 0, kLastServerTime, "the time of joining", false, true},
    {"groups_plan", "since", 0, kLastMonth, "a month such as 202403"},
    {"groups_month", "month", 0, kLastMonth, "a month such as 202403"},
    {"funds_move", "type", 0, 3, "3 for a correction"},
    {"funds_move", "day", 0, kLastServerTime, "the day of the correction", false, true},
    {"funds_move", "month", 0, kLastMonth, "a month such as 202403"},
    {"funds_move", "value", -2147483648.0, 2147483647.0, "hundredths of a day"},
    {"funds_move", "fid", 0, kUnsigned16, "the vacation fund"},
    {"admins_people", "request", 0, 1, "1 for the administrator who gets the requests"},
    {"term", "syn", 0, 323, "the kinds of data that a terminal has to fetch"},
    {"term_sync", "created", 0, kLastServerTime, "the time of queueing", false, true},
    {"term_sync", "flags", 0, 256, "the kind of data"},
};

inline constexpr Reference kReferences[] = {
    {"people_pam", "uid", "people", "uid"},
    {"brape", "uid", "people", "uid"},
    {"groups_plan", "uid", "people", "uid"},
    {"groups_plan", "gid", "groups", "gid"},
    {"groups_month", "uid", "people", "uid"},
    {"groups_month", "gid", "groups_plan", "gid"},
    {"funds_move", "uid", "people", "uid"},
    {"admins_people", "uid", "people", "uid"},
    {"admins_people", "aid", "admins", "aid"},
    {"people_term", "uid", "people", "uid"},
    {"people_term", "tid", "term", "tid"},
    {"term_sync", "tid", "term", "tid"},
    {"term_sync", "ref_id", "people", "uid"},
};

inline constexpr Text kTexts[] = {
    {"people", "pamId", 21}, // 4294967295.4294967295
    {"people", "title", 0},
    {"people", "name", 0},
    {"people", "surname", 0},
    {"people", "title2", 0},
    {"people", "phone", 0},
    {"people", "rsText", 29}, // the longest built-in one
    {"term_sync", "type", 1},
    {"term_sync", "ref", 11}, // people_term
    {"term_sync", "ref_col", 11}, // colorGroups
    {"vars", "name", 30}, // exportPam.4294967295.selPeople
    {"vars", "value", 0},
};
// clang-format on

} // namespace ColumnNeeds
