#include "mirovahrctl/gate/gatepublication.h"

#include "cli/systemmessage.h"
#include "cli/text.h"
#include "worker/boundedlinereader.h"

#include <QFileInfo>

namespace {

/// For the attendance server and, by the folder's group, for whoever delivers the export; not for
/// everybody, since it holds personal data.
constexpr mode_t kPermissions = 0640;

/// The longest line that the plugin reads, and its line feed.
constexpr int kLineCapacity = BoundedLineReader::kLongestLine + 1;

} // namespace

GatePublication::GatePublication(const QString &path, const std::optional<Backslash> &texts)
    : m_path(path)
    , m_name(QFileInfo(path).fileName())
    , m_texts{texts}
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
    if (!m_file.create())
        return fail(m_file.errorString());
    return write(source) && (m_file.finish() || fail(m_file.errorString()));
}

bool GatePublication::publish()
{
    return m_file.putInPlace() || fail(m_file.errorString());
}

bool GatePublication::write(QFile &source)
{
    for (qint64 size = 0; size <= BoundedLineReader::kMostBytes;) {
        // A longer line comes in pieces: the plugin skips it, whatever becomes of its texts.
        const QByteArray line = source.readLine(kLineCapacity);
        if (line.isEmpty())
            return source.error() == QFileDevice::NoError || failReading(source.errorString());
        const QByteArray written = m_texts.atPlugin(line);
        size += written.size();
        // finish() reports why it failed.
        if (m_file.device().write(written) != written.size())
            return true;
    }
    return fail(Text::tr("With its texts written for the plugin the file is longer than 1 "
                         "GiB, and the plugin reads no further"));
}

bool GatePublication::failReading(const QString &reason)
{
    return fail(
        Text::tr("The copy of HR's file cannot be read to its end: %1").arg(systemMessage(reason)));
}

bool GatePublication::fail(const QString &error)
{
    m_error = error;
    return false;
}
