#pragma once

#include <QString>

/// Reads a password, the first line of a file. Returns why that fails, a sentence without its full
/// stop; empty on success.
QString readPasswordFile(const QString &path, QString &password);
