#include "worker/boundedlinereader.h"

#include <QIODevice>

#include <cstring>

namespace {

/// The longest line, its line feed and the NUL byte that the device puts behind them.
constexpr int kBufferSize = BoundedLineReader::kLongestLine + 2;

} // namespace

BoundedLineReader::BoundedLineReader(QIODevice &device)
    : m_device(device)
    , m_buffer(kBufferSize, Qt::Uninitialized)
{
}

bool BoundedLineReader::next()
{
    for (;;) {
        if (!read())
            return false;
        ++m_lineNumber;
        if (isComplete() || m_length <= kLongestLine)
            return true;
        if (!skipRestOfLine())
            return false;
    }
}

bool BoundedLineReader::skipRestOfLine()
{
    // In blocks: Qt reads the end of a long line byte by byte, and this one may have gigabytes.
    for (;;) {
        const qint64 length = m_device.peek(m_buffer.data(), kBufferSize);
        if (length <= 0)
            return false;
        const char *const begin = m_buffer.constData();
        const void *const lineFeed = std::memchr(begin, '\n', static_cast<std::size_t>(length));
        if (lineFeed != nullptr)
            return m_device.skip(static_cast<const char *>(lineFeed) - begin + 1) > 0;
        m_device.skip(length);
    }
}

bool BoundedLineReader::read()
{
    m_length = static_cast<int>(m_device.readLine(m_buffer.data(), kBufferSize));
    return m_length > 0;
}

bool BoundedLineReader::isComplete() const
{
    return m_buffer.at(m_length - 1) == '\n';
}
