#pragma once

#include <QString>
#include <QStringList>

/// The statements of a file of the reference database, as the client `mariadb` would send them: to
/// start that program costs more than most of its statements. Understands what those files contain:
/// DELIMITER, and comments from "--" to the end of the line. Ends the test program when the file
/// cannot be read.
QStringList statementsOf(const QString &file);
