#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

class SqlSession;
struct PreviewPeople;
struct PreviewSchema;
struct PreviewTable;

/// Decides which rows of the site's tables are copied: at least those that the synchronisation with
/// an export reads or writes. previewselection.cpp gives the reasons table by table.
///
/// Where a table could be reached in a way that is not known here, it is copied with all its rows.
class PreviewSelection {
public:
    enum class Extent {
        Reached, ///< rows that the synchronisation reaches
        All
    };

    PreviewSelection(const PreviewSchema &schema, const PreviewPeople &people, Extent extent);

    /// Looks up the people at the site. Failures are those of the session.
    void read(SqlSession &site);

    /// The conditions for the rows of a table that are copied, each for a portion of moderate size;
    /// no row is in two of them. A single empty one: all rows.
    QStringList portionsOf(const PreviewTable &table) const;
    /// The condition for those of the rows that may change; empty for all.
    QString changingRowsOf(const QString &table) const;

    /// Why tables are copied with rows that would be left out otherwise: sentences without their
    /// full stops.
    QStringList doubts() const { return m_doubts; }

private:
    void doubtStatements();
    void doubtPrograms();
    void doubtTable(const PreviewTable &table);
    void noteNextUid(const PreviewTable &people);
    void doubtColumns(const PreviewTable &table);
    void doubtKeys(const PreviewTable &table);
    void doubtReferences(const PreviewTable &table);
    void doubt(const QString &table, const QString &sentence);
    void doubtAll(const QString &sentence);
    void note(const QString &doubt);

    QString rowsOfPeople(QString condition, const QVector<quint32> &uids) const;
    bool isReduced(const QString &table) const;
    void readPeople(SqlSession &site);
    void readMoving(SqlSession &site);
    quint32 numberOf(const QString &cell);

    const PreviewSchema &m_schema;
    const PreviewPeople &m_people;
    const Extent m_extent;
    QStringList m_doubts;
    QSet<QString> m_whole; ///< tables that are copied with all rows
    QSet<quint32> m_uids; ///< of the people of the export
    QSet<quint32> m_movingUids; ///< of those who may get another calendar group
    quint64 m_nextUid = 0; ///< new people get this uid or a higher one
    QHash<quint32, QVector<quint32>> m_uidsOfPid;
};
