#pragma once

#include "yavhost/exitstatus.h"

#include <QString>

/// Prints a sentence of the host itself to standard output.
void printInfo(const QString &sentence);

/// Prints to standard error what the user should know, a sentence without its full stop.
void printWarning(const QString &sentence);

/// Prints to standard error what went wrong, with what is known beyond the status; nothing for
/// success.
void printFailure(ExitStatus status, const QString &detail = QString());
