#pragma once

#include <QByteArray>
#include <QList>

/// The bytes of a line of an export, as the plugin parts it.
struct LineParts {
    QByteArray before; ///< a byte order mark and white space, which the plugin skips
    QList<QByteArray> fields; ///< one or more; one that is empty for a line without text
    QByteArray after; ///< white space, with the line feed unless hidden bytes follow
    /// Parts of what the plugin does not read: from the first NUL byte on, with the line feed.
    QList<QByteArray> hidden;

    /// \a line: with its line feed, if it has one.
    static LineParts of(const QByteArray &line);

    /// The line again.
    QByteArray joined() const;
};
