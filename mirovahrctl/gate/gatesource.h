#pragma once

#include <QDateTime>
#include <QFile>
#include <QString>

#include <sys/stat.h>

class QIODevice;

/// How many bytes of a file the gate reads at a time.
constexpr int kPieceSize = 64 * 1024;

/// HR's file, which may be written or replaced at any moment. It is copied once, and only the copy
/// is examined.
class GateSource {
public:
    enum class Outcome { Done, Missing, Failed };

    explicit GateSource(const QString &path);

    /// Opens the file. Missing when there is no such regular file.
    Outcome open();
    /// Whether the plugin would not read the file to its end; see BoundedLineReader.
    bool isTooLong() const;
    /// Copies the file. False when reading or writing fails; hasReadError() says which.
    bool copyTo(QIODevice &target);
    /// Whether the file was changed or replaced since it was opened.
    bool hasChanged() const;

    /// When the file was last changed, as of open().
    QDateTime modified() const;
    /// Seconds from its last change to now; negative when that is in the future.
    qint64 age() const;

    /// Why opening or reading failed, a sentence without its full stop.
    QString errorString() const { return m_error; }
    /// Whether opening or reading failed.
    bool hasReadError() const { return !m_error.isEmpty(); }

private:
    /// \a text: marked for Text::tr(), with places for the path and the reason.
    bool fail(const char *text, const QString &reason);

    const QString m_path;
    QFile m_file;
    QString m_error;
    struct stat m_opened = {};
    qint64 m_copied = 0;
};
