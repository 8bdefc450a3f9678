#include "mirovahrctl/gate/gatevalues.h"

#include "mirovahrctl/comparison/exportdifferences.h"
#include "mirovahrctl/comparison/fieldwords.h"
#include "mirovahrctl/export/fieldreading.h"
#include "mirovahrctl/gatestate/gatelimits.h"
#include "mirovahrctl/report/rules/gaterules.h"

namespace GateValues {

namespace {

constexpr double kHundredths = 100;

/// What a limit is held against.
struct Case {
    const Rule &rule;
    const GateLimit &limit;
    int field;
    const QVector<int> &people;
    int whole;
    QString what; ///< what the people's values do, without a full stop
};

void assess(const Case &values, const GateLimits &limits, QVector<GateReason> &reasons)
{
    const int count = values.people.size();
    if (!limits.isExceeded(values.limit, count, values.whole))
        return;
    const QString message =
        QStringLiteral("The %1 of %2 %3%4")
            .arg(FieldWords::of(values.field), GateWording::people(count, values.whole),
                 values.what, GateWording::allowance(values.limit));
    GateReason reason{makeFinding(values.rule, message), true, values.field, values.people};
    reason.finding.field = ExportLine::fieldNames().at(values.field);
    reasons.append(reason);
}

/// The plugin uses no name of a cost centre.
bool isUsed(int field)
{
    return field != ExportLine::StrediskoPopis;
}

/// The others have limits of their own.
bool isLimitedAsAny(int field)
{
    return isUsed(field) && field != ExportLine::Stredisko && field != ExportLine::DovolenaZustatek
        && field != ExportLine::NadrizenyOsobniCislo;
}

void assessBalances(const ExportDifferences &changes, const GateLimits &limits,
                    QVector<GateReason> &reasons)
{
    const BalanceDifferences &balances = changes.balances;
    const auto assessKind = [&](const Rule &rule, const QVector<int> &people, const QString &what) {
        assess({rule, limits.balances, ExportLine::DovolenaZustatek, people, changes.withBalance,
                what},
               limits, reasons);
    };
    assessKind(GateRules::kBalancesZero, balances.zeroed, QStringLiteral("becomes 0"));
    assessKind(GateRules::kBalancesImplausible, balances.implausible,
               QStringLiteral("is now less than %1 or more than %2 days")
                   .arg(BalanceDifferences::kLeast / kHundredths)
                   .arg(BalanceDifferences::kMost / kHundredths));
    assessKind(
        GateRules::kBalancesMultiplied, balances.multiplied,
        QStringLiteral("is %1 times what it was").arg(QString::number(balances.factor, 'g', 3)));
}

} // namespace

QVector<GateReason> assessMisread(const ExportDifferences &changes, const GateLimits &limits)
{
    QVector<GateReason> reasons;
    for (int field = 0; field < ExportLine::kFieldCount; ++field) {
        const FieldDifferences &values = changes.fields.at(size_t(field));
        if (!isUsed(field))
            continue;
        const int known = reasons.size();
        assess({GateRules::kValuesMisread, limits.misread, field, values.misread, values.now,
                QStringLiteral("is misread: ") + FieldReading::consequence(field).chopped(1)},
               limits, reasons);
        // Most values of a field are never misread in a file that somebody wants.
        if (reasons.size() > known)
            reasons.last().mayBeOverridden = 2 * values.misread.size() <= values.now;
    }
    return reasons;
}

QVector<GateReason> assessChanged(const ExportDifferences &changes, const GateLimits &limits)
{
    QVector<GateReason> reasons;
    for (int field = 0; field < ExportLine::kFieldCount; ++field) {
        const FieldDifferences &values = changes.fields.at(size_t(field));
        if (isLimitedAsAny(field)) {
            assess({GateRules::kValuesChanged, limits.changed, field, values.changed,
                    changes.inBoth, QStringLiteral("changes")},
                   limits, reasons);
        }
        if (isUsed(field) && field != ExportLine::NadrizenyOsobniCislo) {
            assess({GateRules::kValuesEmptied, limits.emptied, field, values.emptied, values.before,
                    QStringLiteral("is emptied")},
                   limits, reasons);
        }
    }
    assessBalances(changes, limits, reasons);
    const FieldDifferences &supervisors =
        changes.fields.at(size_t(ExportLine::NadrizenyOsobniCislo));
    assess({GateRules::kSupervisorsChanged, limits.supervisors, ExportLine::NadrizenyOsobniCislo,
            changes.reassigned, supervisors.before,
            QStringLiteral("changes though the former one still works in the same place")},
           limits, reasons);
    return reasons;
}

} // namespace GateValues
