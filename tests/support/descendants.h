#pragma once

/// Tells when every process that was started since is gone.
class Descendants {
public:
    Descendants();
    ~Descendants();
    Descendants(const Descendants &) = delete;
    Descendants &operator=(const Descendants &) = delete;

    void waitForEnd();

private:
    int m_pipe[2];
};
