#include "worker/boundedlinereader.h"

#include <QIODevice>

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
        const qint64 length = m_device.readLine(m_buffer.data(), kBufferSize);
        if (length <= 0)
            return false;
        const bool complete = m_buffer.at(static_cast<int>(length) - 1) == '\n';
        if (complete || length <= kLongestLine)
            return true;
        if (!skipRestOfLine())
            return false;
    }
}

bool BoundedLineReader::skipRestOfLine()
{
    for (;;) {
        const qint64 length = m_device.readLine(m_buffer.data(), kBufferSize);
        if (length <= 0)
            return false;
        if (m_buffer.at(static_cast<int>(length) - 1) == '\n')
            return true;
    }
}
