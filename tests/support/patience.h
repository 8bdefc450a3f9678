#pragma once

#include <functional>

/// How long a test waits for an expected event before it fails, in milliseconds.
constexpr int kPatienceMs = 60000;

/// Waits until \a descriptor has something to read or its other end is closed. False when neither
/// happens in kPatienceMs.
bool waitUntilReadable(int descriptor);

/// Asks again and again until \a reached. For what nothing can be waited for: the state of another
/// process. False when it is not reached in kPatienceMs.
bool pollUntil(const std::function<bool()> &reached);
