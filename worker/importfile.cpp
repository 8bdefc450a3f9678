#include "worker/importfile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ImportFile {

namespace {

const QLatin1String kDefaultPath("/tmp/ron.data");

bool isRegular(int fd)
{
    struct stat status = {};
    return ::fstat(fd, &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

QString path(const QString &configured)
{
    return configured.isEmpty() ? QString(kDefaultPath) : configured;
}

Opening open(const QString &path, QFile &file, QString &error)
{
    // Opening a device may already do something to it, so that is not tried.
    if (!QFileInfo(path).isFile())
        return Opening::NotFound;
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        error = qt_error_string(errno);
        return QFileInfo(path).isFile() ? Opening::Failed : Opening::NotFound;
    }
    if (!isRegular(fd)) {
        ::close(fd);
        return Opening::NotFound;
    }
    file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    return Opening::Done;
}

} // namespace ImportFile
