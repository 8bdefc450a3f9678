#pragma once

#include <QMap>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>

/// The key/value settings that the host's components share: the table `vars`.
///
/// A small value around a connection handle. It must be used in the thread that owns the
/// connection. Names that are written into a statement go there as they are, between single
/// quotes: the caller vouches for them. A name with a quote in it only works with the two set
/// operations. Whether case and accents of a name count is for the collation of `vars.name` to say;
/// in reference-db/schema.sql they do.
class TepDbSettings {
public:
    /// Without a connection; setDB() must follow before anything else.
    TepDbSettings() = default;

    /// Uses `db`; a copy of the handle is kept.
    explicit TepDbSettings(const QSqlDatabase &db);

    /// Uses `db` from now on; a copy of the handle is kept.
    void setDB(const QSqlDatabase &db);

    /// Opens the connection. False, with the reason in the log, when it cannot be opened.
    bool openDB();

    /// Closes the connection, for every holder of the same handle.
    void closeDB();

    /// The value of the key `name`, or `defaultValue` when there is no such key or the statement
    /// fails. A failure is logged, a missing key is not.
    QVariant variableGet(const QString &name, const QVariant &defaultValue) const;

    /// Inserts the key `name` or replaces its value. False when the statement fails.
    bool variableSet(const QString &name, const QVariant &value);

    /// Deletes the key `name`, or with `like` every key that begins with `name`, in which "%" and
    /// "_" then are wildcards. False when the statement fails; true also when nothing matched.
    bool variableDel(const QString &name, bool like);

    /// The values of those of `names` that exist. Empty, without a statement, for an empty list,
    /// and empty when the statement fails.
    QMap<QString, QVariant> variableGetMultiple(const QStringList &names) const;

    /// The keys that begin with `prefix`, in which "%" and "_" are wildcards, with their values.
    /// Empty when the statement fails.
    QMap<QString, QVariant> variableGetMultiple(const QString &prefix) const;

    /// Inserts or replaces every key of `values`, in the order of the keys. True only when all
    /// were written; those that could be written stay written when others fail.
    bool variableSetMultiple(const QMap<QString, QVariant> &values);

private:
    QMap<QString, QVariant> selectVariables(const QString &sql) const;

    QSqlDatabase m_db;
};
