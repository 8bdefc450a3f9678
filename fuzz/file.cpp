// A whole file through the worker: it parses and takes over what the plain reading does.

#include "fuzz/fuzztarget.h"
#include "tests/worker/input/workerreading.h"

namespace {

/// A line that is too long has more bytes than a fuzzer makes up: here 0xFE and a byte stand for
/// very many of that byte, some fewer than the longest line has.
QByteArray unfolded(const QByteArray &bytes)
{
    constexpr int kMany = 65530;
    constexpr int kMostTimes = 3;
    QByteArray file;
    int times = 0;
    for (int i = 0; i < bytes.size(); ++i) {
        if (bytes.at(i) == '\xFE' && i + 1 < bytes.size() && times < kMostTimes) {
            file += QByteArray(kMany, bytes.at(++i));
            ++times;
        } else {
            file += bytes.at(i);
        }
    }
    return file;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool settled = (FuzzTarget::settleZone(), true);
    Q_UNUSED(settled)
    const QByteArray file = unfolded(FuzzTarget::bytes(data, size));
    const QStringList read = WorkerReading::ofContent(file);
    const QStringList demanded = WorkerReading::demanded(file);
    FuzzTarget::require(read == demanded,
                        "The worker read:\n" + read.join('\n') + "\ninstead of:\n"
                            + demanded.join('\n'));
    return 0;
}
