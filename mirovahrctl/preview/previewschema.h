#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// One column of a table that is copied.
struct PreviewColumn {
    enum class Kind {
        Number, ///< exact: whole numbers, decimal ones, bits
        Real, ///< binary fractions
        Text,
        Bytes, ///< the cell holds them in hexadecimal digits
        Other ///< dates, times: texts without a character set
    };

    QString name;
    Kind kind = Kind::Text;

    /// The kind for a type such as "int(10) unsigned".
    static Kind kindOf(const QString &type);

    /// What to select so that a cell's text loses nothing. \a owner: the table's name or alias, in
    /// SQL.
    QString expression(const QString &owner) const;
    /// A cell's text as SQL writes the value. A null text is NULL.
    QString literal(const QString &cell) const;
};

/// A table that is copied.
struct PreviewTable {
    QString name;
    QString definition; ///< CREATE TABLE ...
    QVector<PreviewColumn> columns; ///< without those that the server computes
    QStringList key; ///< columns that tell the rows apart; empty: rows may repeat
    qint64 rowEstimate = 0;

    /// Position of a column; -1 when there is none.
    int indexOf(const QString &column) const;
    /// The columns' names, as SQL writes a list.
    QString columnList() const;
    /// What to select of a row.
    QString expressions(const QString &owner) const;
    /// A row as INSERT takes it: "(1, 'text')".
    QString tuple(const QStringList &row) const;
};

/// A routine or trigger that is copied.
struct PreviewProgram {
    QString name;
    QString definition; ///< CREATE ..., without its definer: it becomes the copy's
    QString sqlMode;
    QString collation;
};

/// What is copied of the site's database, and what its server does its own way.
struct PreviewSchema {
    QString name;
    QString charset;
    QString collation;
    QVector<PreviewTable> tables;
    QVector<PreviewProgram> routines;
    QVector<PreviewProgram> triggers;
    /// Tables that the plugin writes and whose triggers this account is not allowed to see.
    QStringList tablesWithHiddenTriggers;
    /// Tables whose engine knows no snapshot: they are as they were when their turn came.
    QStringList tablesOutsideSnapshot;
    /// Views that a routine or trigger seems to name. They are not copied.
    QStringList namedViews;
    QStringList serverOptions; ///< as mariadbd takes them
    QString serverVersion;
    QString timeZone; ///< of its sessions

    qint64 rowEstimate() const;
};
