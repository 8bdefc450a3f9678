#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class SqlSession;
struct PreviewTable;

/// Reads the rows of a table of the site. Qt's driver holds the whole answer to a query, so where
/// it may be large, several queries each read a portion.
///
/// Both functions return false when \a take did, or when a query failed.
class PreviewReading {
public:
    using Take = std::function<bool(const QStringList &row)>;

    PreviewReading(SqlSession &site, const PreviewTable &table);

    /// All rows: by portions where the primary key consists of numbers.
    bool readAll(const Take &take);
    /// The rows for which a condition holds.
    bool readWhere(const QString &condition, const Take &take);

private:
    QString rowsAfter(const QStringList &row) const;

    SqlSession &m_site;
    const PreviewTable &m_table;
    const QString m_select;
    QStringList m_key; ///< empty: not by portions
};
