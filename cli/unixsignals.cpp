#include "cli/unixsignals.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

// Where the handler writes the number of each signal; -1 while nobody reads.
volatile std::sig_atomic_t g_pipeEnd = -1;
volatile std::sig_atomic_t g_last = 0;

void noteSignal(int signalNumber)
{
    g_last = signalNumber;
    const int savedErrno = errno;
    const auto number = static_cast<unsigned char>(signalNumber);
    // A full pipe means that many signals wait already: this one may be lost.
    [[maybe_unused]] const ssize_t written = write(g_pipeEnd, &number, sizeof number);
    errno = savedErrno;
}

} // namespace

UnixSignals::UnixSignals(std::initializer_list<int> signalNumbers)
{
    if (pipe2(m_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("No pipe for signals");
    auto *notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &UnixSignals::readOne);

    g_pipeEnd = m_pipe[1];
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    for (const int signalNumber : signalNumbers)
        sigaction(signalNumber, &action, nullptr);
}

UnixSignals::~UnixSignals()
{
    g_pipeEnd = -1;
    close(m_pipe[0]);
    close(m_pipe[1]);
}

int UnixSignals::last() const
{
    return g_last;
}

void UnixSignals::readOne()
{
    unsigned char number = 0;
    if (read(m_pipe[0], &number, sizeof number) == sizeof number)
        Q_EMIT received(number);
}
