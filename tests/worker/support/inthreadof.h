#pragma once

#include <functional>

class QObject;

/// Runs \a task in the thread that \a object lives in, whose event loop must be running, after
/// everything that was queued to it before. Returns when \a task is done.
void runInThreadOf(QObject *object, const std::function<void()> &task);
