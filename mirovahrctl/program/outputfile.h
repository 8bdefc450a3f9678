#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QSaveFile>
#include <QStringList>

#include <optional>

class Console;

/// A file that the command line names for output: a page, statements, a log, lines for HR. It holds
/// personal data, so only its owner and the group may read it: a new file has mode 0640, or less by
/// the umask; an overwritten file keeps those bits of its mode that are within 0640.
class OutputFile : public QSaveFile {
    Q_OBJECT
public:
    using QSaveFile::QSaveFile;

    /// Opens the file, unless it has no name because the command line does not request it. Has a
    /// status when the subcommand must end with it: that failed, and the error was printed.
    std::optional<ExitStatus> begin(Console &console);
    /// Puts the file in place, if begin() opened it. Has a status likewise.
    std::optional<ExitStatus> finish(Console &console);

    bool open(OpenMode mode) override;
    /// Also called by QSaveFile, which copies the mode of the file that is overwritten.
    bool setPermissions(Permissions permissions) override;

private:
    ExitStatus fail(Console &console) const;
};

/// Whether two paths name the same file, which need not exist.
bool isSameFile(const QString &a, const QString &b);

/// Has a status when the subcommand must end with it: one of these outputs, of which some may be
/// empty, would overwrite the export or another one, and the error was printed.
std::optional<ExitStatus> refuseOverwriting(const QString &exportFile, const QStringList &outputs,
                                            Console &console);
