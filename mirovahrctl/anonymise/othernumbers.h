#pragma once

#include <QHash>
#include <QSet>
#include <QVector>

class QRandomGenerator;

/// Puts other numbers in the place of numbers, such as those of people: with as many digits, chosen
/// at random, no two the same, and where there is room none that was noted itself. Numbers that
/// make the same pid when they are joined with those of their relationships go on doing so, and no
/// others do. First all numbers are noted, then settle() chooses.
class OtherNumbers {
public:
    /// Relationships below stay: nearly all are among the first, which identifies nobody.
    static constexpr quint32 kFirstLong = 1000;

    /// The generator must outlive the object, and nobody may be able to guess its numbers.
    explicit OtherNumbers(QRandomGenerator &random);

    /// A number above 0.
    void note(quint32 number);
    /// A number with a relationship that it has, both above 0.
    void note(quint32 number, quint32 relationship);

    /// Chooses the other numbers.
    void settle();

    /// The other number; 0 for one that was not noted.
    quint32 other(quint32 number) const;
    /// The same for the number of a relationship.
    quint32 otherRelationship(quint32 number, quint32 relationship) const;

    /// How many numbers stay: with any other one, a pid would become another person's or none.
    int countKept() const;

private:
    struct Pair {
        quint32 number;
        quint32 relationship;
    };

    void linkClashes();
    void link(int longer, int shorter);
    void collectFamilies();
    QVector<int> familyOf(int root) const;
    int rootOf(int index) const;
    int indexOf(quint32 number) const;

    bool choose(int root);
    bool isFree(int root, quint32 other, bool mayBeNoted) const;
    void keep(int root);
    void place(int root, quint32 other);
    void displace(int root);

    QSet<int> offenders() const;
    bool isReplaced(const Pair &pair) const;
    quint32 otherPid(const Pair &pair) const;
    void addRoots(const Pair &pair, QSet<int> &roots) const;

    QRandomGenerator &m_random;
    QVector<quint32> m_numbers; ///< in ascending order
    QVector<quint32> m_others; ///< of the numbers; 0 while there is none
    QVector<Pair> m_pairs;
    QHash<quint32, int> m_owners; ///< of the other numbers
    QSet<quint32> m_clashing; ///< the pids that several numbers make
    /// Of two numbers that make one pid the longer begins with the shorter, which is its parent.
    /// Only the roots have numbers chosen; those that descend from them begin with these.
    QHash<int, int> m_parents;
    QHash<int, QVector<int>> m_descendants; ///< of the roots that have any
    QSet<int> m_kept; ///< the roots that stay
};
