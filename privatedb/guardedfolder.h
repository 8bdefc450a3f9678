#pragma once

#include <QString>
#include <QTemporaryDir>

#include <sys/types.h>

/// A folder for this user alone that is gone for certain when this program is, also when it was
/// killed, unless it is to be kept.
///
/// A small process of its own waits until this program is gone, and every child that works in the
/// folder, and then removes it. It notices that by a pipe which they all hold open.
class GuardedFolder {
public:
    enum class AtTheEnd { Removed, Kept };

    /// Makes the folder. \a name ends in XXXXXX, which is replaced.
    GuardedFolder(const QString &name, AtTheEnd atTheEnd);
    /// Waits until every child that works in the folder is gone.
    ~GuardedFolder();
    GuardedFolder(const GuardedFolder &) = delete;
    GuardedFolder &operator=(const GuardedFolder &) = delete;

    bool isValid() const { return m_error.isEmpty(); }
    /// Why there is no such folder.
    QString errorString() const { return m_error; }
    QString path() const { return m_dir.path(); }

    /// To be called in a child between fork and exec: the child works in the folder.
    void belongToThisProcess() const;

private:
    void startGuard();

    QTemporaryDir m_dir;
    QString m_error;
    int m_pipe = -1; ///< its end that says that this program lives
    pid_t m_guard = 0;
};
