#pragma once

#include <QString>

#include <functional>

/// As long as it lives, prints everything that goes through the Qt message log, one message after
/// the other whatever thread it comes from: its level and its text, warnings and worse to standard
/// error. One object at a time.
class LogPrinter {
public:
    /// Called with the text of every message, printed or not, in the thread that logs it, which
    /// goes on when it returns. It must not log anything itself.
    using Observer = std::function<void(const QString &text)>;

    /// Prints debug and info messages only with printDebug. The observer may be empty.
    LogPrinter(bool printDebug, const Observer &observer);
    ~LogPrinter();
    LogPrinter(const LogPrinter &) = delete;
    LogPrinter &operator=(const LogPrinter &) = delete;
};
