#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QStringList>

class Console;

/// `mirovahrctl force`: makes the plugin's next tick synchronise everybody, or takes that back.
ExitStatus runForce(const QStringList &arguments, Console &console);
