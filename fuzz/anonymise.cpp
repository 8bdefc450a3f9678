// A whole file, anonymised: the worker drops and takes over the same lines, and the bytes are as
// many.

#include "fuzz/fuzztarget.h"
#include "mirovahrctl/anonymise/otherlines.h"
#include "tests/worker/input/workerreading.h"

#include <QRandomGenerator>

namespace {

QByteArray anonymised(const QByteArray &file)
{
    const QList<QByteArray> lines = file.split('\n');
    QRandomGenerator random(static_cast<quint32>(file.size()));
    OtherLines others(random);
    for (const QByteArray &line : lines)
        others.note(line);
    others.settle();
    QList<QByteArray> other;
    for (const QByteArray &line : lines)
        other += others.of(line);
    return other.join('\n');
}

/// What the worker does with each line, without what is in it.
QStringList workOn(const QByteArray &file)
{
    QStringList steps;
    for (const QString &step : WorkerReading::ofContent(file))
        steps += step.startsWith('W') ? step : step.section('(', 0, 0);
    return steps;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool settled = (FuzzTarget::settleZone(), true);
    Q_UNUSED(settled)
    const QByteArray file = FuzzTarget::bytes(data, size);
    const QByteArray other = anonymised(file);
    FuzzTarget::require(other.size() == file.size() && workOn(other) == workOn(file),
                        "The worker does something else with:\n" + QString::fromUtf8(other));
    return 0;
}
