#include "mirovahrctl/program/terminal.h"

#include <QByteArray>

#include <algorithm>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

/// Narrower terminals wrap the lines themselves.
constexpr int kNarrowest = 40;

bool wantsColours()
{
    const QByteArray kind = qgetenv("TERM");
    return qEnvironmentVariableIsEmpty("NO_COLOR") && !kind.isEmpty() && kind != "dumb";
}

} // namespace

Terminal Terminal::ofProcess()
{
    Terminal terminal;
    winsize size = {};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col != 0)
        terminal.columns = std::max(kNarrowest, int(size.ws_col));
    terminal.isColoured = isatty(STDOUT_FILENO) != 0 && wantsColours();
    terminal.showsProgress = isatty(STDERR_FILENO) != 0;
    return terminal;
}
