#pragma once

#include <QString>
#include <QVector>

class PreviewMoments;
class QIODevice;
struct PreviewChange;
struct PreviewSchema;

/// Writes the changes as SQL that makes all of them or none, in the site's database as it was when
/// it was copied. Moments of writing become "now".
class PreviewSql {
public:
    PreviewSql(const PreviewSchema &schema, const PreviewMoments &moments);

    /// \a out must be open for writing.
    void write(const QVector<PreviewChange> &changes, QIODevice &out) const;

private:
    QString statement(const PreviewChange &change) const;
    QString assignments(const PreviewChange &change) const;
    QString values(const PreviewChange &change) const;
    QString value(const PreviewChange &change, int column) const;

    const PreviewSchema &m_schema;
    const PreviewMoments &m_moments;
};
