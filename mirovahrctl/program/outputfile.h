#pragma once

#include <QSaveFile>

/// A file that the command line asks for: a page, statements, a log, lines for HR. It is about
/// people, so only its owner and the group may read it: a new file has mode 0640, or less by the
/// umask; a file that is overwritten keeps what it has of that mode.
class OutputFile : public QSaveFile {
    Q_OBJECT
public:
    using QSaveFile::QSaveFile;

    bool open(OpenMode mode) override;
    /// Also called by QSaveFile, which takes over the mode of the file that is overwritten.
    bool setPermissions(Permissions permissions) override;
};
