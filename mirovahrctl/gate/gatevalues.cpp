#include "mirovahrctl/gate/gatevalues.h"

#include "cli/text.h"
#include "mirovahrctl/comparison/exportdifferences.h"
#include "mirovahrctl/comparison/fieldwords.h"
#include "mirovahrctl/export/fieldreading.h"
#include "mirovahrctl/gatestate/gatelimits.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/gaterules.h"

#include <QLocale>

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
    /// With places for the field's word, the percentage, the allowance and the details.
    const char *text;
    QStringList details{};
};

void assess(const Case &values, const GateLimits &limits, QVector<GateReason> &reasons)
{
    const int count = values.people.size();
    if (!limits.isExceeded(values.limit, count, values.whole))
        return;
    QString message =
        Text::tr(values.text, nullptr, count)
            .arg(FieldWords::of(values.field), GateWording::percent(count, values.whole),
                 GateWording::allowance(values.limit));
    for (const QString &detail : values.details)
        message = message.arg(detail);
    GateReason reason{makeFinding(values.rule, message), true, values.field, values.people};
    reason.finding.field = ExportLine::fieldNames().at(values.field);
    reasons.append(reason);
}

QString days(int hundredths)
{
    return Language::number(hundredths / kHundredths, QLocale::FloatingPointShortest);
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
    const auto assessKind = [&](const Rule &rule, const QVector<int> &people, const char *text,
                                const QStringList &details) {
        assess({rule, limits.balances, ExportLine::DovolenaZustatek, people, changes.withBalance,
                text, details},
               limits, reasons);
    };
    assessKind(GateRules::kBalancesZero, balances.zeroed,
               QT_TRANSLATE_N_NOOP("Text", "The %1 of %Ln person(s) (%2 %) becomes 0; %3"), {});
    assessKind(GateRules::kBalancesImplausible, balances.implausible,
               QT_TRANSLATE_N_NOOP("Text",
                                   "The %1 of %Ln person(s) (%2 %) is now less than %4 or more "
                                   "than %5 days; %3"),
               {days(BalanceDifferences::kLeast), days(BalanceDifferences::kMost)});
    assessKind(
        GateRules::kBalancesMultiplied, balances.multiplied,
        QT_TRANSLATE_N_NOOP("Text", "The %1 of %Ln person(s) (%2 %) is %4 times what it was; %3"),
        {balances.factorText()});
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
        assess({GateRules::kValuesMisread,
                limits.misread,
                field,
                values.misread,
                values.now,
                QT_TRANSLATE_N_NOOP("Text", "The %1 of %Ln person(s) (%2 %) is misread: %4; %3"),
                {FieldReading::consequence(field).chopped(1)}},
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
                    changes.inBoth,
                    QT_TRANSLATE_N_NOOP("Text", "The %1 of %Ln person(s) (%2 %) changes; %3")},
                   limits, reasons);
        }
        if (isUsed(field) && field != ExportLine::NadrizenyOsobniCislo) {
            assess({GateRules::kValuesEmptied, limits.emptied, field, values.emptied, values.before,
                    QT_TRANSLATE_N_NOOP("Text", "The %1 of %Ln person(s) (%2 %) is emptied; %3")},
                   limits, reasons);
        }
    }
    assessBalances(changes, limits, reasons);
    const FieldDifferences &supervisors =
        changes.fields.at(size_t(ExportLine::NadrizenyOsobniCislo));
    assess({GateRules::kSupervisorsChanged, limits.supervisors, ExportLine::NadrizenyOsobniCislo,
            changes.reassigned, supervisors.before,
            QT_TRANSLATE_N_NOOP("Text",
                                "The %1 of %Ln person(s) (%2 %) changes though the former one "
                                "still works in the same place; %3")},
           limits, reasons);
    return reasons;
}

} // namespace GateValues
