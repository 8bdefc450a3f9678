#pragma once

#include <QString>

#include <functional>

/// Runs an action at a certain point of the code under test: when that logs a certain message, and
/// in the same thread.
///
/// A LogCapture that is to receive the message as well must exist before and outlive it. What the
/// action itself logs goes to standard error: Qt calls no handler from within a handler.
class LogHook {
public:
    /// \a action is called once, for the first message with this \a text.
    LogHook(const QString &text, const std::function<void()> &action);
    ~LogHook();
    LogHook(const LogHook &) = delete;
    LogHook &operator=(const LogHook &) = delete;
};
