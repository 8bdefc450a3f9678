#pragma once

class QDateTime;
class QString;

/// The one format in which this program writes a time: in its own time zone with the offset, such
/// as "2026-11-21T05:10:00+01:00". "Z" is the offset of UTC.
namespace Moment {

/// To the second.
QString text(const QDateTime &time);
/// To the millisecond.
QString exactText(const QDateTime &time);

} // namespace Moment
