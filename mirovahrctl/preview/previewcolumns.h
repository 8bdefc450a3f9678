#pragma once

/// Readable names of the columns, and how their values are shown.
namespace PreviewColumns {

enum class Reading {
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

struct Column {
    const char *table;
    const char *column;
    const char *label;
    Reading reading;
};

// clang-format off
inline constexpr Column kColumns[] = {
    {"people", "pid", "pid", Reading::Plain},
    {"people", "pamId", "payroll id", Reading::Plain},
    {"people", "title", "title", Reading::Plain},
    {"people", "name", "first name", Reading::Plain},
    {"people", "surname", "surname", Reading::Plain},
    {"people", "title2", "title after the name", Reading::Plain},
    {"people", "phone", "telephone", Reading::Plain},
    {"people", "begin", "employed from", Reading::Day},
    {"people", "end", "employed until", Reading::Day},
    {"people", "created", "created", Reading::Day},
    {"people", "edited", "last changed", Reading::Day},
    {"people", "editor", "last changed by", Reading::Editor},
    {"people", "rsBegin", "relationship state from", Reading::Day},
    {"people", "rsEnd", "relationship state until", Reading::Day},
    {"people", "rsText", "relationship state", Reading::Plain},
    {"people", "type", "employment type", Reading::Plain},
    {"people", "did", "department", Reading::Plain},
    {"people", "calendarID", "HR's calendar", Reading::Plain},
    {"people", "bid", "home branch", Reading::Branch},
    {"people", "status", "active", Reading::YesNo},
    {"people", "lastCalc", "attendance recalculated from", Reading::DayAfter},
    {"people", "calc", "last calculation", Reading::CalculationDue},
    {"people", "gid", "calendar group by default", Reading::CalendarGroup},
    {"atten", "ok", "", Reading::Calculated},
    {"brape", "since", "", Reading::Day},
    {"groups_plan", "gid", "", Reading::CalendarGroup},
    {"groups_month", "gid", "", Reading::CalendarGroup},
    {"funds_move", "value", "", Reading::Hundredths},
    {"admins_people", "request", "", Reading::YesNo},
    {"people_pam", "id", "", Reading::Plain},
    {"term", "syn", "", Reading::Flags},
    {"vars", "value", "", Reading::Plain},
};
// clang-format on

} // namespace PreviewColumns
