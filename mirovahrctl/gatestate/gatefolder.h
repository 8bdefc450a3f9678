#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

#include <optional>

#include <sys/stat.h>
#include <sys/types.h>

/// A folder in which the gate keeps or publishes files. It is opened once, and files are named in
/// it from then on: whoever moves the folder or puts a link in its place changes nothing.
///
/// Root gives its files to the owner of the folder. That must be root or the owner of the folder
/// above: where others may write, anybody may have made a folder beforehand.
///
/// Functions that return false leave a sentence without its full stop in errorString().
class GateFolder {
public:
    enum class Lock { Taken, Busy, Failed };

    GateFolder() = default;
    ~GateFolder();
    GateFolder(const GateFolder &) = delete;
    GateFolder &operator=(const GateFolder &) = delete;

    /// Opens a folder that is there.
    bool open(const QString &path);

    /// Opens the folder that the other object has opened, wherever its path leads by now.
    bool openAgain(const GateFolder &folder);

    /// Opens the folder of the gate's own files, which must be no link, belong to this user or to
    /// root and not be writable for everybody. Makes it when it is missing.
    bool openPrivate(const QString &path);

    /// Keeps other gates out until this object goes, or the process ends in whatever way.
    Lock lock(const QString &name);

    /// Opens a file for reading. Nothing, with \a missing set, when there is none.
    bool openForReading(const QString &name, QFile &file, bool &missing);

    /// The content of a small file, empty when there is none; nothing when it cannot be read.
    std::optional<QByteArray> contentOf(const QString &name);

    /// The names of everything in the folder, in alphabetical order.
    std::optional<QStringList> names();

    /// What \a from holds gets one more name. False, with \a exists set, when that name is taken.
    bool link(const QString &from, const QString &to, bool &exists);
    /// Puts a file in the place of another, if there is one, at one stroke.
    bool rename(const QString &from, const QString &to);
    bool remove(const QString &name);
    /// Removes what earlier runs, which were killed, left of GateFile's temporary files.
    bool removeLeftovers(const QString &name);
    /// Waits until the names in the folder are on the disk.
    bool sync();

    /// Whether a regular file of this name is there.
    bool hasFile(const QString &name) const;
    QString pathOf(const QString &name) const { return m_path + QLatin1Char('/') + name; }
    QString errorString() const { return m_error; }

private:
    friend class GateFile;

    bool openFolder(int flags, struct stat &status);
    bool takeOwnerOfParent();
    bool isOwnerTrusted();
    bool isLeftover(const QString &entry, const QString &name) const;
    /// Nothing unless this is root.
    bool giveToOwner(int file) const;
    bool fail(const QString &path, const char *whatIsNotPossible);

    QString m_path;
    QString m_error;
    int m_fd = -1;
    int m_lockFd = -1;
    uid_t m_owner = 0;
    gid_t m_group = 0;
};
