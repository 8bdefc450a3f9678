#include "tests/worker/tick/commandgate.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

CommandGate::CommandGate()
    : m_path(QFile::encodeName(m_dir.filePath("gate")))
{
    if (::mkfifo(m_path.constData(), 0600) != 0)
        qFatal("%s could not be made", m_path.constData());
}

CommandGate::~CommandGate()
{
    open();
}

QString CommandGate::command() const
{
    // Reads until the last writer has gone.
    return "/bin/cat " + QFile::decodeName(m_path);
}

void CommandGate::waitForCommand()
{
    // Waits for the reader.
    m_handle = ::open(m_path.constData(), O_WRONLY | O_CLOEXEC);
    if (m_handle < 0)
        qFatal("%s could not be opened", m_path.constData());
}

void CommandGate::open()
{
    if (m_handle >= 0)
        ::close(m_handle);
    m_handle = -1;
}
