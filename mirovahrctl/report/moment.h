#pragma once

class QDateTime;
class QString;

/// How a moment is written, wherever this program writes one: in the time zone of the program with
/// its offset, such as "2026-11-21T05:10:00+01:00". "Z" is the offset of UTC.
namespace Moment {

QString text(const QDateTime &time);
/// With milliseconds.
QString exactText(const QDateTime &time);

} // namespace Moment
