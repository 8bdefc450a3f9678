#pragma once

#include "mirovahrctl/comparison/balancedifferences.h"
#include "worker/exportline.h"

#include <QDate>
#include <QVector>

#include <array>

class ComparedPeople;

/// What has become of one field. The lists hold indexes of people, ordered by their numbers; no
/// person is in two of them.
struct FieldDifferences {
    QVector<int> changed; ///< another value, also one where there was none
    QVector<int> emptied; ///< no value any more
    /// A value that the plugin misreads, and that it did not misread before; also of new people.
    QVector<int> misread;
    QVector<int> repaired; ///< misread before, and not any more
    int before = 0; ///< people of both exports who had a value
    int now = 0; ///< people of the newer export who have a value, or one that is misread

    /// How many values differ.
    int count() const { return changed.size() + emptied.size() + misread.size() + repaired.size(); }
};

/// What differs between two exports. All lists hold indexes of people, ordered by their numbers.
struct ExportDifferences {
    /// \a today decides who is employed.
    static ExportDifferences of(const ComparedPeople &people, const QDate &today);

    int inBoth = 0; ///< people
    int withBalance = 0; ///< people of both exports who had a vacation balance other than 0
    int working = 0; ///< people of the older export who are employed
    QVector<int> added; ///< not in the older export
    QVector<int> gone; ///< not in the newer export
    /// Employed before, and now missing, in an ended state, or with a last day or an earlier one.
    QVector<int> leaving;
    QVector<int> returning; ///< in the older export not employed, and now they are
    QVector<int> moving; ///< employed before, not leaving, with another cost centre
    /// With another supervisor or none, for no reason that the exports show: the people stay in
    /// their cost centre, and their former supervisor works on in the same place and state
    /// and has given no notice.
    QVector<int> reassigned;
    std::array<FieldDifferences, ExportLine::kFieldCount> fields;
    BalanceDifferences balances;
};
