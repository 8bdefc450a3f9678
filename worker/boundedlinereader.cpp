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
    while (read()) {
        if (isComplete())
            return true;
    }
    return false;
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
