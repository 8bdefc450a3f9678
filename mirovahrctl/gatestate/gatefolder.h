#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

#include <optional>

#include <sys/stat.h>
#include <sys/types.h>

/// A folder in which the gate keeps or publishes files. It is opened once, and files are opened
/// relative to it from then on: moving the folder, or replacing it with a link, changes nothing.
///
/// Root gives its files to the owner of the folder. That must be root or the owner of the parent
/// folder: where others may write, anybody may have created a folder beforehand.
///
/// Functions that return false leave a sentence without its full stop in errorString().
class GateFolder {
public:
    enum class Lock { Taken, Busy, Failed };

    GateFolder() = default;
    ~GateFolder();
    GateFolder(const GateFolder &) = delete;
    GateFolder &operator=(const GateFolder &) = delete;

    /// Opens an existing folder.
    bool open(const QString &path);

    /// Opens the same folder as the other object, even if its path now leads elsewhere.
    bool openAgain(const GateFolder &folder);

    /// Opens the folder of the gate's own files. It must not be a link, must belong to this user or
    /// to root, and must not be writable for everybody. Creates it when it is missing.
    bool openPrivate(const QString &path);

    /// Keeps other gates out until this object is destroyed or the process ends.
    Lock lock(const QString &name);

    /// Opens a file for reading. Nothing, with \a missing set, when there is none.
    bool openForReading(const QString &name, QFile &file, bool &missing);

    /// The content of a small file, empty when there is none; nothing when it cannot be read.
    std::optional<QByteArray> contentOf(const QString &name);

    /// The names of everything in the folder, in alphabetical order.
    std::optional<QStringList> names();

    /// Gives the file \a from one more name. False, with \a exists set, when that name is taken.
    bool link(const QString &from, const QString &to, bool &exists);
    /// Renames a file atomically, over an existing one if there is one.
    bool rename(const QString &from, const QString &to);
    /// Removes a file.
    bool remove(const QString &name);
    /// Removes the temporary files of \a name that killed runs have left: see GateFile.
    bool removeLeftovers(const QString &name);
    /// Waits until the names in the folder are on the disk.
    bool sync();

    /// Whether a regular file of this name exists.
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
    /// \a text: marked for Text::tr(), with places for the path and for why.
    bool fail(const QString &path, const char *text);

    QString m_path;
    QString m_error;
    int m_fd = -1;
    int m_lockFd = -1;
    uid_t m_owner = 0;
    gid_t m_group = 0;
};
