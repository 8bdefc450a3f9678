#pragma once

#include <QString>

/// Reads a password, the first line of a file. Returns why that fails, a sentence without its full
/// stop; empty on success. \a warning is such a sentence when every user of the machine can read
/// the file.
QString readPasswordFile(const QString &path, QString &password, QString &warning);

/// Whether every user of the machine can read this regular file.
bool isReadableForAll(const QString &path);
