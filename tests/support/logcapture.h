#pragma once

#include "tests/support/patience.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QtGlobal>

class QThread;

/// One message of the Qt log.
struct LogMessage {
    QtMsgType type = QtDebugMsg;
    QString category; ///< "default" unless the code names another
    QString text;
    Qt::HANDLE threadId = nullptr; ///< of the thread that logged it
};

/// A line of the log as lines() gives it and the lowest debug level at which it appears.
struct LogLine {
    int level;
    QString text;
};

/// The lines that appear at a debug level.
QStringList linesAt(int debugLevel, const QVector<LogLine> &lines);

/// Captures the messages of the Qt log, of all threads, during its lifetime.
///
/// Lines have the form "D text", "I text", "W text" or "C text": debug, info, warning, critical.
/// Nothing is printed meanwhile. Captures may be nested; only the innermost receives messages.
///
/// The wait functions consider every line since the construction or the last clear(), and block the
/// calling thread without running its event loop: another thread must log the line.
class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    QStringList lines() const;
    QVector<LogMessage> messages() const;
    /// The threads that logged this message.
    QSet<Qt::HANDLE> threadsOf(const QString &text) const;
    int count(const QString &line) const;
    bool contains(const QString &line) const { return count(line) > 0; }
    void clear();

    /// Waits for exactly this line.
    bool waitForLine(const QString &line, int timeoutMs = kPatienceMs) const;
    /// Waits until exactly this line was logged \a times times.
    bool waitForCount(const QString &line, int times, int timeoutMs = kPatienceMs) const;
    /// Waits until a line contains \a part.
    bool waitForText(const QString &part, int timeoutMs = kPatienceMs) const;

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);

    QVector<LogMessage> m_messages;
    LogCapture *m_outer;
    QtMessageHandler m_outerHandler;
};
