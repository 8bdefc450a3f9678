#include "mirovahrctl/log/missingticks.h"

#include <algorithm>

namespace {

/// So many periods show what is usual.
constexpr int kLeastPeriods = 3;

/// A gap of more than one and a half periods misses a tick.
bool isMissing(qint64 gap, qint64 period)
{
    return 2 * gap > 3 * period;
}

qint64 median(QVector<qint64> values)
{
    const auto middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The seconds between the one and the other in which a synchronisation kept the plugin busy.
qint64 busy(const LogHistory &history, qint64 from, qint64 to)
{
    qint64 sum = 0;
    for (const LoggedSynchronisation &one : history.synchronisations) {
        if (!one.seconds())
            continue;
        const qint64 begin = std::max(from, one.begin->toSecsSinceEpoch());
        const qint64 end = std::min(to, one.end->toSecsSinceEpoch());
        sum += std::max(qint64(0), end - begin);
    }
    return sum;
}

class Search {
public:
    Search(const LogHistory &history, bool ofSynchronisations, std::vector<MissingTick> &missing)
        : m_history(history)
        , m_ofSynchronisations(ofSynchronisations)
        , m_missing(missing)
    {
    }

    void run()
    {
        QVector<qint64> periods;
        for (const LoggedRun &run : m_history.runs)
            periods += periodsOf(run);
        if (periods.size() < kLeastPeriods)
            return;
        m_period = std::max(qint64(1), median(periods));
        for (const LoggedRun &run : m_history.runs)
            searchRun(run);
        searchEnd();
    }

private:
    const QVector<LoggedTick> &ticksOf(const LoggedRun &run) const
    {
        return m_ofSynchronisations ? run.begins : run.ticks;
    }

    /// Forced synchronisations come at any time.
    QVector<qint64> periodsOf(const LoggedRun &run) const
    {
        const QVector<LoggedTick> &ticks = ticksOf(run);
        QVector<qint64> periods;
        qint64 last = -1;
        for (int i = 0; i < ticks.size(); ++i) {
            if (m_ofSynchronisations && run.forced.at(i))
                continue;
            if (last >= 0)
                periods.append(ticks.at(i).time - last);
            last = ticks.at(i).time;
        }
        return periods;
    }

    void searchRun(const LoggedRun &run)
    {
        const QVector<LoggedTick> &ticks = ticksOf(run);
        for (int i = 1; i < ticks.size(); ++i)
            note(ticks.at(i - 1).time, ticks.at(i).time, false);
    }

    void searchEnd()
    {
        const LoggedRun &last = m_history.runs.last();
        if (!last.hasStopped && m_history.endTime && !ticksOf(last).isEmpty())
            note(ticksOf(last).last().time, m_history.endTime->toSecsSinceEpoch(), true);
    }

    void note(qint64 last, qint64 next, bool isOpen)
    {
        if (m_history.from && last < m_history.from->toSecsSinceEpoch())
            return;
        const qint64 gap = next - last;
        if (isMissing(gap, m_period) && isMissing(gap - busy(m_history, last, next), m_period))
            m_missing.push_back({m_ofSynchronisations, last, next, isOpen, m_period});
    }

    const LogHistory &m_history;
    const bool m_ofSynchronisations;
    std::vector<MissingTick> &m_missing;
    qint64 m_period = 0;
};

} // namespace

std::vector<MissingTick> missingTicks(const LogHistory &history)
{
    std::vector<MissingTick> missing;
    Search(history, false, missing).run();
    Search(history, true, missing).run();
    return missing;
}
