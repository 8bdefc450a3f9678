#include "mirovahrctl/status/metrics.h"

#include "mirovahrctl/gatestate/gatestatus.h"
#include "mirovahrctl/status/statusassessment.h"
#include "mirovahrctl/status/statusdata.h"

#include <algorithm>
#include <optional>

namespace {

class MetricsText {
public:
    /// Begins a metric; its samples follow.
    void begin(const char *name, const char *help)
    {
        m_name = QByteArrayLiteral("mirovahr_") + name;
        m_text += "# TYPE " + m_name + " gauge\n# HELP " + m_name + ' ' + help + '\n';
    }

    void sample(qint64 value, const QByteArray &labels = {})
    {
        m_text += m_name + labels + ' ' + QByteArray::number(value) + '\n';
    }

    /// A metric with one sample, unless the value is not known.
    void add(const char *name, const char *help, const std::optional<qint64> &value)
    {
        if (!value)
            return;
        begin(name, help);
        sample(*value);
    }

    QByteArray finished() const { return m_text + "# EOF\n"; }

private:
    QByteArray m_name;
    QByteArray m_text;
};

void addDatabase(MetricsText &text, const StatusData &data)
{
    text.add("force_pending", "Whether a forced synchronisation is pending.", data.forced ? 1 : 0);
    text.add("active_people", "People who are switched on.", data.activePeople);
    text.add("person_created_timestamp_seconds", "When a person was created last.", data.created);
    text.add("person_edited_timestamp_seconds", "When the plugin last changed a person.",
             data.edited);
    text.add("balance_corrections_today", "Vacation balances corrected today.",
             data.correctionsToday);
    text.add("terminal_queue_entries", "Entries in the terminal queue.", data.queued);
    text.add("terminal_queue_oldest_timestamp_seconds",
             "When the oldest entry of the terminal queue was made.", data.oldestQueued);
}

void addGate(MetricsText &text, const GateStatus &gate)
{
    text.add("gate_refused", "Whether the gate refused the last file.", gate.isRefused() ? 1 : 0);
    text.add("gate_run_timestamp_seconds", "When the gate ran last.", gate.time());
    text.add("gate_admitted_timestamp_seconds", "When the gate last admitted a file.",
             gate.admittedTime());
    text.add("gate_admitted_lines", "Lines in the file that was admitted last.",
             gate.admittedLines());
    text.add("gate_lines_with_errors", "Lines with errors in the last file.",
             gate.linesWithErrors());
    text.add("gate_lines_with_warnings", "Lines with warnings and no errors in the last file.",
             gate.linesWithWarnings());
}

void addFindings(MetricsText &text, const StatusAssessment &assessment)
{
    const auto count = [&assessment](Severity severity) {
        return std::count_if(assessment.findings.cbegin(), assessment.findings.cend(),
                             [=](const Finding &one) { return one.severity == severity; });
    };
    text.begin("findings", "Findings of the status.");
    text.sample(count(Severity::Warning), "{severity=\"warning\"}");
    text.sample(count(Severity::Error), "{severity=\"error\"}");
}

} // namespace

QByteArray Metrics::text(const Sources &sources, bool complete)
{
    MetricsText text;
    text.add("status_success",
             "Whether the database, and the gate's status and the log where they are named, could "
             "be read.",
             complete ? 1 : 0);
    if (sources.data != nullptr)
        addDatabase(text, *sources.data);
    if (sources.gate != nullptr)
        addGate(text, *sources.gate);
    text.add("waiting_records",
             "Records that wait for a branch or a calendar group, by the log's last "
             "synchronisation.",
             sources.waitingRecords);
    if (sources.assessment != nullptr)
        addFindings(text, *sources.assessment);
    return text.finished();
}
