#pragma once

#include <QString>

/// Why the system refuses to open, read or write a file, as QFile::errorString() and
/// qt_error_string() say it, in the language of the program. Qt writes some of these messages in
/// English always, and the machine may lack its own translations of the others. An unusual one is
/// returned as it is.
QString systemMessage(const QString &message);
