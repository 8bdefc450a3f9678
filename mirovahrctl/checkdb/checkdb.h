#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QStringList>

class Console;

/// The subcommand `check-db`: whether the attendance database is what the plugin relies on.
ExitStatus runCheckDb(const QStringList &arguments, Console &console);
