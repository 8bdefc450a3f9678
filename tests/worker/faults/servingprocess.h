#pragma once

#include <QStringList>

class QSqlDatabase;

/// A separate process that runs a ServingWorker until it is killed, and prints its log: another
/// instance of this program.
namespace ServingProcess {

/// The arguments with which to start this program. \a passwordFile holds the password of \a
/// database.
QStringList arguments(const QSqlDatabase &database, const QString &passwordFile,
                      const QString &exportPath);

/// True when this program was started with arguments().
bool isMeant(int argc, char **argv);
int run(int argc, char **argv);

} // namespace ServingProcess
