#include "mirovahrctl/gate/gatepublication.h"

#include "mirovahrctl/gate/gatesource.h"

#include <QFileInfo>

namespace {

/// For the attendance server and, by the folder's group, for whoever delivers the export; not for
/// everybody, since it holds personal data.
constexpr mode_t kPermissions = 0640;

} // namespace

GatePublication::GatePublication(const QString &path)
    : m_path(path)
    , m_name(QFileInfo(path).fileName())
    , m_file(m_folder, m_name, kPermissions)
{
}

bool GatePublication::open()
{
    return (m_folder.open(QFileInfo(m_path).path()) && m_folder.removeLeftovers(m_name))
        || fail(m_folder.errorString());
}

bool GatePublication::prepare(GateFolder &folder, const QString &copyName)
{
    QFile source;
    bool missing = false;
    if (!folder.openForReading(copyName, source, missing))
        return fail(folder.errorString());
    if (!m_file.create() || !copy(source) || !m_file.finish())
        return fail(source.error() == QFileDevice::NoError ? m_file.errorString()
                                                           : source.errorString());
    return true;
}

bool GatePublication::publish()
{
    return m_file.putInPlace() || fail(m_file.errorString());
}

bool GatePublication::copy(QFile &source)
{
    for (;;) {
        const QByteArray piece = source.read(kPieceSize);
        if (piece.isEmpty())
            return source.error() == QFileDevice::NoError;
        // finish() reports why it failed.
        if (m_file.device().write(piece) != piece.size())
            return true;
    }
}

bool GatePublication::fail(const QString &error)
{
    m_error = error;
    return false;
}
