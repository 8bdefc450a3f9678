#include "tests/worker/input/workerreading.h"

#include "tests/support/logcapture.h"
#include "tests/worker/input/plainreading.h"
#include "worker/mhrworker.h"

#include <sys/mman.h>
#include <unistd.h>

namespace WorkerReading {

namespace {

/// A file without a name in any folder.
class MemoryFile {
public:
    explicit MemoryFile(const QByteArray &content)
        : m_descriptor(::memfd_create("export", MFD_CLOEXEC))
    {
        if (m_descriptor < 0
            || ::write(m_descriptor, content.constData(), size_t(content.size()))
                != ssize_t(content.size()))
            qFatal("A file of %d bytes could not be written", content.size());
    }
    ~MemoryFile() { ::close(m_descriptor); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    QString path() const { return QString("/proc/self/fd/%1").arg(m_descriptor); }

private:
    int m_descriptor;
};

QString parsed(const QString &line)
{
    // As the log does it, which decodes the text once more.
    return "D MHRWorker::parseLine('" + QString::fromUtf8(line.toUtf8()) + "')";
}

QString skipped(int parts)
{
    return QString("W MHRWorker::parseLine() - parts count (%1) <> fields count(18) - line "
                   "skipped!")
        .arg(parts);
}

QString taken(const QString &record)
{
    return "D MHRWorker::doSyncRecord(" + QString::fromUtf8(record.toUtf8()) + ")";
}

} // namespace

QStringList ofContent(const QByteArray &content)
{
    return ofFile(MemoryFile(content).path());
}

QStringList ofFile(const QString &path)
{
    const LogCapture log;
    MHRWorker worker;
    worker.init();
    worker.setDebugLevel(3);
    worker.setImportFile(path);
    worker.loadAndParseData();
    worker.doSync();
    QStringList lines;
    for (const QString &line : log.lines()) {
        if (line.startsWith("D MHRWorker::parseLine('")
            || line.startsWith("W MHRWorker::parseLine() - ")
            || line.startsWith("D MHRWorker::doSyncRecord("))
            lines += line;
    }
    return lines;
}

QStringList demanded(const QByteArray &content)
{
    const QStringList lines = PlainReading::lines(content);
    QStringList log;
    for (const QString &line : lines) {
        log += parsed(line);
        const int parts = PlainReading::parts(line).size();
        if (parts != 18)
            log += skipped(parts);
    }
    for (const MirovaRonRecord &record : PlainReading::records(lines))
        log += taken(record.getString(false));
    return log;
}

} // namespace WorkerReading
