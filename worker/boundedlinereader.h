#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

/// Reads a device line by line, in bounded memory and in bounded time. A line of more than 64 KiB
/// is skipped whole. No more than 1 GiB is read: an export of a million lines has 150 MB, but a
/// file with a hole may have any length.
class BoundedLineReader {
public:
    static constexpr int kLongestLine = 64 * 1024; ///< bytes, without the line feed
    static constexpr qint64 kMostBytes = qint64(1) << 30; ///< of the device

    explicit BoundedLineReader(QIODevice &device);

    /// Advances to the next line that is not too long; false when there is none: at the end of the
    /// device, or where reading fails. A line that is cut off there is left out.
    bool next();

    /// True when the device was not read to its end: it cannot be read on, or is too long.
    bool hasFailed() const { return !m_error.isEmpty(); }

    /// Why it has failed: a clause without capital letter and full stop, to be shown to an
    /// operator.
    QString errorString() const { return m_error; }

    /// The current line as read, with its line feed, ended by a NUL byte; valid until next().
    const char *line() const { return m_line.constData(); }

    /// The bytes of the current line with its line feed. It may itself contain NUL bytes.
    int length() const { return m_length; }

    /// The number of the current line, counted from 1 and with the lines that were skipped; after
    /// the last one, the number of all lines.
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
    qint64 m_bytesRead = 0;
    QString m_error;
};
