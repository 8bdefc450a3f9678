#pragma once

#include <QFile>
#include <QString>

#include <sys/types.h>

class GateFolder;

/// A file that takes its place in a folder only when it is whole and on the disk. Until then it has
/// a name of its own there, which nobody can foresee; without putInPlace() it goes with the object.
/// A run that is killed leaves it: see GateFolder::removeLeftovers().
///
/// Functions that return false leave a sentence without its full stop in errorString().
class GateFile {
public:
    GateFile(GateFolder &folder, const QString &name, mode_t permissions);
    ~GateFile();
    GateFile(const GateFile &) = delete;
    GateFile &operator=(const GateFile &) = delete;

    bool create();
    /// Where the content is written to, between create() and finish().
    QIODevice &device() { return m_file; }
    /// Waits until the content is on the disk, and closes the file.
    bool finish();
    /// Puts the file in the place of the old one, and waits until that is on the disk.
    bool putInPlace();
    bool isInPlace() const { return m_inPlace; }
    /// Removes the file instead.
    bool discard();

    /// What the file is called until it is in its place.
    QString temporaryName() const { return m_temporaryName; }
    QString errorString() const { return m_error; }

    /// Whether \a entry is what a file \a name is called before it is in its place.
    static bool isTemporaryName(const QString &entry, const QString &name);

private:
    /// Keeps in mind that writing has failed; a QFile forgets it when the next writing succeeds.
    class Device : public QFile {
    public:
        bool hasFailed() const { return m_failed; }

    protected:
        qint64 writeData(const char *data, qint64 length) override;

    private:
        bool m_failed = false;
    };

    bool writeOut();
    bool fail(const QString &reason);

    GateFolder &m_folder;
    const QString m_name;
    const QString m_temporaryName;
    const mode_t m_permissions;
    Device m_file;
    QString m_error;
    bool m_hasTemporary = false;
    bool m_inPlace = false;
};
