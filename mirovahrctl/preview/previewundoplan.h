#pragma once

#include "mirovahrctl/preview/previewwords.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

class PreviewMoments;
class PreviewNames;
struct PreviewChange;
struct PreviewSchema;
struct PreviewTable;

/// What of the differences is taken back, table by table, and what is not.
///
/// Only the plugin's own tables are: what triggers have written into others, they take back
/// themselves when they fire again, or nobody must.
class PreviewUndoPlan {
public:
    struct Row {
        enum class Kind { New, Changed, Removed };

        int number = 0; ///< unique among all rows of the plan
        Kind kind = Kind::Changed;
        const PreviewChange *change = nullptr;
        QString what; ///< which row it is, for people
        int copies = 1; ///< how many equal rows of a queue this one stands for
    };

    /// What happens to one table.
    struct Rows {
        const PreviewTable *table = nullptr;
        QStringList key; ///< the columns by which a row is found; empty: rows may repeat
        QVector<Row> rows;

        bool has(Row::Kind kind) const;
    };

    struct NewPerson {
        QString uid; ///< in the preview
        QString pid;
    };

    /// \a changes must live as long as this object.
    PreviewUndoPlan(const PreviewSchema &schema, const QVector<PreviewChange> &changes,
                    const PreviewMoments &moments, PreviewNames &names);

    /// All of them. Tables that refer to others come before these.
    const QVector<Rows> &tables() const { return m_tables; }
    const QVector<NewPerson> &newPeople() const { return m_newPeople; }

    /// Tables of the plugin whose rows cannot be found again, because no key identifies them.
    const QStringList &tablesWithoutKey() const { return m_tablesWithoutKey; }
    /// Tables whose engine cannot roll back.
    const QStringList &tablesWithoutTransactions() const { return m_tablesWithoutTransactions; }
    /// How many rows differ in tables that are not the plugin's, by table.
    const QMap<QString, int> &rowsOfOthers() const { return m_rowsOfOthers; }
    /// Whether the flag that forces a synchronisation changes.
    bool hasForceFlag() const { return m_hasForceFlag; }
    /// The changes of a table; null when there are none.
    const Rows *find(const char *table) const;

private:
    void add(const PreviewChange &change);
    QStringList keyOf(const PreviewTable &table);
    void addToQueue(const PreviewChange &change);
    void addRow(const PreviewChange &change);
    void finish(const PreviewSchema &schema);
    QString describe(const PreviewChange &change) const;

    const PreviewMoments &m_moments;
    const PreviewWords m_words;
    QVector<Rows> m_tables;
    QHash<const PreviewTable *, QStringList> m_keys;
    int m_rowCount = 0;
    QMap<QString, int> m_queued; ///< positions in the rows of the queue, by what they hold
    QVector<NewPerson> m_newPeople;
    QStringList m_tablesWithoutKey;
    QStringList m_tablesWithoutTransactions;
    QMap<QString, int> m_rowsOfOthers;
    bool m_hasForceFlag = false;
};
