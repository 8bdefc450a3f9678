#pragma once

#include <QString>

struct PreviewChange;

/// Which cells hold the moment at which the plugin wrote them, and so will hold another one when a
/// real synchronisation writes them.
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
