#include "bench/heap.h"

#include <QByteArray>
#include <QFile>

#include <malloc.h>

namespace {

long long statusValue(const QByteArray &key)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArrayList lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(key + ':'))
            return line.mid(key.size() + 1).simplified().split(' ').first().toLongLong() * 1024;
    }
    return 0;
}

} // namespace

Heap Heap::now()
{
    const struct mallinfo2 info = mallinfo2();
    return {static_cast<long long>(info.uordblks + info.hblkhd), statusValue("VmRSS"),
            statusValue("VmHWM")};
}

void Heap::forgetPeak()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}
