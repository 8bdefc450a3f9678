#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

class SqlSession;

namespace TepDbContract {
struct Column;
}

/// A column as the information schema describes it.
struct DbColumn {
    QString name;
    QString type; ///< "int", "varchar", ... in lower case
    QString fullType; ///< "int(10) unsigned", ...
    qint64 length = 0; ///< of a text, in characters
    int wholeDigits = 0; ///< of a decimal number, before its point
    QString charset; ///< of a text; empty for other kinds
    bool nullable = false;
    bool filledByServer = false; ///< by a default value, an automatic number or an expression
    bool automaticNumber = false;
    bool uniquelyFilled = false; ///< omitted from an insert, it gets a value unique in the table
    QString defaultValue; ///< without quotation marks
    QStringList rights; ///< of this account: "select", "insert", "update", "references"
};

/// A key of a table.
struct DbKey {
    QString name;
    bool unique = false; ///< the primary key, too
    bool findsRows = false; ///< the server considers it when it looks for rows
    bool wholeColumns = true; ///< no column is in it by its beginning only
    QStringList columns; ///< in lower case, in the order of the key
};

/// Tables, columns and keys of the database, as far as the account may see them: the server hides
/// what an account has no privilege for.
class DbSchema {
public:
    /// Reads all of it. False when that fails.
    bool load(SqlSession &site);

    /// Whether the table exists and the account may see it.
    bool hasTable(const QString &table) const { return m_columns.contains(table); }
    /// The columns of a table; empty when it does not exist.
    QVector<DbColumn> columns(const QString &table) const { return m_columns.value(table); }
    /// Null when it does not exist. The column's name is case-insensitive, as it is for the server.
    const DbColumn *column(const QString &table, const QString &column) const;
    const DbColumn *column(const TepDbContract::Column &column) const;
    /// The keys of a table.
    QVector<DbKey> keys(const QString &table) const { return m_keys.value(table); }
    /// The primary and unique keys of a table.
    QVector<DbKey> uniqueKeys(const QString &table) const;
    /// The engine of the table; empty for a view.
    QString engine(const QString &table) const { return m_engines.value(table); }
    /// Whether the table takes part in transactions.
    bool isTransactional(const QString &table) const { return m_transactional.contains(table); }

private:
    void loadKeys(SqlSession &site);
    void loadEngines(SqlSession &site);
    void addKeyColumn(const QStringList &row);

    QHash<QString, QVector<DbColumn>> m_columns;
    QHash<QString, QVector<DbKey>> m_keys;
    QHash<QString, QString> m_engines;
    QStringList m_transactional;
};
