#pragma once

#include "tools/exitstatus.h"

#include <QString>

class QIODevice;

/// Where a subcommand writes: results to one device, complaints and progress to the other. In the
/// program these are standard output and standard error, in tests two buffers.
class Console {
public:
    /// \a interactive: `err` is a terminal, so that progress may be shown there.
    Console(QIODevice &out, QIODevice &err, bool interactive);

    QIODevice &out() { return m_out; }
    QIODevice &err() { return m_err; }
    bool isInteractive() const { return m_interactive; }

    /// Writes a text and a line feed to the results.
    void print(const QString &text);

    /// Writes to `err` why the program ends, a sentence with or without its full stop, and returns
    /// the status, for `return console.fail(...)`.
    ExitStatus fail(ExitStatus status, const QString &sentence);

private:
    QIODevice &m_out;
    QIODevice &m_err;
    const bool m_interactive;
};
