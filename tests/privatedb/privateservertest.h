#pragma once

#include "privatedb/privatemariadb.h"

#include <QByteArray>
#include <QSqlDatabase>
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

/// A connection of a private server's administrator that holds a temporary table on the disk.
class TemporaryTable {
public:
    TemporaryTable(const QString &socketPath, const QString &connectionName);
    ~TemporaryTable();
    TemporaryTable(const TemporaryTable &) = delete;
    TemporaryTable &operator=(const TemporaryTable &) = delete;

    void drop();
    /// The first error of the database, empty when there was none.
    QString error() const { return m_error; }

private:
    void run(const QString &sql);

    const QString m_connectionName;
    QSqlDatabase m_database;
    QString m_error;
};

/// Sets an environment variable for the rest of the block; a null value unsets it.
class ScopedVariable {
public:
    ScopedVariable(const char *name, const QByteArray &value);
    ~ScopedVariable();
    ScopedVariable(const ScopedVariable &) = delete;
    ScopedVariable &operator=(const ScopedVariable &) = delete;

private:
    void set(const QByteArray &value);

    const char *m_name;
    const QByteArray m_before;
};

/// Lets private servers make their own data folder for the rest of the block, as at a site, after
/// MadeData::use().
class OwnInstallation : public ScopedVariable {
public:
    OwnInstallation()
        : ScopedVariable(PrivateMariaDb::kDataFolderVariable, QByteArray())
    {
    }
};
