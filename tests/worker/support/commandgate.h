#pragma once

#include <QString>
#include <QTemporaryDir>

/// An export command that blocks the synchronisation that runs it until the test opens the gate.
/// For one run of the command.
class CommandGate {
public:
    CommandGate();
    ~CommandGate(); ///< Opens the gate.
    CommandGate(const CommandGate &) = delete;
    CommandGate &operator=(const CommandGate &) = delete;

    QString command() const; ///< The command line.
    void waitForCommand(); ///< Waits until the command runs. It then blocks until open().
    void open();

private:
    QTemporaryDir m_dir;
    QByteArray m_path;
    int m_handle = -1; ///< the gate's end of the pipe
    int m_watch = -1; ///< reports that the command opens the other end
};
