#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QStringList>

class Console;

/// `mirovahrctl status`: what the database, and the gate's status file, tell of the plugin.
ExitStatus runStatus(const QStringList &arguments, Console &console);
