#include "tests/support/descendants.h"

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

void Descendants::waitForEnd()
{
    ::close(m_pipe[1]);
    char byte = 0;
    while (::read(m_pipe[0], &byte, 1) > 0) { }
}
