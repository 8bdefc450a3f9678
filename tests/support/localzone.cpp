#include "tests/support/localzone.h"

#include <QtGlobal>

#include <ctime>

namespace {

void setLocalZone(const QByteArray &zone)
{
    if (zone.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", zone);
    tzset();
}

} // namespace

LocalZone::LocalZone(const QByteArray &zone)
    : m_outer(qgetenv("TZ"))
{
    setLocalZone(zone);
}

LocalZone::~LocalZone()
{
    setLocalZone(m_outer);
}
