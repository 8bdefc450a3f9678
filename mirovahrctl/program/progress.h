#pragma once

#include <QElapsedTimer>
#include <QString>

class Console;

/// How far a long piece of work is, in one line on standard error that is gone at the end. Shows
/// nothing when standard error is no terminal.
class Progress {
public:
    /// \a what names the work, such as "Reading the export".
    Progress(Console &console, const QString &what);
    ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    /// How much of how much is done. Cheap enough to be called for every line of a file.
    void update(qint64 done, qint64 total);

private:
    void show(qint64 done, qint64 total);

    Console &m_console;
    const QString m_what;
    QElapsedTimer m_sinceShown;
    bool m_shown = false;
};
