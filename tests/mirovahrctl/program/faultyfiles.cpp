// A library to be loaded before all others (LD_PRELOAD): it makes a program's calls that work with
// files fail, or kills the program in the middle of one. It counts the calls that concern one
// folder:
//
//   FAULTY_FOLDER   the folder
//   FAULTY_COUNTED  which calls count: "all"; "changes": not those that look and read only; or
//                   "space": those that may take space on the disk
//   FAULTY_CALL     the number of the call, from 1; 0 for none
//   FAULTY_ERROR    the error number; 0: the program is killed, when it writes after half of it
//   FAULTY_REST     1: all calls after it that count fail, too
//   FAULTY_TRACE    a file to which every call that counts is appended, a line each: its name and
//                   the path of its file
//   FAULTY_APPEND   a file to which a byte is appended when it is first read
//   FAULTY_PIPE     a file that a pipe replaces when it is first opened
//
// Every function makes its system call itself, without another library between them.

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

enum class Kind { Looks, Changes, TakesSpace };

std::string setting(const char *name)
{
    const char *const value = ::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

Kind leastKind()
{
    const std::string counted = setting("FAULTY_COUNTED");
    if (counted == "space")
        return Kind::TakesSpace;
    return counted == "changes" ? Kind::Changes : Kind::Looks;
}

struct Faults {
    std::string folder = setting("FAULTY_FOLDER");
    std::string trace = setting("FAULTY_TRACE");
    std::string append = setting("FAULTY_APPEND");
    std::string pipe = setting("FAULTY_PIPE");
    Kind least = leastKind();
    long call = std::atol(setting("FAULTY_CALL").c_str());
    int error = std::atoi(setting("FAULTY_ERROR").c_str());
    bool rest = setting("FAULTY_REST") == "1";
    long count = 0;
};

Faults &faults()
{
    static Faults all;
    return all;
}

long openFile(int folder, const char *path, int flags, mode_t mode)
{
    return ::syscall(SYS_openat, folder, path, flags, mode);
}

std::string pathOf(int file)
{
    char target[PATH_MAX];
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = ::readlink(link.c_str(), target, sizeof target);
    return length < 0 ? std::string() : std::string(target, size_t(length));
}

std::string pathAt(int folder, const char *path)
{
    if (path[0] == '/' || folder == AT_FDCWD)
        return path;
    return pathOf(folder) + '/' + path;
}

bool concerns(const std::string &path)
{
    const std::string &folder = faults().folder;
    return !folder.empty() && path.compare(0, folder.size(), folder) == 0;
}

void appendTo(const std::string &path, const std::string &text)
{
    const long file = openFile(AT_FDCWD, path.c_str(), O_WRONLY | O_APPEND | O_CREAT, 0600);
    ::syscall(SYS_write, file, text.data(), text.size());
    ::syscall(SYS_close, file);
}

void replaceByPipe(const std::string &path)
{
    ::syscall(SYS_unlinkat, AT_FDCWD, path.c_str(), 0);
    ::syscall(SYS_mknodat, AT_FDCWD, path.c_str(), S_IFIFO | 0600, 0);
}

[[noreturn]] void die()
{
    for (;;)
        ::raise(SIGKILL);
}

/// Counts a call. True when it must fail; errno is then set. When the program is to die in this
/// call, runs \a half and kills it.
template <typename Half>
bool fails(const char *name, const std::string &path, Kind kind, const Half &half)
{
    Faults &all = faults();
    if (!concerns(path) || kind < all.least)
        return false;
    ++all.count;
    if (!all.trace.empty())
        appendTo(all.trace, std::string(name) + ' ' + path + '\n');
    const bool isHit = all.rest ? all.count >= all.call : all.count == all.call;
    if (all.call == 0 || !isHit)
        return false;
    if (all.error == 0) {
        half();
        die();
    }
    errno = all.error;
    return true;
}

bool fails(const char *name, const std::string &path, Kind kind)
{
    return fails(name, path, kind, [] {});
}

int openAt(int folder, const char *path, int flags, mode_t mode)
{
    Faults &all = faults();
    if (!all.pipe.empty() && path == all.pipe)
        replaceByPipe(std::exchange(all.pipe, {}));
    const Kind kind = (flags & O_CREAT) != 0 ? Kind::TakesSpace : Kind::Looks;
    const char *const name = (flags & O_CREAT) != 0 ? "create" : "open";
    return fails(name, pathAt(folder, path), kind) ? -1 : int(openFile(folder, path, flags, mode));
}

mode_t modeOf(int flags, va_list arguments)
{
    return (flags & O_CREAT) != 0 ? mode_t(va_arg(arguments, int)) : 0;
}

} // namespace

#define FAULTY extern "C" __attribute__((visibility("default")))

FAULTY int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return openAt(AT_FDCWD, path, flags, mode);
}

FAULTY int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return openAt(AT_FDCWD, path, flags, mode);
}

FAULTY int openat(int folder, const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return openAt(folder, path, flags, mode);
}

FAULTY int openat64(int folder, const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return openAt(folder, path, flags, mode);
}

FAULTY int mkdir(const char *path, mode_t mode) noexcept
{
    return fails("mkdir", path, Kind::TakesSpace) ? -1 : int(::syscall(SYS_mkdir, path, mode));
}

FAULTY ssize_t read(int file, void *buffer, size_t size)
{
    const std::string path = pathOf(file);
    Faults &all = faults();
    if (!all.append.empty() && path == all.append)
        appendTo(std::exchange(all.append, {}), "x");
    return fails("read", path, Kind::Looks) ? -1 : ::syscall(SYS_read, file, buffer, size);
}

FAULTY ssize_t write(int file, const void *buffer, size_t size)
{
    const auto writeHalf = [file, buffer, size] {
        ::syscall(SYS_write, file, buffer, size / 2);
    };
    return fails("write", pathOf(file), Kind::TakesSpace, writeHalf)
        ? -1
        : ::syscall(SYS_write, file, buffer, size);
}

FAULTY int fsync(int file)
{
    return fails("fsync", pathOf(file), Kind::TakesSpace) ? -1 : int(::syscall(SYS_fsync, file));
}

FAULTY int fchmod(int file, mode_t mode) noexcept
{
    return fails("fchmod", pathOf(file), Kind::Changes) ? -1
                                                        : int(::syscall(SYS_fchmod, file, mode));
}

FAULTY int fchown(int file, uid_t owner, gid_t group) noexcept
{
    return fails("fchown", pathOf(file), Kind::Changes)
        ? -1
        : int(::syscall(SYS_fchown, file, owner, group));
}

FAULTY int linkat(int from, const char *old, int to, const char *path, int flags) noexcept
{
    return fails("link", pathAt(to, path), Kind::TakesSpace)
        ? -1
        : int(::syscall(SYS_linkat, from, old, to, path, flags));
}

FAULTY int renameat(int from, const char *old, int to, const char *path) noexcept
{
    return fails("rename", pathAt(to, path), Kind::TakesSpace)
        ? -1
        : int(::syscall(SYS_renameat, from, old, to, path));
}

FAULTY int unlinkat(int folder, const char *path, int flags) noexcept
{
    return fails("unlink", pathAt(folder, path), Kind::Changes)
        ? -1
        : int(::syscall(SYS_unlinkat, folder, path, flags));
}

// Calls that the gate does not make today: a change of it must not escape unseen.
FAULTY int rename(const char *old, const char *path) noexcept
{
    return renameat(AT_FDCWD, old, AT_FDCWD, path);
}

FAULTY int unlink(const char *path) noexcept
{
    return unlinkat(AT_FDCWD, path, 0);
}
