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
    /// The row that is there: the new one unless it is gone.
    const QStringList &row() const { return after.isEmpty() ? before : after; }
    /// A cell of row(); null when there is no such column.
    QString cell(const char *column) const;
    /// Whether a column differs, and in an insert or delete whether it is there.
    bool changes(int column) const;
};

/// Finds the rows in which the copy differs from what it was.
class PreviewDiff {
public:
    /// Fills in the keys of the schema's tables; the changes point to them.
    PreviewDiff(PreviewSchema &schema, const QSqlDatabase &server);

    /// False when that fails; errorText() then says why.
    bool read();
    const QVector<PreviewChange> &changes() const { return m_changes; }
    QString errorText() const { return m_server.errorText(); }

private:
    void compareByKey(const PreviewTable &table);
    void compareAsBags(const PreviewTable &table);

    PreviewSchema &m_schema;
    SqlSession m_server;
    QVector<PreviewChange> m_changes;
};
