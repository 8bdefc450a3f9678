#pragma once

#include <QString>
#include <QVector>

class ComparedPeople;

/// What has become of the vacation balances. At the turn of a month or a year every balance
/// changes; the lists hold what no such turn explains. Indexes of people, ordered by their numbers.
struct BalanceDifferences {
    /// A balance beyond these is implausible, in hundredths of a day.
    static constexpr int kLeast = -5000;
    static constexpr int kMost = 10000;

    /// \a changed: people of both exports with another balance, or none any more, in both cases one
    /// that the plugin can read.
    static BalanceDifferences of(const ComparedPeople &people, const QVector<int> &changed);

    QVector<int> zeroed; ///< 0 now
    QVector<int> implausible; ///< below kLeast or above kMost, and not before
    /// Multiplied by the same factor, which is at least 3, at most a third, or negative. Empty
    /// unless at least three different balances were.
    QVector<int> multiplied;
    double factor = 1; ///< of those
    /// That factor for people: "7.5", "1000", "0.333".
    QString factorText() const;
    qint64 sum = 0; ///< of all changes, in hundredths of a day
    double median = 0; ///< of all changes, in hundredths of a day
};
