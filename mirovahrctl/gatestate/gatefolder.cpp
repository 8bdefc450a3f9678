#include "mirovahrctl/gatestate/gatefolder.h"

#include "cli/systemmessage.h"
#include "cli/text.h"
#include "mirovahrctl/gatestate/gatefile.h"

#include <QDir>

#include <algorithm>
#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t kPrivateFolder = 0700;
constexpr mode_t kPrivateFile = 0600;

bool isRoot()
{
    return ::geteuid() == 0;
}

bool isPrivate(const struct stat &folder)
{
    const bool owned = folder.st_uid == ::geteuid() || folder.st_uid == 0 || isRoot();
    return owned && (folder.st_mode & S_IWOTH) == 0;
}

/// True when somebody may have linked a file of root's to this name.
bool hasOtherNames(int file)
{
    struct stat status = {};
    return ::fstat(file, &status) != 0 || status.st_nlink > 1;
}

} // namespace

GateFolder::~GateFolder()
{
    if (m_lockFd >= 0)
        ::close(m_lockFd);
    if (m_fd >= 0)
        ::close(m_fd);
}

bool GateFolder::open(const QString &path)
{
    m_path = QDir::cleanPath(path);
    struct stat status = {};
    return openFolder(0, status) && isOwnerTrusted();
}

bool GateFolder::openAgain(const GateFolder &folder)
{
    m_path = folder.m_path;
    m_owner = folder.m_owner;
    m_group = folder.m_group;
    m_fd = ::fcntl(folder.m_fd, F_DUPFD_CLOEXEC, 0);
    return m_fd >= 0
        || fail(m_path, QT_TRANSLATE_NOOP("Text", "'%1' cannot be opened as a folder: %2"));
}

bool GateFolder::openPrivate(const QString &path)
{
    m_path = QDir::cleanPath(path);
    const bool made = ::mkdir(QFile::encodeName(m_path).constData(), kPrivateFolder) == 0;
    if (!made && errno != EEXIST)
        return fail(m_path, QT_TRANSLATE_NOOP("Text", "'%1' cannot be created: %2"));
    struct stat status = {};
    if (!openFolder(O_NOFOLLOW, status) || !isOwnerTrusted())
        return false;
    if (isPrivate(status))
        return !made || takeOwnerOfParent();
    m_error = Text::tr("The folder '%1' belongs to somebody else, or everybody may write to "
                       "it: the gate could not trust its own files there")
                  .arg(m_path);
    return false;
}

bool GateFolder::openFolder(int flags, struct stat &status)
{
    m_fd =
        ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | flags);
    if (m_fd < 0 || ::fstat(m_fd, &status) != 0)
        return fail(m_path, QT_TRANSLATE_NOOP("Text", "'%1' cannot be opened as a folder: %2"));
    m_owner = status.st_uid;
    m_group = status.st_gid;
    return true;
}

bool GateFolder::isOwnerTrusted()
{
    if (!isRoot() || m_owner == 0)
        return true;
    struct stat parent = {};
    if (::fstatat(m_fd, "..", &parent, 0) != 0)
        return fail(
            m_path,
            QT_TRANSLATE_NOOP("Text", "'%1' has no parent folder that can be examined: %2"));
    if (m_owner == parent.st_uid)
        return true;
    m_error = Text::tr("The folder '%1' belongs neither to root nor to the owner of its parent "
                       "folder, so anybody may have created it. Run the gate as its owner "
                       "if that is right, or give the folder to root")
                  .arg(m_path);
    return false;
}

/// Root may run the gate by hand where the attendance server's user runs it otherwise, and must not
/// leave files that this user cannot open.
bool GateFolder::takeOwnerOfParent()
{
    struct stat parent = {};
    if (::fstatat(m_fd, "..", &parent, 0) != 0)
        return fail(m_path, QT_TRANSLATE_NOOP("Text", "'%1' cannot be created: %2"));
    m_owner = parent.st_uid;
    m_group = parent.st_gid;
    return giveToOwner(m_fd)
        || fail(m_path, QT_TRANSLATE_NOOP("Text", "'%1' cannot be given to its owner: %2"));
}

GateFolder::Lock GateFolder::lock(const QString &name)
{
    m_lockFd = ::openat(m_fd, QFile::encodeName(name).constData(),
                        O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, kPrivateFile);
    const bool isGiven = m_lockFd >= 0 && (hasOtherNames(m_lockFd) || giveToOwner(m_lockFd));
    if (isGiven && ::flock(m_lockFd, LOCK_EX | LOCK_NB) == 0)
        return Lock::Taken;
    if (m_lockFd >= 0 && errno == EWOULDBLOCK)
        return Lock::Busy;
    fail(pathOf(name), QT_TRANSLATE_NOOP("Text", "'%1' cannot be locked: %2"));
    return Lock::Failed;
}

