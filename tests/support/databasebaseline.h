#pragma once

#include <QMap>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

/// The reference database as it was loaded, so that a test finds it again without loading it anew:
/// only the tables whose rows have changed are filled again.
///
/// The functions want an open connection of the administrator to the database.
class DatabaseBaseline {
public:
    /// Takes the database as the one to go back to, with every table empty. \a folder is where the
    /// server keeps the definitions of its tables. False when a statement fails.
    bool takeEmpty(const QSqlDatabase &administrator, const QString &folder);
    /// Takes its rows, too. False when a statement fails.
    bool takeRows(const QSqlDatabase &administrator);

    /// Empties every table. False when the database has to be loaded anew: a table, trigger or
    /// routine was made, changed or dropped, or a table is in use by an open transaction.
    bool restoreEmpty(const QSqlDatabase &administrator) const;
    /// As above, with the rows of takeRows().
    bool restoreRows(const QSqlDatabase &administrator) const;

private:
    struct TableContent {
        QString checksum;
        QString nextNumber; ///< the next automatic one, if there is one

        bool operator==(const TableContent &other) const
        {
            return checksum == other.checksum && nextNumber == other.nextNumber;
        }
    };
    using Content = QMap<QString, TableContent>; ///< by table

    static Content content(const QSqlDatabase &administrator, const QStringList &tables);
    bool restore(const QSqlDatabase &administrator, const Content &wanted) const;
    static bool clear(const QSqlDatabase &administrator, const QString &table,
                      bool restartsNumbers);
    bool fill(const QSqlDatabase &administrator, const QString &table) const;
    QStringList definitions(const QSqlDatabase &administrator) const;

    QString m_folder;
    QStringList m_tables;
    QMap<QString, QString> m_columns; ///< of the tables with rows, as SQL lists
    QStringList m_definitions;
    Content m_empty;
    Content m_full;
};
