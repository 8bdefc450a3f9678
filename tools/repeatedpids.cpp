#include "tools/repeatedpids.h"

#include "worker/mirovaronrecord.h"

namespace {

// 8 MiB for each array. With a million people 1 in 60 is a candidate without cause.
constexpr int kIndexBits = 26;

/// Multiplication spreads pids, which come in rows, over all bits.
int indexOf(quint32 pid)
{
    return static_cast<int>((pid * 2654435769U) >> (32 - kIndexBits));
}

} // namespace

RepeatedPids::RepeatedPids()
    : m_seen(1 << kIndexBits)
    , m_seenTwice(1 << kIndexBits)
{
}

void RepeatedPids::note(quint32 pid)
{
    const int index = indexOf(pid);
    if (m_seen.testBit(index))
        m_seenTwice.setBit(index);
    else
        m_seen.setBit(index);
}

std::optional<RepeatedPids::First> RepeatedPids::first(const MirovaRonRecord &record, qint64 line)
{
    const quint32 pid = record.getPid();
    if (!m_seenTwice.testBit(indexOf(pid)))
        return std::nullopt;
    const auto found = m_candidates.constFind(pid);
    if (found != m_candidates.constEnd())
        return *found;
    if (m_candidates.size() < kMostCandidates)
        m_candidates.insert(pid, {line, record.osobniCislo, record.poradoveCisloPP});
    else
        m_complete = false;
    return std::nullopt;
}
