#pragma once

#include <QBitArray>
#include <QHash>

#include <optional>

class MirovaRonRecord;

/// Finds the people (pids) that an export names more than once, in two passes over the export and
/// in memory that does not grow with it.
///
/// The first pass finds, with two bit arrays, which pids may occur more than once: all that do, and
/// a few that do not. The second keeps those candidates and compares them exactly.
class RepeatedPids {
public:
    /// So many candidates are kept at most, unless the caller wants fewer. Of further ones no
    /// repetition is found; see isComplete().
    static constexpr int kMostCandidates = 200000;

    /// The first line with a pid.
    struct First {
        qint64 line = 0;
        quint32 osobniCislo = 0;
        quint32 poradoveCisloPP = 0;
    };

    /// \a bytes: the size of the export, which determines that of the bit arrays.
    explicit RepeatedPids(qint64 bytes, int mostCandidates = kMostCandidates);

    /// First pass: this pid is in the export.
    void note(quint32 pid);

    /// Second pass, for the records in order: the first line with the same pid; nothing when this
    /// is the first.
    std::optional<First> first(const MirovaRonRecord &record, qint64 line);

    /// False when there were more candidates than are kept.
    bool isComplete() const { return m_complete; }

private:
    int indexOf(quint32 pid) const;

    const int m_indexBits;
    const int m_mostCandidates;
    QBitArray m_seen;
    QBitArray m_seenTwice;
    QHash<quint32, First> m_candidates;
    bool m_complete = true;
};
