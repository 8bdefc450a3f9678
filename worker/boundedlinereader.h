#pragma once

#include <QByteArray>

class QIODevice;

/// Reads a device line by line in bounded memory. A line of more than 64 KiB is skipped whole.
class BoundedLineReader {
public:
    static constexpr int kLongestLine = 64 * 1024; ///< bytes, without the line feed

    explicit BoundedLineReader(QIODevice &device);

    /// Advances to the next line that is not too long; false at the end of the device and when
    /// reading fails.
    bool next();

    /// The current line as read, with its line feed, ended by a NUL byte; valid until next().
    const char *line() const { return m_line.constData(); }

    /// The bytes of the current line with its line feed. It may itself contain NUL bytes.
    int length() const { return m_length; }

    /// The number of the current line, counted from 1 and with the lines that were skipped; after
    /// the end, the number of all lines.
    qint64 lineNumber() const { return m_lineNumber; }

private:
    bool readLine();
    bool readBlock();
    void append(const char *bytes, int count);
    bool isTooLong() const;

    QIODevice &m_device;
    QByteArray m_block; ///< as the device gave it
    int m_begin = 0; ///< of what is still to be read of the block
    int m_end = 0; ///< of the block
    QByteArray m_line;
    int m_length = 0; ///< of the line; more than the line can hold when it is too long
    qint64 m_lineNumber = 0;
};
