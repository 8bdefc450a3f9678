#pragma once

#include "mirovahrctl/preview/previewrefusal.h"

#include <QString>

#include <optional>
#include <vector>

class PreviewMoments;
class PreviewUndoPlan;
class PreviewUndoTable;
class QIODevice;
struct PreviewSchema;

/// Writes the SQL that takes the differences back after a real synchronisation with the same
/// export.
///
/// It finds out the state of all rows, and writes only then; it does both in one compound
/// statement, which the server carries out as a whole, even when the client ends in the middle, or
/// goes on after errors.
class PreviewUndo {
public:
    enum class Extent {
        AllOrNone, ///< nothing is taken back when somebody has changed one of the rows
        Partial ///< only that row is not
    };

    /// The arguments must live as long as this object.
    PreviewUndo(const PreviewSchema &schema, const PreviewMoments &moments,
                const PreviewUndoPlan &plan);

    /// Has the reason when the differences cannot be taken back at this site.
    std::optional<PreviewRefusal> refusal() const;

    /// \a out must be open for writing.
    void write(const QString &exportFile, Extent extent, QIODevice &out) const;

private:
    QString heading(const QString &exportFile, Extent extent) const;
    void writeRows(QIODevice &out) const;
    void writePeople(QIODevice &out) const;
    QString compound(const std::vector<PreviewUndoTable> &tables) const;
    QString lockTables() const;

    const PreviewSchema &m_schema;
    const PreviewMoments &m_moments;
    const PreviewUndoPlan &m_plan;
};
