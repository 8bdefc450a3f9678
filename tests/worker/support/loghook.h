#pragma once

#include <QString>

#include <functional>

/// Does something at a certain point of the code under test: when the log gets a certain message,
/// in the middle of what logs it and in its thread.
///
/// A LogCapture that shall have the message as well must be there before and stay longer. What the
/// action itself logs goes to the standard error output: Qt calls no handler from within a handler.
class LogHook {
public:
    /// \a action is called once, for the first message with this \a text.
    LogHook(const QString &text, const std::function<void()> &action);
    ~LogHook();
    LogHook(const LogHook &) = delete;
    LogHook &operator=(const LogHook &) = delete;
};
