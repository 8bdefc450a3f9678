#include "tests/support/patience.h"

#include <QDeadlineTimer>
#include <QThread>

#include <cerrno>

#include <poll.h>

namespace {

constexpr unsigned long kPollingPeriodMs = 20;

} // namespace

bool waitUntilReadable(int descriptor)
{
    const QDeadlineTimer deadline(kPatienceMs);
    pollfd poll = {descriptor, POLLIN, 0};
    for (;;) {
        const int ready = ::poll(&poll, 1, int(deadline.remainingTime()));
        if (ready >= 0 || errno != EINTR) // the end of a child interrupts it
            return ready == 1;
    }
}

bool pollUntil(const std::function<bool()> &reached)
{
    const QDeadlineTimer deadline(kPatienceMs);
    while (!reached()) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(kPollingPeriodMs);
    }
    return true;
}
