#include "mirovahrctl/pluginside/logsource.h"

#include "cli/systemmessage.h"
#include "cli/text.h"

#include <QFile>
#include <QProcess>

#include <utility>

#include <unistd.h>

namespace {

constexpr int kBlock = 256 * 1024;

constexpr int kLongestMagic = 6;

/// What a compressed file begins with, and the program that unpacks it.
constexpr struct {
    const char *magic;
    const char *program;
} kCompressions[] = {
    {"\x1f\x8b", "zcat"},
    {"\xfd\x37zXZ", "xzcat"},
    {"\x28\xb5\x2f\xfd", "zstdcat"},
};

/// The next bytes, at most a block; empty at the end of the log.
QByteArray nextBlock(QIODevice &device)
{
    QByteArray block = device.read(kBlock);
    auto *const process = qobject_cast<QProcess *>(&device);
    while (process != nullptr && block.isEmpty() && process->waitForReadyRead(-1))
        block = device.read(kBlock);
    return block;
}

/// Ends the program that still unpacks: a QProcess that goes away before it complains on standard
/// error.
void abandon(QIODevice &device)
{
    if (auto *const process = qobject_cast<QProcess *>(&device)) {
        process->kill();
        process->waitForFinished(-1);
    }
}

} // namespace

QString LogSource::unpacker(const QByteArray &beginning)
{
    for (const auto &compression : kCompressions) {
        if (beginning.startsWith(compression.magic))
            return QString::fromLatin1(compression.program);
    }
    return {};
}

LogSource::LogSource(QString path)
    : m_path(std::move(path))
{
}

bool LogSource::forEachLine(const LineCutter::Visitor &visit)
{
    const std::unique_ptr<QIODevice> device = open();
    if (!device)
        return false;
    LineCutter lines(visit);
    for (QByteArray block = nextBlock(*device); !block.isEmpty(); block = nextBlock(*device)) {
        if (!lines.take({block.constData(), size_t(block.size())})) {
            abandon(*device);
            return true;
        }
    }
    lines.finish();
    return finish(*device);
}

std::unique_ptr<QIODevice> LogSource::open()
{
    auto file = std::make_unique<QFile>(m_path);
    const bool isOpen = isStandardInput() ? file->open(STDIN_FILENO, QIODevice::ReadOnly)
                                          : file->open(QIODevice::ReadOnly);
    if (!isOpen) {
        fail(systemMessage(file->errorString()));
        return nullptr;
    }
    const QString program = unpacker(file->peek(kLongestMagic));
    if (program.isEmpty())
        return file;
    if (isStandardInput()) {
        fail(Text::tr("it is compressed; unpack it with %1").arg(program));
        return nullptr;
    }
    return decompress(program);
}

std::unique_ptr<QIODevice> LogSource::decompress(const QString &program)
{
    auto process = std::make_unique<QProcess>();
    process->setStandardInputFile(m_path);
    process->start(program, QStringList(), QIODevice::ReadOnly);
    if (!process->waitForStarted(-1)) {
        fail(Text::tr("%1, which unpacks it, cannot be started: %2")
                 .arg(program, process->errorString()));
        return nullptr;
    }
    return process;
}

bool LogSource::finish(QIODevice &device)
{
    if (auto *const process = qobject_cast<QProcess *>(&device)) {
        process->waitForFinished(-1);
        if (process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0)
            return true;
        return fail(Text::tr("it cannot be unpacked: %1")
                        .arg(QString::fromLocal8Bit(process->readAllStandardError()).trimmed()));
    }
    const auto &file = static_cast<const QFile &>(device);
    return file.error() == QFileDevice::NoError || fail(systemMessage(file.errorString()));
}

bool LogSource::fail(const QString &reason)
{
    m_error = isStandardInput() ? Text::tr("Standard input cannot be read: %1").arg(reason)
                                : Text::tr("The log '%1' cannot be read: %2").arg(m_path, reason);
    return false;
}
