#pragma once

#include "cli/unixsignals.h"

#include <QObject>
#include <QStringList>

class BoundProcess;
class PrivateMariaDb;

/// Runs one command in the environment of a private server and carries SIGINT, SIGTERM and SIGHUP
/// on to it, so that the caller can clean up once the command is gone. One instance per program.
///
/// The command finds the server in MIROVAHR_DB_SOCKET, MIROVAHR_DB_NAME, MIROVAHR_DB_USER and
/// MIROVAHR_DB_PASSWORD_FILE, and no other server in its environment.
class CommandRun : public QObject {
    Q_OBJECT
public:
    /// Catches the signals from here on.
    CommandRun();

    /// True once one of the signals has arrived.
    bool interrupted() const;
    /// What a shell would report for a program that the signal ended.
    int interruptedStatus() const;

    /// Runs the command to its end. Returns its exit status, 128 + N when signal N ended it, 127
    /// when it could not be started.
    int run(const QStringList &command, const PrivateMariaDb &server);

private:
    void passSignalOn();

    UnixSignals m_signals;
    BoundProcess *m_process = nullptr;
};
