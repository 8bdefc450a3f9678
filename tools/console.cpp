#include "tools/console.h"

#include <QIODevice>

Console::Console(QIODevice &out, QIODevice &err, bool interactive)
    : m_out(out)
    , m_err(err)
    , m_interactive(interactive)
{
}

void Console::print(const QString &text)
{
    m_out.write((text + QLatin1Char('\n')).toUtf8());
}

ExitStatus Console::fail(ExitStatus status, const QString &sentence)
{
    QString line = QStringLiteral("mirovahrctl: ") + sentence;
    if (!line.endsWith(QLatin1Char('.')))
        line += QLatin1Char('.');
    m_err.write((line + QLatin1Char('\n')).toUtf8());
    return status;
}
