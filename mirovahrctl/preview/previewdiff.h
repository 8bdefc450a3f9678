#pragma once

#include "mirovahrctl/preview/previewschema.h"
#include "mirovahrctl/site/sqlsession.h"

#include <QHash>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVector>

/// One row that differs. Cells are in the order of the table's columns.
struct PreviewChange {
    const PreviewTable *table = nullptr;
    QStringList before; ///< empty: the row is new
    QStringList after; ///< empty: the row is gone

    bool isInsert() const { return before.isEmpty(); }
    bool isDelete() const { return after.isEmpty(); }
    /// The new row, or the old one when it is gone.
    const QStringList &row() const { return after.isEmpty() ? before : after; }
    /// A cell of row(); null when there is no such column.
    QString cell(const char *column) const;
    /// Whether a column differs; always true for an insert or delete.
    bool changes(int column) const;
};

/// Finds the rows in which the copy differs from its baseline.
class PreviewDiff {
public:
    /// Fills in the keys of the schema's tables; the changes point to them.
    PreviewDiff(PreviewSchema &schema, const QSqlDatabase &server);

    /// False when that fails; errorString() then says why.
    bool read();
    const QVector<PreviewChange> &changes() const { return m_changes; }
    QString errorString() const { return m_server.errorString(); }

private:
    void compareByKey(const PreviewTable &table);
    void compareWithoutKey(const PreviewTable &table);
    void add(const PreviewTable &table, const QStringList &before, const QStringList &after);

    PreviewSchema &m_schema;
    SqlSession m_server;
    QVector<PreviewChange> m_changes;
};

/// Finds the cells that hold the moment at which the plugin wrote them: a real synchronisation
/// writes another one.
class PreviewMoments {
public:
    /// \a begin, \a end: Unix times between which the plugin worked.
    PreviewMoments(qint64 begin, qint64 end)
        : m_begin(begin)
        , m_end(end)
    {
    }

    /// Whether the change writes "now" into this column.
    bool isNow(const PreviewChange &change, int column) const;

private:
    const qint64 m_begin;
    const qint64 m_end;
};
