#pragma once

#include <QString>
#include <QTemporaryDir>

#include <sys/types.h>

/// A private folder that is removed when this program ends, even when it is killed, unless it is to
/// be kept.
///
/// A small guard process waits until this program and every child that works in the folder have
/// ended, and then removes it. It notices their end by a pipe that all of them hold open.
class GuardedFolder {
public:
    enum class AtTheEnd { Removed, Kept };

    /// Creates the folder. \a name ends in XXXXXX, which is replaced.
    GuardedFolder(const QString &name, AtTheEnd atTheEnd);
    /// Waits until every child that works in the folder has ended.
    ~GuardedFolder();
    GuardedFolder(const GuardedFolder &) = delete;
    GuardedFolder &operator=(const GuardedFolder &) = delete;

    bool isValid() const { return m_error.isEmpty(); }
    /// Why there is no such folder.
    QString errorString() const { return m_error; }
    QString path() const { return m_dir.path(); }

    /// To be called between fork and exec in a child that works in the folder.
    void belongToThisProcess() const;

private:
    void startGuard();

    QTemporaryDir m_dir;
    QString m_error;
    int m_pipe = -1; ///< its end that says that this program lives
    pid_t m_guard = 0;
};
