#pragma once

#include "worker/exportline.h"

/// The parts of a line as texts of their own.
inline QStringList textsOf(const ExportLine::Parts &parts)
{
    QStringList texts;
    for (const QStringRef &part : parts)
        texts += part.toString();
    return texts;
}
