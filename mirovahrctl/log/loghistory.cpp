#include "mirovahrctl/log/loghistory.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace {

void add(LoggedProblems &sum, const LoggedProblems &problems)
{
    for (auto it = problems.cbegin(); it != problems.cend(); ++it)
        sum[it.key()].add(*it);
}

} // namespace

void LoggedProblem::add(const LoggedProblem &other)
{
    if (count == 0) {
        *this = other;
        return;
    }
    count += other.count;
    interruptions += other.interruptions;
    if (other.last)
        last = other.last;
    if (!first)
        first = other.first;
    for (auto it = other.people.cbegin(); it != other.people.cend(); ++it)
        people[it.key()] += *it;
}

void LoggedSynchronisation::addCounts(const LoggedSynchronisation &other)
{
    created += other.created;
    updated += other.updated;
    joined += other.joined;
    corrections += other.corrections;
    supervisors += other.supervisors;
}

qint64 LoggedSynchronisation::correctionSum() const
{
    return std::accumulate(corrections.cbegin(), corrections.cend(), qint64(0));
}

qint64 LoggedSynchronisation::largestCorrection() const
{
    qint64 largest = 0;
    for (const qint64 correction : corrections)
        largest = std::max(largest, std::abs(correction));
    return largest;
}

std::optional<qint64> LoggedSynchronisation::records() const
{
    if (usableLines)
        return usableLines;
    if (!hasBegun || !hasEnded || peopleNotLoaded)
        return std::nullopt;
    if (!fund) // looked up whenever there is a record
        return 0;
    return *fund == 0 ? std::nullopt : std::make_optional(fundChecks);
}

std::optional<qint64> LoggedSynchronisation::seconds() const
{
    if (!hasEnded || !begin || !end || *end < *begin)
        return std::nullopt;
    return begin->secsTo(*end);
}

void LogHistory::keepLast(int count)
{
    if (synchronisations.size() <= count)
        return;
    synchronisations = synchronisations.mid(synchronisations.size() - count);
    from = synchronisations.first().begin;
    problemsBefore.clear();
}

void LogHistory::forgetPast()
{
    problemsBefore.clear();
    runs = {LoggedRun()};
    const bool goesOn = !synchronisations.isEmpty() && !synchronisations.constLast().hasEnded;
    synchronisations.erase(synchronisations.begin(), synchronisations.end() - (goesOn ? 1 : 0));
}

LoggedProblems LogHistory::problems() const
{
    LoggedProblems sum = problemsBefore;
    for (const LoggedSynchronisation &synchronisation : synchronisations) {
        add(sum, synchronisation.problems);
        add(sum, synchronisation.problemsAfter);
    }
    return sum;
}

QString LogHistory::personName(const QByteArray &id) const
{
    const auto name = names.constFind(id);
    if (name != names.constEnd())
        return QString::fromUtf8(*name);
    return id.contains('.') ? QString::fromUtf8(id)
                            : QStringLiteral("pid ") + QString::fromUtf8(id);
}
