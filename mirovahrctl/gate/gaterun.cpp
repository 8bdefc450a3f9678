#include "mirovahrctl/gate/gaterun.h"

#include "cli/text.h"
#include "mirovahrctl/export/rejectswriter.h"
#include "mirovahrctl/gate/gatereport.h"
#include "mirovahrctl/gatestate/gatecopies.h"
#include "mirovahrctl/gatestate/gateoptions.h"
#include "mirovahrctl/program/commandline.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/program/report.h"

#include <QFileInfo>

namespace {

constexpr mode_t kForOwner = 0600;
constexpr mode_t kForGroup = 0640;

QStringList messages(const QVector<GateReason> &reasons)
{
    QStringList messages;
    for (const GateReason &reason : reasons)
        messages << reason.finding.message;
    return messages;
}

} // namespace

GateRun::GateRun(const CommandLine &line, const GateOptions &options, Report &report,
                 Console &console)
    : m_line(line)
    , m_options(options)
    , m_console(console)
    , m_report(report)
    , m_publication(options.to, options.texts)
    , m_source(options.from)
    , m_copy(m_folder, GateCopies::lastAdmitted(), kForOwner)
    , m_rejects(m_rejectsFolder, QFileInfo(options.rejects).fileName(), kForGroup)
    , m_examination(m_folder, options.texts, console)
{
}

ExitStatus GateRun::run()
{
    if (const auto end = openFolders())
        return *end;
    if (const auto end = takeFile())
        return *end;
    if (const auto end = examine())
        return *end;
    return decide();
}

std::optional<ExitStatus> GateRun::openFolders()
{
    if (!m_folder.openPrivate(m_options.stateFolder))
        return fail(m_folder.errorString());
    if (const auto end = lock())
        return end;
    if (!m_folder.removeLeftovers(GateCopies::lastAdmitted())
        || !m_folder.removeLeftovers(GateStatus::fileName()) || !m_status.load(m_folder))
        return fail(m_folder.errorString());
    const QFileInfo rejects(m_options.rejects);
    const bool isOpen = m_line.isSet("rejects") ? m_rejectsFolder.open(rejects.path())
                                                : m_rejectsFolder.openAgain(m_folder);
    if (!isOpen || !m_rejectsFolder.removeLeftovers(rejects.fileName()))
        return fail(m_rejectsFolder.errorString());
    if (!m_publication.open())
        return fail(m_publication.errorString());
    m_wasTaken = m_publication.isTaken();
    return std::nullopt;
}

std::optional<ExitStatus> GateRun::lock()
{
    switch (m_folder.lock(QStringLiteral("lock"))) {
    case GateFolder::Lock::Taken:
        m_isLocked = true;
        return std::nullopt;
    case GateFolder::Lock::Busy:
        return report(false, {GateAssessment::busy()});
    case GateFolder::Lock::Failed:
        return fail(m_folder.errorString());
    }
    Q_UNREACHABLE();
}

std::optional<ExitStatus> GateRun::takeFile()
{
    if (const auto end = openSource())
        return end;
    if (!m_copy.create())
        return fail(m_copy.errorString());
    m_source.copyTo(m_copy.device());
    if (m_source.hasReadError())
        return fail(m_source.errorString());
    if (!m_copy.finish())
        return fail(m_copy.errorString());
    if (m_source.hasChanged())
        return refuse({GateAssessment::changedMeanwhile()});
    return std::nullopt;
}

std::optional<ExitStatus> GateRun::openSource()
{
    switch (m_source.open()) {
    case GateSource::Outcome::Done:
        break;
    case GateSource::Outcome::Missing:
        return refuse({GateAssessment::missing(m_options.from)});
    case GateSource::Outcome::Failed:
        return fail(m_source.errorString());
    }
    if (m_source.isTooLong())
        return refuse({GateAssessment::tooLong()});
    if (m_options.settleSeconds > 0 && m_source.age() < m_options.settleSeconds)
        return refuse({GateAssessment::justWritten(m_options.settleSeconds)});
    return std::nullopt;
}

