#pragma once

#include "privatedb/privatemariadb.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// What the tests of private servers share.

/// What the first column of the first row of a query is, or the database's error.
QString answer(const PrivateMariaDb &server, const QString &sql,
               PrivateMariaDb::Account account = PrivateMariaDb::Account::Host);

void writeFile(const QString &path, const QByteArray &content);
/// Empty when the file cannot be read.
QByteArray readFile(const QString &path);
/// Names of everything in a folder.
QStringList entries(const QString &folder);

/// Sets an environment variable for the rest of the block.
class ScopedVariable {
public:
    ScopedVariable(const char *name, const QByteArray &value);
    ~ScopedVariable();
    ScopedVariable(const ScopedVariable &) = delete;
    ScopedVariable &operator=(const ScopedVariable &) = delete;

private:
    const char *m_name;
    const QByteArray m_before;
};
