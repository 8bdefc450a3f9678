#include "mirovahrctl/log/growingfile.h"

#include "cli/systemmessage.h"
#include "cli/text.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>

#include <sys/stat.h>

namespace {

constexpr int kBlock = 256 * 1024;

/// Where the line begins in which this byte is.
qint64 beginOfLine(QFile &file, qint64 place)
{
    for (qint64 end = place; end > 0;) {
        const qint64 begin = std::max(qint64(0), end - kBlock);
        file.seek(begin);
        const int lineFeed = file.read(end - begin).lastIndexOf('\n');
        if (lineFeed >= 0)
            return begin + lineFeed + 1;
        end = begin;
    }
    return 0;
}

/// Where the first of the last \a count occurrences of the text is; nothing when there are fewer.
/// Reads backwards, so that a long log costs only what lies behind that place.
std::optional<qint64> lastPlaceOf(QFile &file, const QByteArray &text, int count)
{
    QByteArray behind; // the beginning of the block behind, for what reaches into it
    for (qint64 end = file.size(); end > 0;) {
        const qint64 begin = std::max(qint64(0), end - kBlock);
        file.seek(begin);
        const QByteArray block = file.read(end - begin) + behind;
        int at = block.lastIndexOf(text);
        while (at >= 0) {
            if (--count == 0)
                return begin + at;
            at = at > 0 ? block.lastIndexOf(text, at - 1) : -1;
        }
        behind = block.left(text.size() - 1);
        end = begin;
    }
    return std::nullopt;
}

} // namespace

GrowingFile::GrowingFile(const QString &path)
    : m_path(path)
{
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &GrowingFile::readOn);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &GrowingFile::readOn);
}

bool GrowingFile::open()
{
    const QFileInfo info(m_path);
    if (!m_watcher.addPath(info.absolutePath()))
        return fail(Text::tr("its folder cannot be watched"));
    if (!info.exists()) {
        sayWaiting(Text::tr("The log '%1' is not there yet.").arg(m_path));
        return true;
    }
    if (!info.isFile())
        return fail(Text::tr("it is no file; give what comes from it on standard input"));
    return openNamed();
}

void GrowingFile::skipToLast(const QByteArray &text, int count)
{
    if (!m_file)
        return;
    const auto place = lastPlaceOf(*m_file, text, count);
    m_file->seek(place ? beginOfLine(*m_file, *place) : 0);
}

void GrowingFile::readOn()
{
    // Before the reading, so that nothing is missed that is written after it. The watcher lets go
    // of a file that is renamed.
    if (!m_watcher.files().contains(m_path))
        watch();
    readNew();
    while (takeNext())
        readNew();
}

bool GrowingFile::openNamed()
{
    auto file = std::make_unique<QFile>(m_path);
    if (!file->open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return fail(systemMessage(file->errorString()));
    m_file = std::move(file);
    m_isWaiting = false;
    watch();
    return true;
}

/// Opens the file that has the name now, unless it is open already. False when there is none to be
/// read.
bool GrowingFile::takeNext()
{
    struct stat named = {};
    if (stat(QFile::encodeName(m_path).constData(), &named) != 0 || isOpen(named))
        return false;
    watch();
    // Whoever writes the log goes on in the old file until it has opened the new one.
    if (!S_ISREG(named.st_mode) || (m_file && named.st_size == 0))
        return false;
    readNew();
    if (!openNamed()) {
        sayWaiting(m_error);
        return false;
    }
    Q_EMIT begunAnew();
    return true;
}

bool GrowingFile::isOpen(const struct stat &named) const
{
    struct stat open = {};
    return m_file && fstat(m_file->handle(), &open) == 0 && open.st_dev == named.st_dev
        && open.st_ino == named.st_ino;
}

void GrowingFile::readNew()
{
    if (!m_file)
        return;
    if (m_file->size() < m_file->pos()) {
        m_file->seek(0);
        Q_EMIT begunAnew();
    }
    for (QByteArray block = m_file->read(kBlock); !block.isEmpty(); block = m_file->read(kBlock))
        Q_EMIT read(block);
}

/// Watches the file that has the name now, and its folder, which another one may come into.
void GrowingFile::watch()
{
    const QFileInfo info(m_path);
    if (m_watcher.files().contains(m_path))
        m_watcher.removePath(m_path);
    if (!info.isReadable())
        return;
    m_watcher.addPath(m_path);
    m_watcher.addPath(info.canonicalPath());
}

void GrowingFile::sayWaiting(const QString &reason)
{
    if (!m_isWaiting)
        Q_EMIT waiting(reason);
    m_isWaiting = true;
}

bool GrowingFile::fail(const QString &reason)
{
    m_error = Text::tr("The log '%1' cannot be read: %2").arg(m_path, reason);
    return false;
}
