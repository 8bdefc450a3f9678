#pragma once

#include <QElapsedTimer>
#include <QString>

class Console;

/// Shows the progress of long work in one line on standard error, and clears the line at the end.
/// Shows nothing when standard error is not a terminal.
class Progress {
public:
    /// \a what names the work, such as "Reading the export".
    Progress(Console &console, const QString &what);
    ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    /// \a done of \a total, in any unit. Cheap enough to be called for every line of a file.
    void update(qint64 done, qint64 total);

private:
    void show(qint64 done, qint64 total);

    Console &m_console;
    const QString m_what;
    QElapsedTimer m_sinceShown;
    bool m_shown = false;
};
