#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QStringList>

class Console;

/// The subcommand `preview`: what a synchronisation would change, by doing it on a copy.
ExitStatus runPreview(const QStringList &arguments, Console &console);
