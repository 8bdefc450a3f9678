#include "mirovahrctl/export/repeatedpids.h"

#include "worker/mirovaronrecord.h"

namespace {

// At most 8 MiB for each array. With a million people, 1 in 60 is then a false candidate.
constexpr int kMostIndexBits = 26;

/// Some hundred bits for each line, so that few people of an export share one.
int indexBits(qint64 bytes)
{
    int bits = 10;
    while (bits < kMostIndexBits && (qint64(1) << bits) < 4 * bytes)
        ++bits;
    return bits;
}

} // namespace

RepeatedPids::RepeatedPids(qint64 bytes, int mostCandidates)
    : m_indexBits(indexBits(bytes))
    , m_mostCandidates(mostCandidates)
    , m_seen(1 << m_indexBits)
    , m_seenTwice(1 << m_indexBits)
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
    if (m_candidates.size() < m_mostCandidates)
        m_candidates.insert(pid, {line, record.osobniCislo, record.poradoveCisloPP});
    else
        m_complete = false;
    return std::nullopt;
}

/// Multiplication spreads pids, which are often consecutive, over all bits.
int RepeatedPids::indexOf(quint32 pid) const
{
    return static_cast<int>((pid * 2654435769U) >> (32 - m_indexBits));
}
