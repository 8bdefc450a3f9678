#pragma once

#include <QLatin1String>
#include <QStringList>

class QByteArray;
class QSqlDatabase;
class QSqlQuery;

/// How the repositories run a statement and report its failure.
namespace SqlStatement {

/// Which bytes an error text is logged in.
enum class Encoding { Utf8, Local8Bit };

/// The statement with the first value in the place of "%1", the second in that of "%2" and so on,
/// all of which it must hold. What comes out is what a chain of arg() calls gives, also for a value
/// that itself holds a placeholder; but the text is made once and not once for each value.
QString filled(QLatin1String sql, const QStringList &values);

/// Runs `sql` in a query of its own on `db`.
QSqlQuery run(const QSqlDatabase &db, const QString &sql);

/// As run(), for a CALL and for a text of several statements: reads every result, since an error
/// of a later statement shows only then, and the connection takes no other statement before.
QSqlQuery runAll(const QSqlDatabase &db, const QString &sql);

/// True when the query has a valid last error. It is then logged as critical: `message`, a blank
/// and the error text. (A statement on a closed connection fails without such an error.)
bool failed(const QSqlQuery &query, const QByteArray &message, Encoding encoding = Encoding::Utf8);

} // namespace SqlStatement
