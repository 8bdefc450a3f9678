#include "mirovahrctl/report/rules.h"

#include "mirovahrctl/report/rules/checkconfigrules.h"
#include "mirovahrctl/report/rules/checkdbrules.h"
#include "mirovahrctl/report/rules/checkfilerules.h"
#include "mirovahrctl/report/rules/diffrules.h"
#include "mirovahrctl/report/rules/doctorrules.h"
#include "mirovahrctl/report/rules/driftrules.h"
#include "mirovahrctl/report/rules/explainrules.h"
#include "mirovahrctl/report/rules/forcerules.h"
#include "mirovahrctl/report/rules/gaterules.h"
#include "mirovahrctl/report/rules/logrules.h"
#include "mirovahrctl/report/rules/previewrules.h"
#include "mirovahrctl/report/rules/statusrules.h"

#include <iterator>

namespace {

template <std::size_t count> QVector<const Rule *> listOf(const Rule *const (&rules)[count])
{
    return QVector<const Rule *>(std::begin(rules), std::end(rules));
}

} // namespace

const QVector<RuleGroup> &ruleGroups()
{
    static const QVector<RuleGroup> groups{
        {"check-config", listOf(CheckConfigRules::kAll)},
        {"check-file", listOf(CheckFileRules::kAll)},
        {"diff", listOf(DiffRules::kAll)},
        {"check-db", listOf(CheckDbRules::kAll)},
        {"explain", listOf(ExplainRules::kAll), {"check-file"}},
        {"preview", listOf(PreviewRules::kAll)},
        {"drift", listOf(DriftRules::kAll)},
        {"gate", listOf(GateRules::kAll)},
        {"force", listOf(ForceRules::kAll)},
        {"status", listOf(StatusRules::kAll)},
        {"log", listOf(LogRules::kAll)},
        {"doctor",
         listOf(DoctorRules::kAll),
         {"check-config", "check-db", "check-file", "status", "drift"}},
    };
    return groups;
}
