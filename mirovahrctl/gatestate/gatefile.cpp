#include "mirovahrctl/gatestate/gatefile.h"

#include "cli/systemmessage.h"
#include "cli/text.h"
#include "mirovahrctl/gatestate/gatefolder.h"

#include <QRandomGenerator>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QLatin1String kMark(".gate-");
constexpr int kRandomDigits = 16;
constexpr mode_t kWhileWriting = 0600;

QString beginning(const QString &name)
{
    return QLatin1Char('.') + name + kMark;
}

QString newTemporaryName(const QString &name)
{
    return beginning(name)
        + QStringLiteral("%1").arg(QRandomGenerator::system()->generate64(), kRandomDigits, 16,
                                   QLatin1Char('0'));
}

} // namespace

qint64 GateFile::Device::writeData(const char *data, qint64 length)
{
    const qint64 written = m_failed ? -1 : QFile::writeData(data, length);
    m_failed = written != length;
    return written;
}

GateFile::GateFile(GateFolder &folder, const QString &name, mode_t permissions)
    : m_folder(folder)
    , m_name(name)
    , m_temporaryName(newTemporaryName(name))
    , m_permissions(permissions)
{
}

GateFile::~GateFile()
{
    m_file.close();
    if (m_hasTemporary)
        m_folder.remove(m_temporaryName);
}

bool GateFile::create()
{
    // Neither follows a link nor opens an existing file.
    const int fd = ::openat(m_folder.m_fd, QFile::encodeName(m_temporaryName).constData(),
                            O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kWhileWriting);
    if (fd < 0)
        return fail(qt_error_string(errno));
    m_hasTemporary = true;
    return m_file.open(fd, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)
        || fail(m_file.errorString());
}

bool GateFile::finish()
{
    const bool written = writeOut();
    m_file.close();
    if (written && m_file.error() != QFileDevice::NoError)
        return fail(m_file.errorString());
    return written;
}

bool GateFile::writeOut()
{
    if (m_file.hasFailed() || !m_file.flush())
        return fail(m_file.errorString());
    const int fd = m_file.handle();
    if (!m_folder.giveToOwner(fd) || ::fchmod(fd, m_permissions) != 0 || ::fsync(fd) != 0)
        return fail(qt_error_string(errno));
    return true;
}

bool GateFile::putInPlace()
{
    m_inPlace = m_folder.rename(m_temporaryName, m_name);
    m_hasTemporary = !m_inPlace;
    if (m_inPlace && m_folder.sync())
        return true;
    m_error = m_folder.errorString();
    return false;
}

bool GateFile::discard()
{
    m_file.close();
    if (!m_hasTemporary)
        return true;
    m_hasTemporary = false;
    if (m_folder.remove(m_temporaryName))
        return true;
    m_error = m_folder.errorString();
    return false;
}

bool GateFile::isTemporaryName(const QString &entry, const QString &name)
{
    const QString first = beginning(name);
    return entry.startsWith(first) && entry.size() == first.size() + kRandomDigits;
}

bool GateFile::fail(const QString &reason)
{
    m_error =
        Text::tr("'%1' cannot be written: %2").arg(m_folder.pathOf(m_name), systemMessage(reason));
    return false;
}
