#include "fuzz/fuzztarget.h"

#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace FuzzTarget {

QByteArray bytes(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size));
}

void require(bool condition, const QString &text)
{
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    std::abort();
}

void settleZone()
{
    qputenv("TZ", "UTC");
    tzset();
}

} // namespace FuzzTarget
