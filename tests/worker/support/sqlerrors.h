#pragma once

#include <QString>

/// How the log shows why a statement failed. The functions whose names end in "Text" leave out the
/// server's error number, as some log lines do.
namespace SqlErrors {

/// The table is not there.
QString missing(const QString &table);
QString missingText(const QString &table);

/// TestDatabase::refuse() refused the statement.
QString refused();
QString refusedText();
/// refuseColumn() refused the query.
QString refusedColumn();

/// The server is gone.
QString gone();
QString goneText();

} // namespace SqlErrors
