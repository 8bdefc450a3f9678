#include "mirovahrctl/gate/gatesource.h"

#include "cli/systemmessage.h"
#include "cli/text.h"
#include "worker/boundedlinereader.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr qint64 kNanosecondsPerMillisecond = 1000000;

bool isSameTime(const timespec &a, const timespec &b)
{
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

bool isSameFile(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_size == b.st_size
        && isSameTime(a.st_mtim, b.st_mtim);
}

} // namespace

GateSource::GateSource(const QString &path)
    : m_path(path)
{
}

GateSource::Outcome GateSource::open()
{
    // A pipe instead of the file must not block the attendance server.
    const int fd = ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0 && (errno == ENOENT || errno == ENOTDIR))
        return Outcome::Missing;
    if (fd < 0 || !m_file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)
        || ::fstat(fd, &m_opened) != 0) {
        fail(QT_TRANSLATE_NOOP("Text", "'%1' cannot be read: %2"), qt_error_string(errno));
        return Outcome::Failed;
    }
    return S_ISREG(m_opened.st_mode) ? Outcome::Done : Outcome::Missing;
}

bool GateSource::isTooLong() const
{
    return m_opened.st_size > BoundedLineReader::kMostBytes;
}

bool GateSource::copyTo(QIODevice &target)
{
    QByteArray piece(kPieceSize, Qt::Uninitialized);
    // A file that grows meanwhile has changed, however much of it is copied.
    while (m_copied <= BoundedLineReader::kMostBytes) {
        const qint64 length = m_file.read(piece.data(), piece.size());
        if (length < 0)
            return fail(QT_TRANSLATE_NOOP("Text", "'%1' cannot be read to its end: %2"),
                        m_file.errorString());
        if (length == 0)
            break;
        if (target.write(piece.constData(), length) != length)
            return false;
        m_copied += length;
    }
    return true;
}

bool GateSource::hasChanged() const
{
    struct stat now = {};
    return ::stat(QFile::encodeName(m_path).constData(), &now) != 0 || !isSameFile(m_opened, now)
        || m_copied != now.st_size;
}

QDateTime GateSource::modified() const
{
    const timespec &time = m_opened.st_mtim;
    return QDateTime::fromMSecsSinceEpoch(qint64(time.tv_sec) * 1000
                                          + time.tv_nsec / kNanosecondsPerMillisecond);
}

qint64 GateSource::age() const
{
    return modified().secsTo(QDateTime::currentDateTime());
}

bool GateSource::fail(const char *text, const QString &reason)
{
    m_error = Text::tr(text).arg(m_path, systemMessage(reason));
    return false;
}
