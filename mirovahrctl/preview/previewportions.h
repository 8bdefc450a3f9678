#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class SqlSession;
struct PreviewTable;

/// Reads the answer to a query about the rows of a table. Qt's driver holds the whole answer to a
/// query, so several queries each read a portion where the key consists of numbers.
class PreviewPortions {
public:
    using Take = std::function<bool(const QStringList &row)>;

    /// \a key identifies a row of the table, which the queries call \a owner; it is empty where
    /// rows may repeat. The rows of the answer begin with the columns of the table.
    PreviewPortions(SqlSession &server, const PreviewTable &table, const QStringList &key,
                    const QString &owner);

    /// The rows for which \a condition holds, in the order of the key; \a select ends before WHERE.
    /// Returns false when \a take did, or when a query failed.
    bool forEachRow(const QString &select, const QString &condition, const Take &take);

private:
    QString column(const QString &name) const;
    QString order() const;
    QString behind(const QStringList &row) const;

    SqlSession &m_server;
    const PreviewTable &m_table;
    const QStringList m_key;
    const QString m_owner;
};
