#pragma once

/// Waits until every process that was started since its construction is gone.
class Descendants {
public:
    Descendants();
    ~Descendants();
    Descendants(const Descendants &) = delete;
    Descendants &operator=(const Descendants &) = delete;

    /// False when one of them still runs.
    bool waitForEnd();

private:
    int m_pipe[2];
};
