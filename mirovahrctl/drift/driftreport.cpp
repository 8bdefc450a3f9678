#include "mirovahrctl/drift/driftreport.h"

#include "cli/text.h"
#include "mirovahrctl/gatestate/siteexport.h"
#include "mirovahrctl/pluginside/pluginconfiguration.h"
#include "mirovahrctl/program/report.h"
#include "mirovahrctl/report/finding.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/rules/driftrules.h"
#include "mirovahrctl/report/wording.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

using namespace DriftRules;

constexpr int kMostRules = 8;

/// How a difference can be mended, and the rules of those that can be mended so.
struct Remedy {
    const char *id;
    const char *heading;
    const char *sentence;
    const char *verdict; ///< with a place for their number
    const Rule *rules[kMostRules];
};

constexpr Remedy kRemedies[] = {
    {"next",
     QT_TRANSLATE_NOOP("Text", "What the next synchronisation may bring"),
     QT_TRANSLATE_NOOP("Text",
                       "The plugin does not say which balances it will compare again by itself."),
     QT_TRANSLATE_NOOP("Text", "%1 by the next or a forced synchronisation"),
     {&kBalanceDiffers}},
    {"force",
     QT_TRANSLATE_NOOP("Text", "What a forced synchronisation brings"),
     QT_TRANSLATE_NOOP("Text",
                       "Run mirovahrctl force with the same export, and drift again afterwards. "
                       "The next export brings these only for people whose lines change."),
     QT_TRANSLATE_NOOP("Text", "%1 by a forced synchronisation"),
     {&kPersonMissing, &kPersonDiffers, &kNotMember, &kGroupNotPlanned}},
    {"start",
     QT_TRANSLATE_NOOP("Text", "What the next start of the attendance server brings"),
     QT_TRANSLATE_NOOP("Text",
                       "A forced synchronisation does not bring these. The statements of --sql "
                       "mend them at once."),
     QT_TRANSLATE_NOOP("Text", "%1 by the next start of the attendance server or --sql"),
     {&kSupervisorMissing, &kSupervisorOther, &kEmploymentType}},
    {"never",
     QT_TRANSLATE_NOOP("Text", "What never comes by itself"),
     QT_TRANSLATE_NOOP("Text", "The plugin does this only once. The statements of --sql mend it."),
     QT_TRANSLATE_NOOP("Text", "%1 only by --sql"),
     {&kPayrollSelection, &kPayrollBinding, &kTerminalMissing, &kTerminalNotMarked,
      &kAdministratorMissing, &kMonthsDiffer}},
};

bool isMendedBy(const Drift &drift, const Remedy &remedy)
{
    return std::find(std::begin(remedy.rules), std::end(remedy.rules), drift.rule)
        != std::end(remedy.rules);
}

} // namespace

DriftReport::DriftReport(const QVector<Drift> &found, Report &report)
    : m_found(found)
    , m_report(report)
{
}

void DriftReport::writeDifferences()
{
    for (int i = 0; i < int(std::size(kRemedies)); ++i) {
        const Remedy &remedy = kRemedies[i];
        m_report.fact(QString::fromLatin1(remedy.id), Text::tr(remedy.heading), countOf(i));
        if (countOf(i) == 0)
            continue;
        m_report.section(QString::fromLatin1(remedy.id), Text::tr(remedy.heading));
        m_report.sentence(Text::tr(remedy.sentence));
        for (const Drift &drift : m_found) {
            if (!isMendedBy(drift, remedy))
                continue;
            Finding finding = makeFinding(*drift.rule, drift.message);
            finding.subject = drift.subject;
            m_report.finding(finding);
        }
    }
}

void DriftReport::writeLimits(const PluginConfiguration &configuration, const SiteExport &source,
                              int waiting, int leftOut, bool isForced)
{
    m_report.section(QStringLiteral("limits"), Text::tr("What is left out"));
    m_report.sentence(configuration.origin());
    m_report.sentence(Text::tr("The export is %1.").arg(source.path()));
    if (!configuration.values().enabled)
        m_report.add(kDisabled, Text::tr("The plugin is disabled in the configuration."));
    if (configuration.values().testMode)
        m_report.add(kTestMode,
                     Text::tr("Test mode is on: people are only logged, not "
                              "written."));
    writePending(configuration, source, isForced);
    writeLeftOut(leftOut);
    if (waiting > 0) {
        m_report.sentence(
            Text::tr("The database lacks the branch or calendar group of %Ln person(s). The plugin "
                     "tries again at every synchronisation in which their lines are the same.",
                     nullptr, waiting));
    }
    m_report.sentence(Text::tr(
        "The database does not say who changed it: what somebody removed or changed by hand looks "
        "like what the plugin has lost. Of people who have left, only personal data are compared; "
        "of people who are not in the export, nothing is."));
    m_report.sentence(Text::tr(
        "Not visible in the database are: changes of people that were not queued for their "
        "terminals, days of attendance that were not marked to be calculated again, and, in the "
        "selection of the payroll export, people who are not in the export."));
}

void DriftReport::writePending(const PluginConfiguration &configuration, const SiteExport &source,
                               bool isForced)
{
    if (isForced)
        m_report.add(kSynchronisationPending, Text::tr("A forced synchronisation is pending."));
    if (configuration.values().deleteFile && QFileInfo::exists(source.importFile())) {
        m_report.add(
            kSynchronisationPending,
            Text::tr("The plugin has not read the export %1 yet.").arg(source.importFile()));
    }
}

void DriftReport::writeLeftOut(int leftOut)
{
    if (leftOut > 0) {
        m_report.add(kLeftOut,
                     Text::tr("Left out: %Ln person(s) whose line has an error, who have several "
                              "lines, or whose payroll id and pid do not belong together.",
                              nullptr, leftOut));
    }
}

int DriftReport::countOf(int remedy) const
{
    return int(std::count_if(m_found.cbegin(), m_found.cend(), [remedy](const Drift &drift) {
        return isMendedBy(drift, kRemedies[remedy]);
    }));
}

QString DriftReport::verdict() const
{
    if (m_found.isEmpty()) {
        return Text::tr(
            "The database holds what the export says of the people that were compared.");
    }
    QStringList parts;
    for (int i = 0; i < int(std::size(kRemedies)); ++i) {
        const int count = countOf(i);
        if (count > 0)
            parts += Text::tr(kRemedies[i].verdict).arg(Language::number(count));
    }
    return Text::tr("%Ln difference(s), to be mended: %1.", nullptr, m_found.size())
        .arg(parts.join(QStringLiteral(", ")));
}

QString DriftReport::statements() const
{
    QString statements;
    for (const Drift &drift : m_found) {
        if (drift.sql.isEmpty())
            continue;
        // One line, whatever characters a name has.
        statements += QStringLiteral("-- %1: %2\n")
                          .arg(Wording::visible(drift.subject), Wording::visible(drift.message));
        statements += drift.sql;
    }
    return statements;
}