bool GateFolder::openForReading(const QString &name, QFile &file, bool &missing)
{
    const int fd = ::openat(m_fd, QFile::encodeName(name).constData(),
                            O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    missing = fd < 0 && errno == ENOENT;
    if (fd >= 0 && file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    return fail(pathOf(name), QT_TRANSLATE_NOOP("Text", "'%1' cannot be read: %2"));
}

std::optional<QByteArray> GateFolder::contentOf(const QString &name)
{
    QFile file;
    bool missing = false;
    if (!openForReading(name, file, missing))
        return missing ? std::make_optional(QByteArray()) : std::nullopt;
    const QByteArray content = file.readAll();
    if (file.error() == QFileDevice::NoError)
        return content;
    m_error =
        Text::tr("'%1' cannot be read: %2").arg(pathOf(name), systemMessage(file.errorString()));
    return std::nullopt;
}

std::optional<QStringList> GateFolder::names()
{
    const int fd = ::openat(m_fd, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR *const folder = fd < 0 ? nullptr : ::fdopendir(fd);
    if (folder == nullptr) {
        fail(m_path, QT_TRANSLATE_NOOP("Text", "'%1' cannot be listed: %2"));
        return std::nullopt;
    }
    QStringList names;
    errno = 0;
    while (const dirent *entry = ::readdir(folder))
        names << QFile::decodeName(entry->d_name);
    const bool complete =
        errno == 0 || fail(m_path, QT_TRANSLATE_NOOP("Text", "'%1' cannot be listed: %2"));
    ::closedir(folder);
    std::sort(names.begin(), names.end());
    return complete ? std::make_optional(names) : std::nullopt;
}

bool GateFolder::link(const QString &from, const QString &to, bool &exists)
{
    const int result = ::linkat(m_fd, QFile::encodeName(from).constData(), m_fd,
                                QFile::encodeName(to).constData(), 0);
    exists = result != 0 && errno == EEXIST;
    return result == 0 || fail(pathOf(to), QT_TRANSLATE_NOOP("Text", "'%1' cannot be created: %2"));
}

bool GateFolder::rename(const QString &from, const QString &to)
{
    return ::renameat(m_fd, QFile::encodeName(from).constData(), m_fd,
                      QFile::encodeName(to).constData())
        == 0
        || fail(pathOf(to), QT_TRANSLATE_NOOP("Text", "'%1' cannot be replaced: %2"));
}

bool GateFolder::remove(const QString &name)
{
    return ::unlinkat(m_fd, QFile::encodeName(name).constData(), 0) == 0
        || fail(pathOf(name), QT_TRANSLATE_NOOP("Text", "'%1' cannot be removed: %2"));
}

bool GateFolder::removeLeftovers(const QString &name)
{
    const auto entries = names();
    if (!entries)
        return false;
    return std::all_of(entries->cbegin(), entries->cend(), [this, &name](const QString &entry) {
        return !isLeftover(entry, name) || remove(entry);
    });
}

/// In a folder that others may write to as well, their files are left alone: this user may not be
/// able to remove them.
bool GateFolder::isLeftover(const QString &entry, const QString &name) const
{
    struct stat status = {};
    return GateFile::isTemporaryName(entry, name)
        && ::fstatat(m_fd, QFile::encodeName(entry).constData(), &status, AT_SYMLINK_NOFOLLOW) == 0
        && S_ISREG(status.st_mode) && (status.st_uid == ::geteuid() || isRoot());
}

bool GateFolder::sync()
{
    return ::fsync(m_fd) == 0
        || fail(m_path, QT_TRANSLATE_NOOP("Text", "'%1' cannot be written to the disk: %2"));
}

bool GateFolder::hasFile(const QString &name) const
{
    struct stat status = {};
    return ::fstatat(m_fd, QFile::encodeName(name).constData(), &status, AT_SYMLINK_NOFOLLOW) == 0
        && S_ISREG(status.st_mode);
}

bool GateFolder::giveToOwner(int file) const
{
    return !isRoot() || ::fchown(file, m_owner, m_group) == 0;
}

bool GateFolder::fail(const QString &path, const char *text)
{
    const int reason = errno;
    m_error = Text::tr(text).arg(path, systemMessage(qt_error_string(reason)));
    return false;
}
