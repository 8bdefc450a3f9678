#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// One column of a table that is copied.
struct PreviewColumn {
    enum class Kind {
        Number, ///< exact: integers, decimals, bits
        Real, ///< binary fractions
        Text,
        Bytes, ///< the cell holds hexadecimal digits
        Other ///< dates, times: texts without a character set
    };

    QString name;
    Kind kind = Kind::Text;

    /// The kind for a type such as "int(10) unsigned".
    static Kind kindOf(const QString &type);

    /// The SQL expression that selects the value as text without loss. \a owner: the table's name
    /// or alias, in SQL.
    QString expression(const QString &owner) const;
    /// The SQL literal for a cell's text. A null text is NULL.
    QString literal(const QString &cell) const;
};

/// A table that is copied.
struct PreviewTable {
    QString name;
    QString definition; ///< CREATE TABLE ...
    QVector<PreviewColumn> columns; ///< without those that the server computes or numbers rows by
    QStringList key; ///< columns that identify a row; empty: rows may repeat
    QStringList parents; ///< tables that foreign keys refer to
    QString changing; ///< condition for the copied rows that may change; empty: all
    qint64 rowEstimate = 0;

    /// The columns of the primary key; none without one.
    QStringList primaryKey() const;
    /// The columns of each unique key, the primary one among them.
    QVector<QStringList> uniqueKeys() const;
    /// Whether rows are found by this column: a key begins with it.
    bool isFoundBy(const QString &column) const;
    /// Whether the server fills in the column when a row is added.
    bool isCounted(const QString &column) const;
    /// Position of a column; -1 when there is none.
    int indexOf(const QString &column) const;
    /// The columns' names as an SQL list.
    QString columnList() const;
    /// The expressions that select a row.
    QString expressions(const QString &owner) const;
    /// The rows that may change, to be selected from: the table, or a subquery.
    QString changingRows() const;
    /// A row as in INSERT: "(1, 'text')".
    QString tuple(const QStringList &row) const;
};

/// A routine or trigger that is copied.
struct PreviewProgram {
    QString name;
    QString definition; ///< CREATE ..., without its definer: that becomes the copy's administrator
    QString sqlMode;
    QString collation;
    QStringList tables; ///< that its text seems to name
    bool runsTexts = false; ///< whether it seems to run statements that it makes
};

/// What is copied of the site's database, and the server settings that matter.
struct PreviewSchema {
    QString name;
    QString charset;
    QString collation;
    QVector<PreviewTable> tables;
    QVector<PreviewProgram> routines;
    QVector<PreviewProgram> triggers;
    /// Tables that the plugin writes and whose triggers this account is not allowed to see.
    QStringList tablesWithHiddenTriggers;
    /// Tables whose engine does not support snapshots: each is as it was when it was copied.
    QStringList tablesOutsideSnapshot;
    /// Views that a routine or trigger seems to name. They are not copied.
    QStringList namedViews;
    QStringList serverOptions; ///< as mariadbd takes them
    QString serverVersion;
    QString timeZone; ///< of its sessions
    qint64 copiedAt = 0; ///< Unix time of its server, before the first row was copied

    /// Rows of all tables, by the server's estimate.
    qint64 rowEstimate() const;
};
