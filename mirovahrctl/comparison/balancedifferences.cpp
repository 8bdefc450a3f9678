#include "mirovahrctl/comparison/balancedifferences.h"

#include "mirovahrctl/comparison/comparedpeople.h"
#include "mirovahrctl/export/fieldreading.h"

#include <QLocale>
#include <QMap>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace {

/// Accrual doubles a balance from January to February, so only larger factors are suspicious.
constexpr double kLeastFactor = 3;
/// Factors of a unit or a lost decimal point are multiples of a half: 7.5 and 8 hours, 10, 60.
constexpr double kFactorsPerUnit = 2;
/// For the hundredths that are rounded away.
constexpr double kTolerance = 0.01;
/// Two balances become the same multiple by chance, when all get the same entitlement.
constexpr int kLeastBalances = 3;

struct Change {
    int person;
    qint32 before; ///< hundredths of a day
    qint32 now; ///< hundredths of a day
};

/// The factor by which a balance was multiplied, rounded to the multiple of a half or its inverse
/// that it must be to be suspicious; 0 when it is not.
double suspiciousFactor(const Change &change)
{
    if (change.before == 0 || change.now == 0)
        return 0;
    const bool grows = std::abs(double(change.now)) >= std::abs(double(change.before));
    const double factor =
        grows ? double(change.now) / change.before : double(change.before) / change.now;
    const double rounded = std::round(factor * kFactorsPerUnit) / kFactorsPerUnit;
    if (std::abs(factor - rounded) > kTolerance * std::abs(factor))
        return 0;
    if (rounded > 0 && rounded < kLeastFactor)
        return 0;
    return grows ? rounded : 1 / rounded;
}

bool isImplausible(qint32 hundredths)
{
    return hundredths < BalanceDifferences::kLeast || hundredths > BalanceDifferences::kMost;
}

QVector<Change> changesOf(const ComparedPeople &people, const QVector<int> &changed)
{
    const auto balance = [&people](ComparedPeople::Side side, int person) {
        return FieldReading::hundredthsOf(people.text(side, person, ExportLine::DovolenaZustatek));
    };
    QVector<Change> changes;
    for (const int person : changed) {
        changes.append({person, balance(ComparedPeople::Before, person),
                        balance(ComparedPeople::Now, person)});
    }
    return changes;
}

double medianOf(QVector<qint64> values)
{
    if (values.isEmpty())
        return 0;
    std::sort(values.begin(), values.end());
    const int middle = values.size() / 2;
    if (values.size() % 2 == 1)
        return double(values.at(middle));
    return double(values.at(middle - 1) + values.at(middle)) / 2;
}

void findSize(const QVector<Change> &changes, BalanceDifferences &differences)
{
    QVector<qint64> sizes;
    for (const Change &change : changes) {
        sizes.append(qint64(change.now) - change.before);
        differences.sum += sizes.constLast();
    }
    differences.median = medianOf(sizes);
}

void findMultiplied(const QVector<Change> &changes, BalanceDifferences &differences)
{
    QMap<double, QVector<int>> peopleByFactor;
    QMap<double, QSet<qint32>> balancesByFactor;
    for (const Change &change : changes) {
        const double factor = suspiciousFactor(change);
        if (factor == 0)
            continue;
        peopleByFactor[factor].append(change.person);
        balancesByFactor[factor].insert(change.before);
    }
    for (auto it = peopleByFactor.cbegin(); it != peopleByFactor.cend(); ++it) {
        if (it->size() <= differences.multiplied.size()
            || balancesByFactor.value(it.key()).size() < kLeastBalances)
            continue;
        differences.multiplied = *it;
        differences.factor = it.key();
    }
}

} // namespace

BalanceDifferences BalanceDifferences::of(const ComparedPeople &people, const QVector<int> &changed)
{
    const QVector<Change> changes = changesOf(people, changed);
    BalanceDifferences differences;
    for (const Change &change : changes) {
        if (change.now == 0 && change.before != 0)
            differences.zeroed.append(change.person);
        if (isImplausible(change.now) && !isImplausible(change.before))
            differences.implausible.append(change.person);
    }
    findSize(changes, differences);
    findMultiplied(changes, differences);
    return differences;
}

QString BalanceDifferences::factorText() const
{
    // A multiple of a half is written in full; its inverse may have no end.
    const int digits = std::abs(factor) < 1 ? 3 : 12;
    return QLocale().toString(factor, 'g', digits);
}
