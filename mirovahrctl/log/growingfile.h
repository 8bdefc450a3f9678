#pragma once

#include <QFile>
#include <QFileSystemWatcher>
#include <QObject>

#include <memory>

struct stat;

/// A file that is read while others write it: hands on what is in it and then what is appended.
///
/// It goes by the name. When the file is renamed or removed, it is read for as long as it is
/// written, and then the one that has taken its name. It may also be emptied and written anew, or
/// not be there yet.
class GrowingFile : public QObject {
    Q_OBJECT

public:
    explicit GrowingFile(const QString &path);

    /// Opens the file, or waits for one of this name. False when neither is possible;
    /// errorString() then says why.
    bool open();
    QString errorString() const { return m_error; }

    /// Leaves out what stands before the last \a count lines with this text; nothing when there are
    /// fewer. To be called after open().
    void skipToLast(const QByteArray &text, int count);

    /// Hands on what is there now. From then on the event loop does so whenever there is more.
    void readOn();

Q_SIGNALS:
    void read(const QByteArray &block);
    /// What comes next does not go on where the last block ended.
    void begunAnew();
    /// There is nothing to be read of this name for the time being; a sentence that says why.
    void waiting(const QString &reason);

private:
    bool openNamed();
    bool takeNext();
    bool isOpen(const struct stat &named) const;
    void readNew();
    void watch();
    void sayWaiting(const QString &reason);
    bool fail(const QString &reason);

    const QString m_path;
    QFileSystemWatcher m_watcher;
    std::unique_ptr<QFile> m_file; ///< null while there is none
    QString m_error;
    bool m_isWaiting = false; ///< and has said so
};
