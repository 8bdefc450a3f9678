#include "tests/worker/support/commandgate.h"

#include "tests/support/patience.h"

#include <QFile>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

CommandGate::CommandGate()
    : m_path(QFile::encodeName(m_dir.filePath("gate")))
{
    if (::mkfifo(m_path.constData(), 0600) != 0)
        qFatal("%s could not be made", m_path.constData());
    // While a writer exists, the command opens the pipe at once.
    m_handle = ::open(m_path.constData(), O_RDWR | O_CLOEXEC);
    m_watch = ::inotify_init1(IN_CLOEXEC);
    if (m_handle < 0 || ::inotify_add_watch(m_watch, m_path.constData(), IN_OPEN) < 0)
        qFatal("%s could not be watched", m_path.constData());
}

CommandGate::~CommandGate()
{
    open();
    ::close(m_watch);
}

QString CommandGate::command() const
{
    // Reads until the last writer has gone.
    return "/bin/cat " + QFile::decodeName(m_path);
}

void CommandGate::waitForCommand()
{
    if (!waitUntilReadable(m_watch))
        qFatal("The command does not run.");
}

void CommandGate::open()
{
    if (m_handle >= 0)
        ::close(m_handle);
    m_handle = -1;
}
