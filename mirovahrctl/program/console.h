#pragma once

#include "mirovahrctl/program/terminal.h"
#include "mirovahrctl/report/exitstatus.h"

#include <QString>

#include <functional>
#include <memory>

class JsonReport;
class QIODevice;

/// Where a subcommand writes: results to one device, errors, warnings and progress to the other. In
/// the program these are standard output and standard error, in tests two buffers.
class Console {
public:
    /// \a terminal: what is behind the devices; none by default.
    Console(QIODevice &out, QIODevice &err, const Terminal &terminal = Terminal());
    ~Console();

    QIODevice &out() { return m_out; }
    QIODevice &err() { return m_err; }
    const Terminal &terminal() const { return m_terminal; }

    /// Prints why the program ends, a whole sentence, and returns the status to end with.
    using Failure = std::function<ExitStatus(ExitStatus status, const QString &sentence)>;
    /// From now on fail() leaves everything to this function.
    void setFailure(Failure failure) { m_failure = std::move(failure); }

    /// Why the subcommand's connection is lost, a sentence without its full stop; empty when it
    /// works.
    using Loss = std::function<QString()>;
    /// From now on fail() asks this function first. Of a lost connection everything fails that
    /// comes after it, with reasons of all kinds: the loss is the reason that it prints.
    void setLoss(Loss loss) { m_loss = std::move(loss); }

    /// Names the subcommand that runs, for the messages.
    void setSubcommand(const QString &name);

    /// From now on `out` gets one JSON object, whether the subcommand succeeds or fails.
    void startJson();
    /// That object; null unless startJson() was called.
    JsonReport *json() { return m_json.get(); }

    /// Writes a text and a line feed to `out`.
    void print(const QString &text);
    /// The same, for somebody who waits for it: `out` keeps nothing back. False when it cannot be
    /// written.
    bool printNow(const QString &text);

    /// Writes to `err` why the program ends, a sentence with or without its full stop, and to the
    /// JSON object if there is one. Returns the status, for `return console.fail(...)`.
    ExitStatus fail(ExitStatus status, const QString &sentence);

    /// Writes a warning to `err`, a sentence with or without its full stop.
    void warn(const QString &sentence);

private:
    ExitStatus end(ExitStatus status, const QString &sentence);
    void writeMessage(const QString &sentence);

    QIODevice &m_out;
    QIODevice &m_err;
    const Terminal m_terminal;
    QString m_subcommand;
    Failure m_failure;
    Loss m_loss;
    std::unique_ptr<JsonReport> m_json;
};
