#pragma once

#include <QProcess>

/// A child process that never outlives the program that started it: the kernel signals it when its
/// parent ends, even when the parent is killed and cannot clean up.
///
/// It is bound to the thread that calls start(): that thread must live as long as the child should.
class BoundProcess : public QProcess {
    Q_OBJECT
public:
    /// The child's process group: the program's (Ctrl-C in a terminal reaches both), or its own, so
    /// that only the program decides when the child ends.
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
