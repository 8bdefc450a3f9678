#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QStringList>

class Console;

/// `mirovahrctl explain`: why a person did not arrive, or arrived so.
ExitStatus runExplain(const QStringList &arguments, Console &console);
