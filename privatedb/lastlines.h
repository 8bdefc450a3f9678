#pragma once

#include <QString>
#include <QStringList>

/// The last 20 lines of a MariaDB program's output, to explain a failure.
inline QString lastLines(const QString &text)
{
    constexpr int count = 20;
    const QStringList lines = text.trimmed().split(QLatin1Char('\n'));
    return lines.mid(qMax(0, lines.size() - count)).join(QLatin1Char('\n'));
}
