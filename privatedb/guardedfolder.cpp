#include "privatedb/guardedfolder.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr char kShell[] = "/bin/sh";
// Whatever ends the program in a terminal must not end the guard.
constexpr char kGuard[] = "trap '' HUP INT QUIT TERM; cat; exec rm -rf -- \"$1\"";
constexpr char kGuardPath[] = "PATH=/usr/bin:/bin";

/// What the guard's process gets: its end of the pipe as standard input, and nothing else of this
/// program's.
class GuardSetup {
public:
    explicit GuardSetup(int pipe)
    {
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, pipe, STDIN_FILENO);
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    }
    ~GuardSetup()
    {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }
    GuardSetup(const GuardSetup &) = delete;
    GuardSetup &operator=(const GuardSetup &) = delete;

    posix_spawn_file_actions_t actions{};
    posix_spawnattr_t attributes{};
};

} // namespace

GuardedFolder::GuardedFolder(const QString &name, AtTheEnd atTheEnd)
    : m_dir(name)
{
    m_dir.setAutoRemove(atTheEnd == AtTheEnd::Removed);
    if (!m_dir.isValid())
        m_error = m_dir.errorString();
    else if (m_dir.autoRemove())
        startGuard();
}

GuardedFolder::~GuardedFolder()
{
    if (m_guard <= 0)
        return;
    m_dir.remove();
    ::close(m_pipe);
    while (::waitpid(m_guard, nullptr, 0) < 0 && errno == EINTR) { }
}

void GuardedFolder::belongToThisProcess() const
{
    ::fcntl(m_pipe, F_SETFD, 0);
}

void GuardedFolder::startGuard()
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        m_error = QString::fromLocal8Bit(std::strerror(errno));
        return;
    }
    const GuardSetup setup(ends[0]);
    QByteArray script(kGuard);
    QByteArray folder = QFile::encodeName(m_dir.path());
    QByteArray shell(kShell);
    QByteArray option("-c");
    QByteArray path(kGuardPath);
    char *arguments[] = {shell.data(), option.data(), script.data(),
                         shell.data(), folder.data(), nullptr};
    char *environment[] = {path.data(), nullptr};
    const int error =
        ::posix_spawn(&m_guard, kShell, &setup.actions, &setup.attributes, arguments, environment);
    ::close(ends[0]);
    if (error == 0) {
        m_pipe = ends[1];
        return;
    }
    ::close(ends[1]);
    m_guard = 0;
    m_error = QString::fromLocal8Bit(std::strerror(error));
}
