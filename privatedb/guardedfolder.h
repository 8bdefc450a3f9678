#pragma once

#include <QString>
#include <QTemporaryDir>

#include <sys/types.h>

/// A private folder that is gone for certain when this program is, also when it was killed.
///
/// A small process of its own waits until this program is gone, and every child that works in the
/// folder, and then removes it. It notices that by a pipe which they all hold open.
class PreviewFolder {
public:
    /// In the system's temporary folder.
    PreviewFolder();
    ~PreviewFolder();
    PreviewFolder(const PreviewFolder &) = delete;
    PreviewFolder &operator=(const PreviewFolder &) = delete;

    bool isValid() const { return m_guard > 0; }
    /// Why there is no such folder.
    QString errorString() const { return m_error; }
    QString path() const { return m_dir.path(); }

    /// Whether children that are started now belong to those who work in the folder. They must be
    /// gone before this object is.
    void setChildrenBelong(bool on);

private:
    void startGuard();

    QTemporaryDir m_dir;
    QString m_error;
    int m_pipe = -1; ///< its end that says that this program lives
    pid_t m_guard = 0;
};