std::optional<ExitStatus> GateRun::examine()
{
    RejectsWriter rejects(m_rejects.device(), QFileInfo(m_options.from).fileName());
    if (!m_rejects.create())
        return fail(m_rejects.errorString());
    rejects.begin();
    if (!m_examination.run(m_copy.temporaryName(), GateCopies::lastAdmitted(), rejects))
        return fail(m_examination.errorString());
    rejects.end();
    if (!m_rejects.finish() || !m_rejects.putInPlace())
        return fail(m_rejects.errorString());
    m_isExamined = true;
    const ExportScan::Counts &counts = m_examination.facts().counts;
    m_status.setLines(counts.rejected, counts.warned);
    return std::nullopt;
}

ExitStatus GateRun::decide()
{
    // A file that was admitted once is admitted again, also one that needed --accept.
    const QVector<GateReason> reasons = m_examination.isUnchanged()
        ? QVector<GateReason>()
        : GateAssessment::assess(m_examination.facts(), m_options.limits, m_options.mayEndOpen);
    if (!reasons.isEmpty() && !(m_options.accept && mayAllBeOverridden(reasons)))
        return refuse(reasons);
    const ExitStatus status = admit(messages(reasons));
    return status == ExitStatus::Fine ? report(true, reasons) : status;
}

ExitStatus GateRun::admit(const QStringList &overridden)
{
    if (!m_publication.prepare(m_folder, m_copy.temporaryName()))
        return fail(m_publication.errorString());
    if (!makeLast())
        return fail(m_error);
    const bool isSafe = m_publication.publish();
    if (m_publication.isPublished() && !recordAdmission(overridden))
        return fail(m_error);
    if (!isSafe)
        return fail(m_publication.errorString());
    if (!GateCopies(m_folder).prune(m_options.copies))
        return fail(m_folder.errorString());
    return ExitStatus::Fine;
}

bool GateRun::makeLast()
{
    if (m_examination.isUnchanged())
        return m_copy.discard() || keepError(m_copy.errorString());
    if (!GateCopies(m_folder).add(m_copy.temporaryName(), QDateTime::currentDateTime()))
        return keepError(m_folder.errorString());
    return m_copy.putInPlace() || keepError(m_copy.errorString());
}

bool GateRun::recordAdmission(const QStringList &overridden)
{
    const GateStatus::Admission admission{QFileInfo(m_options.from).absoluteFilePath(),
                                          m_examination.facts().counts.lines, m_source.modified(),
                                          overridden, m_options.texts};
    if (m_examination.isUnchanged())
        m_status.admitAgain(admission);
    else
        m_status.admit(admission);
    return m_status.write(m_folder, m_error);
}

ExitStatus GateRun::refuse(const QVector<GateReason> &reasons)
{
    m_status.refuse(messages(reasons));
    if (!m_copy.discard())
        return fail(m_copy.errorString());
    if (!m_status.write(m_folder, m_error))
        return fail(m_error);
    return report(false, reasons);
}

ExitStatus GateRun::report(bool isAdmitted, const QVector<GateReason> &reasons)
{
    m_report.begin(m_line.subcommand(),
                   Text::tr("Gate from %1 to %2").arg(m_options.from, m_options.to));
    GateReport gateReport;
    gateReport.isAdmitted = isAdmitted;
    gateReport.isUnchanged = m_examination.isUnchanged();
    gateReport.wasTaken = m_wasTaken;
    gateReport.facts = m_isExamined ? &m_examination.facts() : nullptr;
    gateReport.people = &m_examination.people();
    gateReport.rejects = m_options.rejects;
    gateReport.reasons = reasons;
    return gateReport.writeTo(m_report);
}

bool GateRun::keepError(const QString &error)
{
    m_error = error;
    return false;
}

ExitStatus GateRun::fail(const QString &sentence)
{
    const QString outcome = m_publication.isPublished()
        ? Text::tr("The file was published nevertheless")
        : Text::tr("Nothing was published");
    if (m_isLocked && !m_publication.isPublished()) {
        QString ignored;
        m_status.refuse({sentence});
        m_status.write(m_folder, ignored);
    }
    return m_console.fail(ExitStatus::Usage, QStringLiteral("%1. %2").arg(sentence, outcome));
}
