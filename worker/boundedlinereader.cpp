#include "worker/boundedlinereader.h"

#include <QIODevice>

#include <cstring>

namespace {

constexpr int kBlockSize = 64 * 1024;

/// The longest line and its line feed.
constexpr int kLineCapacity = BoundedLineReader::kLongestLine + 1;

} // namespace

BoundedLineReader::BoundedLineReader(QIODevice &device)
    : m_device(device)
    , m_block(kBlockSize, Qt::Uninitialized)
    , m_line(kLineCapacity + 1, '\0')
{
}

bool BoundedLineReader::next()
{
    bool read = readLine();
    while (read && isTooLong())
        read = readLine();
    m_line.data()[m_length] = '\0';
    return read;
}

bool BoundedLineReader::isTooLong() const
{
    return m_length > kLineCapacity
        || (m_length == kLineCapacity && m_line.at(kLongestLine) != '\n');
}

bool BoundedLineReader::readLine()
{
    m_length = 0;
    bool complete = false;
    while (!complete && (m_begin < m_end || readBlock())) {
        const char *const begin = m_block.constData() + m_begin;
        int count = m_end - m_begin;
        const void *const lineFeed = std::memchr(begin, '\n', static_cast<std::size_t>(count));
        complete = lineFeed != nullptr;
        if (complete)
            count = static_cast<int>(static_cast<const char *>(lineFeed) - begin) + 1;
        append(begin, count);
        m_begin += count;
    }
    if (m_length == 0 || hasFailed())
        return false;
    ++m_lineNumber;
    return true;
}

bool BoundedLineReader::readBlock()
{
    m_begin = 0;
    m_end = 0;
    if (hasFailed())
        return false;
    const qint64 count = m_device.read(m_block.data(), kBlockSize);
    if (count < 0) {
        m_error = m_device.errorString();
        return false;
    }
    m_bytesRead += count;
    if (m_bytesRead > kMostBytes) {
        m_error = QStringLiteral("it is longer than 1 GiB, and the plugin reads no further");
        return false;
    }
    m_end = static_cast<int>(count);
    return m_end > 0;
}

void BoundedLineReader::append(const char *bytes, int count)
{
    if (m_length + count > kLineCapacity) {
        m_length = kLineCapacity + 1;
        return;
    }
    std::memcpy(m_line.data() + m_length, bytes, static_cast<std::size_t>(count));
    m_length += count;
}
