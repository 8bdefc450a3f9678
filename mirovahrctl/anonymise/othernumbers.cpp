#include "mirovahrctl/anonymise/othernumbers.h"

#include "worker/mirovaronrecord.h"

#include <QRandomGenerator>

#include <algorithm>
#include <functional>
#include <limits>
#include <tuple>
#include <utility>

namespace {

// Numbers are chosen anew until no pid is wrong. It takes a few rounds, or many where hardly any
// number is free: then some stay.
constexpr int kRounds = 100;
constexpr int kTries = 100000;
constexpr int kTriesForNew = 100; ///< for a number that was not noted

constexpr quint64 kLargest = std::numeric_limits<quint32>::max();

int digitsOf(quint32 number)
{
    int digits = 1;
    for (; number >= 10; number /= 10)
        ++digits;
    return digits;
}

quint64 powerOfTen(int exponent)
{
    quint64 power = 1;
    for (int i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

quint32 pidOf(quint32 number, quint32 relationship)
{
    MirovaRonRecord record;
    record.osobniCislo = number;
    record.poradoveCisloPP = relationship;
    return record.getPid();
}

/// With as many digits as this one.
quint32 randomNumber(QRandomGenerator &random, quint32 number)
{
    const int digits = digitsOf(number);
    const quint64 lowest = powerOfTen(digits - 1);
    const quint64 highest = std::min(powerOfTen(digits) - 1, kLargest);
    return quint32(lowest + random.generate64() % (highest - lowest + 1));
}

/// The number that goes on behind `otherRoot` as `number` does behind `root`.
quint64 descendant(quint32 number, quint32 root, quint32 otherRoot)
{
    const quint64 power = powerOfTen(digitsOf(number) - digitsOf(root));
    return otherRoot * power + number % power;
}

template <typename T, typename Less> void sortOnce(QVector<T> &values, const Less &less)
{
    std::sort(values.begin(), values.end(), less);
    const auto isSame = [&less](const T &a, const T &b) {
        return !less(a, b) && !less(b, a);
    };
    values.erase(std::unique(values.begin(), values.end(), isSame), values.end());
}

} // namespace

OtherNumbers::OtherNumbers(QRandomGenerator &random)
    : m_random(random)
{
}

void OtherNumbers::note(quint32 number)
{
    m_numbers += number;
}

void OtherNumbers::note(quint32 number, quint32 relationship)
{
    note(number);
    if (relationship >= kFirstLong)
        note(relationship);
    m_pairs.append({number, relationship});
}

void OtherNumbers::settle()
{
    sortOnce(m_numbers, std::less<quint32>());
    sortOnce(m_pairs, [](const Pair &a, const Pair &b) {
        return std::tie(a.number, a.relationship) < std::tie(b.number, b.relationship);
    });
    m_others.fill(0, m_numbers.size());
    linkClashes();
    collectFamilies();
    for (int i = 0; i < m_numbers.size(); ++i) {
        if (!m_parents.contains(i) && !choose(i))
            keep(i);
    }
    QSet<int> wrong = offenders();
    for (int round = 0; !wrong.isEmpty(); ++round) {
        for (const int root : qAsConst(wrong)) {
            const bool isKept = m_kept.contains(root); // in place of another one
            if (!isKept && (round >= kRounds || !choose(root)))
                keep(root);
        }
        wrong = offenders();
    }
}

quint32 OtherNumbers::other(quint32 number) const
{
    const int index = indexOf(number);
    return index < 0 ? 0 : m_others.at(index);
}

quint32 OtherNumbers::otherRelationship(quint32 number, quint32 relationship) const
{
    return isReplaced({number, relationship}) ? other(relationship) : relationship;
}

int OtherNumbers::countKept() const
{
    int count = 0;
    for (const int root : m_kept)
        count += familyOf(root).size();
    return count;
}

void OtherNumbers::linkClashes()
{
    using Joined = std::pair<quint32, int>;
    QVector<Joined> joined;
    for (const Pair &pair : qAsConst(m_pairs)) {
        if (const quint32 pid = pidOf(pair.number, pair.relationship); pid != 0)
            joined.append({pid, indexOf(pair.number)});
    }
    std::sort(joined.begin(), joined.end());
    for (int i = 1; i < joined.size(); ++i) {
        const auto [pid, longer] = joined.at(i);
        if (pid != joined.at(i - 1).first)
            continue;
        m_clashing += pid;
        link(longer, joined.at(i - 1).second);
    }
}

/// All parents that a number gets are beginnings of it: each is the parent of the next longer one.
void OtherNumbers::link(int longer, int shorter)
{
    const auto parent = m_parents.constFind(longer);
    if (parent == m_parents.constEnd()) {
        m_parents.insert(longer, shorter);
        return;
    }
    const auto [far, near] = std::minmax({*parent, shorter});
    m_parents.insert(longer, near);
    if (far != near)
        link(near, far);
}

void OtherNumbers::collectFamilies()
{
    for (auto child = m_parents.cbegin(); child != m_parents.cend(); ++child)
        m_descendants[rootOf(child.key())] += child.key();
}

/// The root and all that descend from it.
QVector<int> OtherNumbers::familyOf(int root) const
{
    return QVector<int>{root} + m_descendants.value(root);
}

int OtherNumbers::rootOf(int index) const
{
    while (m_parents.contains(index))
        index = m_parents.value(index);
    return index;
}

/// -1 for a number that was not noted.
int OtherNumbers::indexOf(quint32 number) const
{
    const auto found = std::lower_bound(m_numbers.cbegin(), m_numbers.cend(), number);
    return found != m_numbers.cend() && *found == number ? int(found - m_numbers.cbegin()) : -1;
}

/// Gives a family other numbers; false when none are free.
bool OtherNumbers::choose(int root)
{
    for (int i = 0; i < kTries; ++i) {
        const quint32 other = randomNumber(m_random, m_numbers.at(root));
        if (isFree(root, other, i >= kTriesForNew)) {
            place(root, other);
            return true;
        }
    }
    return false;
}

bool OtherNumbers::isFree(int root, quint32 other, bool mayBeNoted) const
{
    const QVector<int> family = familyOf(root);
    return std::all_of(family.cbegin(), family.cend(), [&](int index) {
        const quint32 number = m_numbers.at(index);
        const quint64 wanted = descendant(number, m_numbers.at(root), other);
        return wanted <= kLargest && wanted != number && !m_owners.contains(quint32(wanted))
            && (mayBeNoted || indexOf(quint32(wanted)) < 0);
    });
}

/// Lets a family keep its numbers; whoever has got one of them gets another.
void OtherNumbers::keep(int root)
{
    QSet<int> displaced;
    for (const int index : familyOf(root)) {
        const int owner = m_owners.value(m_numbers.at(index), index);
        displaced += rootOf(owner);
    }
    displaced.remove(root);
    for (const int other : qAsConst(displaced))
        displace(other);
    m_kept += root;
    place(root, m_numbers.at(root));
    for (const int other : qAsConst(displaced)) {
        if (!choose(other))
            keep(other);
    }
}

void OtherNumbers::place(int root, quint32 other)
{
    displace(root);
    for (const int index : familyOf(root)) {
        m_others[index] = quint32(descendant(m_numbers.at(index), m_numbers.at(root), other));
        m_owners.insert(m_others.at(index), index);
    }
}

void OtherNumbers::displace(int root)
{
    for (const int index : familyOf(root)) {
        m_owners.remove(m_others.at(index));
        m_others[index] = 0;
    }
}

/// The roots with which something is wrong: numbers that make the same pid and did not, or make one
/// that exceeds 32 bits and did not, or the reverse.
QSet<int> OtherNumbers::offenders() const
{
    struct Joined {
        quint32 after;
        quint32 before;
        int pair;
    };
    QSet<int> roots;
    QVector<Joined> joined;
    joined.reserve(m_pairs.size());
    for (int i = 0; i < m_pairs.size(); ++i) {
        const Pair &pair = m_pairs.at(i);
        const Joined pids{otherPid(pair), pidOf(pair.number, pair.relationship), i};
        if ((pids.after == 0) != (pids.before == 0))
            addRoots(pair, roots);
        else if (pids.after != 0)
            joined.append(pids);
    }
    std::sort(joined.begin(), joined.end(), [](const Joined &a, const Joined &b) {
        return std::tie(a.after, a.before) < std::tie(b.after, b.before);
    });
    for (int i = 1; i < joined.size(); ++i) {
        if (joined.at(i).after != joined.at(i - 1).after
            || joined.at(i).before == joined.at(i - 1).before)
            continue;
        addRoots(m_pairs.at(joined.at(i).pair), roots);
        addRoots(m_pairs.at(joined.at(i - 1).pair), roots);
    }
    return roots;
}

/// Whether the relationship gets another number. In a clash the digits must stay where they are.
bool OtherNumbers::isReplaced(const Pair &pair) const
{
    return pair.relationship >= kFirstLong
        && !m_clashing.contains(pidOf(pair.number, pair.relationship));
}

quint32 OtherNumbers::otherPid(const Pair &pair) const
{
    return pidOf(other(pair.number), otherRelationship(pair.number, pair.relationship));
}

/// Adds those that have other numbers.
void OtherNumbers::addRoots(const Pair &pair, QSet<int> &roots) const
{
    roots += rootOf(indexOf(pair.number));
    if (isReplaced(pair))
        roots += rootOf(indexOf(pair.relationship));
    roots -= m_kept;
}
