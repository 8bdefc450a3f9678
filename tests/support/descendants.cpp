#include "tests/support/descendants.h"

#include "tests/support/patience.h"

#include <QtGlobal>

#include <unistd.h>

Descendants::Descendants()
{
    if (::pipe(m_pipe) != 0)
        qFatal("No pipe");
}

Descendants::~Descendants()
{
    ::close(m_pipe[0]);
}

bool Descendants::waitForEnd()
{
    ::close(m_pipe[1]);
    // Nobody writes: the pipe becomes readable when the last process that inherited it is gone.
    return waitUntilReadable(m_pipe[0]);
}
