#pragma once

#include <QProcess>

/// A child process that never outlives the program that started it: the kernel signals it when its
/// parent is gone, also when the parent was killed and could not clean up.
///
/// The bond is to the thread that calls start(): that thread must live as long as the child shall.
class BoundProcess : public QProcess {
    Q_OBJECT
public:
    /// Where the child stands in a terminal: with the program (Ctrl-C reaches both), or apart, so
    /// that the program alone decides when the child ends.
    enum class Group { WithParent, OfItsOwn };

    /// \a deathSignal is what the child receives when its parent dies.
    BoundProcess(int deathSignal, Group group, QObject *parent = nullptr);

protected:
    void setupChildProcess() override;

private:
    const int m_deathSignal;
    const Group m_group;
    const qint64 m_parentPid;
};
