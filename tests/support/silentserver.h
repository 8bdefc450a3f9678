#pragma once

#include <QtGlobal>

/// A server on 127.0.0.1 that accepts every client and never says a word.
class SilentServer {
public:
    SilentServer();
    ~SilentServer();
    SilentServer(const SilentServer &) = delete;
    SilentServer &operator=(const SilentServer &) = delete;

    quint16 port() const;

private:
    const int m_listener;
};
