#pragma once

#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>

#include <valgrind/callgrind.h>

/// Measures one run of one of the three programs that are compared ("plugin", "qt", "c") and prints
/// it as a line "run,<what>,<who>,<wall seconds>,<CPU seconds>". Under callgrind the run's
/// instructions are counted (with --collect-atstart=no).
class Stopwatch {
public:
    Stopwatch(const char *what, const char *who)
        : m_what(what)
        , m_who(who)
        , m_cpu(cpuSeconds())
        , m_wall(Clock::now())
    {
        CALLGRIND_TOGGLE_COLLECT;
    }

    ~Stopwatch()
    {
        CALLGRIND_TOGGLE_COLLECT;
        const std::chrono::duration<double> wall = Clock::now() - m_wall;
        std::printf("run,%s,%s,%.9f,%.9f\n", m_what, m_who, wall.count(), cpuSeconds() - m_cpu);
        std::fflush(stdout);
        const std::string name = std::string(m_what) + ' ' + m_who;
        CALLGRIND_DUMP_STATS_AT(name.c_str());
    }

    Stopwatch(const Stopwatch &) = delete;
    Stopwatch &operator=(const Stopwatch &) = delete;

private:
    using Clock = std::chrono::steady_clock;

    /// Of the whole program.
    static double cpuSeconds()
    {
        std::timespec time = {};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    }

    const char *m_what;
    const char *m_who;
    const double m_cpu;
    const Clock::time_point m_wall;
};
