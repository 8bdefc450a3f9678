#pragma once

#include <QString>

class QSqlDatabase;
class QSqlQuery;

/// How the worker runs a statement and reports its failure.
namespace SqlReport {

/// Runs the statement; a failure is logged as "<message> [code]: text".
bool exec(QSqlQuery &query, const QString &sql, const char *message);

/// As exec(), with the statement in a second line of the log.
bool execShowingStatement(QSqlQuery &query, const QString &sql, const char *message);

/// The first column of the next row as a number, 0 when there is no row.
uint nextNumber(QSqlQuery &query);

/// The first column of the first row that the statement finds, as a number; 0 when it finds none,
/// and when it fails, which nobody logs.
uint findNumber(const QSqlDatabase &db, const QString &sql);

} // namespace SqlReport
