#pragma once

#include <QDate>
#include <QStringList>
#include <QVector>

class SqlSession;

/// Checks that a database server and this program agree on when days begin.
namespace Midnights {

/// The days around today on which two time zones would differ, in order.
QVector<QDate> daysToCompare(const QDate &today);

/// A query for one row: the Unix times at which these days begin in the server's session.
QString query(const QVector<QDate> &days);

/// The first of these days that begins at different times for this program and for the server,
/// whose answer to the query is \a midnights. Invalid when there is none.
QDate differing(const QVector<QDate> &days, const QStringList &midnights);

/// Why the two disagree, a sentence without its full stop: nothing that this program computes about
/// days then holds for the server. Empty when they agree, and when the query fails.
QString disagreement(SqlSession &server);

} // namespace Midnights
