#pragma once

#include <QElapsedTimer>

/// How often a comparison is repeated: a number of times, or fewer when it takes too long, but
/// once.
class Rounds {
public:
    Rounds(int count, int seconds)
        : m_left(count)
        , m_seconds(seconds)
    {
        m_time.start();
    }

    bool next()
    {
        const bool first = !m_begun;
        m_begun = true;
        return m_left-- > 0 && (first || m_time.elapsed() < m_seconds * 1000LL);
    }

private:
    int m_left;
    const int m_seconds;
    bool m_begun = false;
    QElapsedTimer m_time;
};
