#pragma once

#include <QString>

/// A positive number of the environment; \a fallback when there is none.
inline uint environmentNumber(const char *name, uint fallback)
{
    bool ok = false;
    const uint number = qEnvironmentVariable(name).toUInt(&ok);
    return ok && number != 0 ? number : fallback;
}
