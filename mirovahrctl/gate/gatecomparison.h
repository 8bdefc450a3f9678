#pragma once

#include <QDate>
#include <QHash>
#include <QVector>

class MirovaRonRecord;

/// What happens in a new file to the people of the last admitted one. Needs some 60 bytes for each
/// relationship. Of several lines about one relationship the last counts, as for the plugin.
class GateComparison {
public:
    /// Somebody who leaves or moves.
    struct Change {
        quint32 osobniCislo = 0;
        quint32 poradoveCisloPP = 0;
        quint32 oldCostCentre = 0;
        quint32 newCostCentre = 0; ///< 0 also for a person who is missing

        QString person() const; ///< payroll id, such as "1234.1"
    };

    struct Result {
        qint64 oldLines = 0; ///< read as people
        qint64 newLines = 0; ///< read as people
        qint64 working = 0; ///< relationships of the old file that are active today
        QVector<Change> leaving; ///< those of them that are missing or end, ordered by person
        QVector<Change> moving; ///< those that stay and get another cost centre, ordered by person

        qint64 lostLines() const { return qMax(qint64(0), oldLines - newLines); }
    };

    /// \a today decides who is active.
    explicit GateComparison(const QDate &today);

    /// Adds a record of the last admitted file.
    void addOld(const MirovaRonRecord &record);
    /// Adds a record of the new file.
    void addNew(const MirovaRonRecord &record);

    Result result() const;

private:
    struct Relationship {
        qint32 oldEnd = 0; ///< Julian day
        qint32 newEnd = 0; ///< Julian day
        quint32 oldCostCentre = 0;
        quint32 newCostCentre = 0;
        bool wasActive = false;
        bool continues = false; ///< in the new file, and not in an ended state

        bool leaves() const { return !continues || newEnd < oldEnd; }
    };

    const QDate m_today;
    QHash<quint64, Relationship> m_relationships;
    qint64 m_oldLines = 0;
    qint64 m_newLines = 0;
};
