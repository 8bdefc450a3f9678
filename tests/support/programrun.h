#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

/// One run of a program by a test. Keeps what the program prints, and kills a program that still
/// runs when the object is destroyed. The wait functions give up after kPatienceMs.
class ProgramRun {
public:
    ProgramRun();
    ~ProgramRun();
    ProgramRun(const ProgramRun &) = delete;
    ProgramRun &operator=(const ProgramRun &) = delete;

    /// Sets a variable in the program's environment. Call it before start().
    void setVariable(const QString &name, const QString &value);

    /// Its standard input stays open.
    void start(const QString &program, const QStringList &arguments);
    /// Starts the program and waits for its end; as waitForEnd().
    bool run(const QString &program, const QStringList &arguments);

    /// Waits until the program has printed this text to either channel. False when it ends first.
    bool waitForText(const QString &text) { return waitForText(text, 1); }
    /// As above, for \a count occurrences of the text.
    bool waitForText(const QString &text, int count);
    /// Waits until the program has ended. False when it does not.
    bool waitForEnd();

    /// Writes to its standard input.
    void write(const QByteArray &bytes) { m_process.write(bytes); }
    void closeInput() { m_process.closeWriteChannel(); }

    void sendSignal(int signalNumber);

    QString output() const { return QString::fromUtf8(m_output); }
    QString errors() const { return QString::fromUtf8(m_errors); }
    /// The exit status; 128 plus the signal's number when a signal ended the program.
    int status() const;
    /// Status, output and errors, for the message of a failed check.
    QByteArray report() const;

private:
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    bool waitUntil(const std::function<bool()> &reached);

    QProcess m_process;
    QByteArray m_output;
    QByteArray m_errors;
};

/// Fails the test, with what the program printed, unless it ended with this status.
#define COMPARE_STATUS(run, expected)                                                              \
    QVERIFY2((run).status() == (expected), (run).report().constData())
