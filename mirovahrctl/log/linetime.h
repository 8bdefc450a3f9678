#pragma once

#include <QDateTime>

#include <optional>
#include <string>
#include <string_view>

/// Finds the times of lines in what stands before the plugin's text: ISO 8601, days first with
/// dots, syslog's form, which has no year, and Unix seconds with a fraction. A time without an
/// offset is one of this machine's time zone. Fractions of a second are left out.
class LineTime {
public:
    /// Where times are looked for, in bytes; a line of any bytes must not take long.
    static constexpr size_t kLongestPrefix = 200;

    /// \a now: a time without a year is the last such one before it.
    explicit LineTime(const QDateTime &now);

    /// The same from now on.
    void setNow(const QDateTime &now) { m_now = now; }

    /// The time of a line; nothing when it has none.
    std::optional<QDateTime> of(std::string_view prefix);

private:
    bool isAsLast(std::string_view prefix) const;
    std::optional<QDateTime> parsed(std::string_view bytes);

    QDateTime m_now;
    std::string m_lastText; ///< up to the second of the last time found: many lines share it
    std::string m_lastOffset; ///< what stands where the offset of that time is, or would be
    std::optional<QDateTime> m_lastTime;
};
