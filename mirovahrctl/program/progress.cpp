#include "mirovahrctl/program/progress.h"

#include "mirovahrctl/program/console.h"

#include <QIODevice>

namespace {

constexpr qint64 kMillisecondsBetweenShows = 200;

// Back to the first column, and the rest of the line cleared.
constexpr char kLineStart[] = "\r\x1b[K";

} // namespace

Progress::Progress(Console &console, const QString &what)
    : m_console(console)
    , m_what(what)
{
}

Progress::~Progress()
{
    if (m_shown)
        m_console.err().write(kLineStart);
}

void Progress::update(qint64 done, qint64 total)
{
    if (!m_console.terminal().showsProgress)
        return;
    if (!m_sinceShown.isValid() || m_sinceShown.elapsed() >= kMillisecondsBetweenShows)
        show(done, total);
}

void Progress::show(qint64 done, qint64 total)
{
    const qint64 percent = total > 0 ? qMin<qint64>(100, done * 100 / total) : 0;
    m_console.err().write(kLineStart);
    m_console.err().write(QStringLiteral("%1: %2 %").arg(m_what).arg(percent).toUtf8());
    m_sinceShown.start();
    m_shown = true;
}
