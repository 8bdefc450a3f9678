#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QStringList>

class Console;

/// `mirovahrctl gate`: lets HR's file through to the plugin, or holds it back.
ExitStatus runGate(const QStringList &arguments, Console &console);
