#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QStringList>

class Console;

/// `mirovahrctl check-config`: what the INI file puts in force, and what is wrong with it.
ExitStatus runCheckConfig(const QStringList &arguments, Console &console);
