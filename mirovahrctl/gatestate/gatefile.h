#pragma once

#include <QFile>
#include <QString>

#include <sys/types.h>

class GateFolder;

/// A file that appears under its name only when it is complete and on the disk. Until then it has
/// an unpredictable temporary name in the same folder; without putInPlace() the destructor removes
/// it. A run that is killed leaves it behind: see GateFolder::removeLeftovers().
///
/// Functions that return false leave a sentence without its full stop in errorString().
class GateFile {
public:
    GateFile(GateFolder &folder, const QString &name, mode_t permissions);
    ~GateFile();
    GateFile(const GateFile &) = delete;
    GateFile &operator=(const GateFile &) = delete;

    /// Creates the temporary file.
    bool create();
    /// Takes the content, between create() and finish().
    QIODevice &device() { return m_file; }
    /// Waits until the content is on the disk, and closes the file.
    bool finish();
    /// Replaces the old file, and waits until that is on the disk.
    bool putInPlace();
    /// Whether the file has replaced the old one, even if it is not known to be on the disk.
    bool isInPlace() const { return m_inPlace; }
    /// Removes the file instead.
    bool discard();

    /// The file's name until putInPlace().
    QString temporaryName() const { return m_temporaryName; }
    QString errorString() const { return m_error; }

    /// Whether \a entry is a temporary name of a file \a name.
    static bool isTemporaryName(const QString &entry, const QString &name);

private:
    /// Remembers that a write has failed; QFile forgets it when the next one succeeds.
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
