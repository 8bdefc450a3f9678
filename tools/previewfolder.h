#pragma once

#include <QString>
#include <QTemporaryDir>

#include <sys/types.h>

/// A private folder that is gone for certain when this program is, also when it was killed.
///
/// A small process of its own waits until this program and every child that it has started since
/// are gone, and then removes the folder. It notices that by a pipe which they all hold open.
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

private:
    void startGuard();

    QTemporaryDir m_dir;
    QString m_error;
    int m_pipe = -1; ///< its end that says that this program lives
    pid_t m_guard = 0;
};
