#pragma once

class QDate;
class QDateTime;
class QString;

/// How this program writes a time: in its own time zone with the offset.
namespace Moment {

/// To the second, for people: "2026-11-21T05:10:00+01:00" in English, where "Z" is the offset of
/// UTC, and "21. 11. 2026 5:10:00 (UTC+01:00)" in Slovak and Czech.
QString text(const QDateTime &time);
/// A day for people: "2026-11-21" in English, "21. 11. 2026" in Slovak and Czech.
QString text(const QDate &day);

/// To the second, for files: the English text in every language.
QString fileText(const QDateTime &time);
/// The same to the millisecond.
QString exactText(const QDateTime &time);

} // namespace Moment
