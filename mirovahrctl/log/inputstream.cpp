#include "mirovahrctl/log/inputstream.h"

#include "cli/systemmessage.h"

#include <cerrno>

#include <unistd.h>

namespace {

constexpr int kMostAtOnce = 256 * 1024;

} // namespace

InputStream::InputStream(int descriptor)
    : m_notifier(descriptor, QSocketNotifier::Read)
    , m_block(kMostAtOnce, Qt::Uninitialized)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &InputStream::readOn);
}

void InputStream::readOn()
{
    const ssize_t length = ::read(int(m_notifier.socket()), m_block.data(), size_t(m_block.size()));
    if (length > 0) {
        Q_EMIT read(QByteArray::fromRawData(m_block.constData(), int(length)));
        return;
    }
    if (length < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    m_notifier.setEnabled(false);
    if (length == 0)
        Q_EMIT ended();
    else
        Q_EMIT failed(systemMessage(qt_error_string(errno)));
}
