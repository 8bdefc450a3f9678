#pragma once

#include <QStringList>

class QSqlDatabase;

/// A process of its own that runs a ServingWorker until it is killed, and prints its log: this
/// program, started anew.
namespace ServingProcess {

/// What this program is to be started with. \a passwordFile holds the password of \a database.
QStringList arguments(const QSqlDatabase &database, const QString &passwordFile,
                      const QString &exportPath);

/// True when this program was started with arguments().
bool isMeant(int argc, char **argv);
int run(int argc, char **argv);

} // namespace ServingProcess
