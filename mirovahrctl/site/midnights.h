#pragma once

#include <QDate>
#include <QString>
#include <QVariant>
#include <QVector>

class SqlSession;

/// When days begin, for a server and for this program: they must mean the same.
namespace Midnights {

/// The days around today on which two time zones would differ, in order.
QVector<QDate> daysToCompare(const QDate &today);

/// A query for one row: the Unix times at which these days begin, by the server's session.
QString query(const QVector<QDate> &days);

/// The first of these days that begins at another moment for this program than for the server,
/// whose answer to the query is \a midnights. Invalid when there is none.
QDate differing(const QVector<QDate> &days, const QVariantList &midnights);

/// Why nothing that this program computes holds for the server, whose session is in its own time
/// zone: a sentence without its full stop. Empty when both agree, and when the query fails.
QString disagreement(SqlSession &server);

} // namespace Midnights
