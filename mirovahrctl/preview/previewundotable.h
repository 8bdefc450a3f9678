#pragma once

#include "mirovahrctl/preview/previewundoplan.h"

#include <QString>
#include <QVector>

class PreviewMoments;
class QIODevice;
struct PreviewColumn;

/// The statements that take back what happened to the rows of one table.
/// Each ends with a semicolon and a line feed.
///
/// They use temporary tables, whose names begin with mirovahr_undo:
///
///     _rows      every row of the plan, and the state in which it is found
///     _people    new people: their uid in the preview, and at the site
///     _before_N  the rows of one table as they were before the synchronisation
///     _after_N   the same rows as the synchronisation leaves them
class PreviewUndoTable {
public:
    /// \a rows must live as long as this object. \a number: N. \a since: the moment at which the
    /// site was copied, by its server.
    PreviewUndoTable(const PreviewUndoPlan::Rows &rows, int number, qint64 since);

    /// Makes the temporary tables of this one.
    QString creation() const;
    /// Fills them.
    void writeRows(const PreviewMoments &moments, QIODevice &out) const;
    /// Drops them.
    QString disposal() const;

    /// Puts the site's uids of new people in the place of those of the preview.
    QString translation() const;
    QString locking() const;
    /// Finds out the state of each row: "written" when it is as the synchronisation left it,
    /// "before" when it is as before, "changed" when it is neither.
    ///
    /// It is as the synchronisation left it when some cells are as before, too: an ordinary
    /// synchronisation may change less than the forced one of the preview.
    QString assessment() const;

    /// Deletes the new rows, of those that are "written".
    QString deletion() const;
    /// Brings back the rows that are gone, of the same.
    QString insertion() const;
    /// Gives the changed rows their old cells, of the same; and terminals that have nothing to
    /// fetch any more their old marks.
    QString update() const;

private:
    using Kind = PreviewUndoPlan::Row::Kind;
    enum class Side { Before, After };

    QVector<Side> sides() const;
    void writeRows(Side side, const PreviewMoments &moments, QIODevice &out) const;
    QStringList uidColumns() const;

    bool isQueue() const;
    /// A column of the contract whose cells are as they were written, or somebody has changed them.
    bool isPlain(const PreviewColumn &column) const;
    QString forQueue(const char *statement) const;
    QString assessNew() const;
    QString assessDays() const;
    QString assessChanged() const;
    QString assessCalculation() const;
    QString assessRemoved() const;

    // Conditions on a row of the site's table; "a" is a row of _after_N, "b" one of _before_N.
    QString isSameRow(Side side) const;
    QString isAsBefore(Kind kind) const;
    QString isAsWritten(Kind kind) const;
    QString isAsWritten(const PreviewColumn &column, Kind kind) const;
    QString isNotWritten(const PreviewColumn &column) const;
    QString isUntouched(const PreviewColumn &column) const;
    QString isCell(const PreviewColumn &column, Side side) const;

    QString temporary(Side side) const;
    QString joinTemporary(Side side) const;
    QString joinChanged() const;
    QString cell(const QString &column) const;

    const PreviewUndoPlan::Rows &m_rows;
    const PreviewTable &m_table;
    const QString m_name; ///< in backquotes
    const int m_number;
    const qint64 m_since;
};
