#pragma once

class QByteArray;
class QSqlDatabase;
class QSqlQuery;
class QString;

/// How the repositories run a statement and report its failure.
namespace SqlStatement {

/// Which bytes an error text is logged in.
enum class Encoding { Utf8, Local8Bit };

/// Runs `sql` in a query of its own on `db`.
QSqlQuery run(const QSqlDatabase &db, const QString &sql);

/// As run(), for a CALL and for a text of several statements: reads every result, since an error
/// of a later statement shows only then, and the connection takes no other statement before.
QSqlQuery runAll(const QSqlDatabase &db, const QString &sql);

/// True when the query has a valid last error. It is then logged as critical: `message`, a blank
/// and the error text. (A statement on a closed connection fails without such an error.)
bool failed(const QSqlQuery &query, const QByteArray &message, Encoding encoding = Encoding::Utf8);

} // namespace SqlStatement
