#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QStringList>

class Console;

/// `mirovahrctl check-file`: what the plugin would drop or misread of an HR export.
ExitStatus runCheckFile(const QStringList &arguments, Console &console);
