#pragma once

#include <QByteArray>

class QIODevice;

/// Reads a device line by line in bounded memory. A line of more than 64 KiB is skipped whole.
class BoundedLineReader {
public:
    static constexpr int kLongestLine = 64 * 1024; ///< bytes, without the line feed

    explicit BoundedLineReader(QIODevice &device);

    /// Goes to the next line that is not too long; false at the end of the device or when it
    /// cannot be read on.
    bool next();

    /// The current line as read, with its line feed, ended by a NUL byte; valid until next().
    const char *line() const { return m_buffer.constData(); }

private:
    bool skipRestOfLine();

    QIODevice &m_device;
    QByteArray m_buffer;
};
