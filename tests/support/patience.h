#pragma once

/// How long a test waits for an expected event before it fails, in milliseconds.
constexpr int kPatienceMs = 60000;

/// Waits until \a descriptor has something to read or its other end is closed. False when neither
/// happens in kPatienceMs.
bool waitUntilReadable(int descriptor);
