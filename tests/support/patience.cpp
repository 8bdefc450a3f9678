#include "tests/support/patience.h"

#include <QDeadlineTimer>

#include <cerrno>

#include <poll.h>

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
