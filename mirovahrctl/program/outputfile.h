#pragma once

#include <QSaveFile>

/// A file that the command line names for output: a page, statements, a log, lines for HR. It holds
/// personal data, so only its owner and the group may read it: a new file has mode 0640, or less by
/// the umask; an overwritten file keeps those bits of its mode that are within 0640.
class OutputFile : public QSaveFile {
    Q_OBJECT
public:
    using QSaveFile::QSaveFile;

    bool open(OpenMode mode) override;
    /// Also called by QSaveFile, which copies the mode of the file that is overwritten.
    bool setPermissions(Permissions permissions) override;
};
