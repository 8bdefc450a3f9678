#pragma once

#include <QString>

/// Reads a password, the first line of a file. Returns why that fails, a sentence without its full
/// stop; empty when it does not.
QString readPasswordFile(const QString &path, QString &password);
