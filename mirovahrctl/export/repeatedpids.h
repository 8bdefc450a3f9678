#pragma once

#include <QBitArray>
#include <QHash>

#include <optional>

class MirovaRonRecord;

/// Finds the people (pids) that an export names more than once, in two passes over the export and
/// in memory that does not grow with it.
///
/// The first pass sorts out, with two bit arrays, which pids may come more than once; it errs on
/// the safe side only. The second keeps those few and compares them exactly.
class RepeatedPids {
public:
    /// The most candidates that the second pass keeps. Beyond them it finds no more repetitions;
    /// see isComplete().
    static constexpr int kMostCandidates = 200000;

    /// Where a pid came first.
    struct First {
        qint64 line = 0;
        quint32 osobniCislo = 0;
        quint32 poradoveCisloPP = 0;
    };

    /// \a bytes: the size of the export, by which the bit arrays are made.
    explicit RepeatedPids(qint64 bytes);

    /// First pass: this pid is in the export.
    void note(quint32 pid);

    /// Second pass, for the records in their order: the first line of the same pid, nothing when
    /// this is the first.
    std::optional<First> first(const MirovaRonRecord &record, qint64 line);

    /// False when there were more candidates than are kept.
    bool isComplete() const { return m_complete; }

private:
    int indexOf(quint32 pid) const;

    const int m_indexBits;
    QBitArray m_seen;
    QBitArray m_seenTwice;
    QHash<quint32, First> m_candidates;
    bool m_complete = true;
};
