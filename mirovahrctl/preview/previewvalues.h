#pragma once

#include <QString>

class PreviewMoments;
class PreviewNames;
struct PreviewChange;

/// The values of columns in readable form.
class PreviewValues {
public:
    /// \a names and \a moments must live as long as this object.
    PreviewValues(PreviewNames &names, const PreviewMoments &moments);

    /// A cell as it was; empty when the row was not there, or the cell is NULL.
    QString before(const PreviewChange &change, int column) const;
    /// A cell as it will be; empty when the row will be gone, or the cell is NULL.
    QString after(const PreviewChange &change, int column) const;

    /// A Unix time: a day when it is a midnight or the last second of a day.
    static QString time(const QString &seconds);
    /// A month such as "2024-03" for 202403.
    static QString month(const QString &number);

private:
    QString read(const PreviewChange &change, int column, const QString &cell) const;

    PreviewNames &m_names;
    const PreviewMoments &m_moments;
};
