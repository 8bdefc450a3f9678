#include "mirovahrctl/preview/syncfailure.h"

namespace {

struct Failure {
    const char *beginning; ///< of what the plugin logs
    ExitStatus status;
    const char *sentence; ///< has one place for the text of the log
};

/// Each other failure concerns single people, and the plugin goes on: what it does then is what the
/// preview is to show.
constexpr Failure kFailures[] = {
    {"MHRWorker::dbCheckOpen() - SQL ERROR", ExitStatus::NoDatabase,
     "The plugin cannot open the copy. It logs \"%1\""},
    {"MHRWorker::dbLoadPeople() - SQL ERROR", ExitStatus::ContractBroken,
     "The plugin cannot load the people of this database and would synchronise nobody. It logs "
     "\"%1\". check-db tells more"},
    {"MHRWorker::dbLoadBranches() - SQL ERROR", ExitStatus::ContractBroken,
     "The plugin cannot load the branches of this database and would leave everybody whom it "
     "writes without one. It logs \"%1\". check-db tells more"},
};

/// The export is to be kept, so the plugin complains of no file but one that it cannot read.
constexpr char kComplaintOfExport[] = "MHRWorker::loadAndParseData() - file '";

PreviewRefusal unreadable(const QString &exportFile, const QString &text)
{
    return {ExitStatus::Usage,
            QStringLiteral("'%1' cannot be read to its end: the plugin would log \"%2\"")
                .arg(exportFile, text)};
}

} // namespace

SyncFailure::SyncFailure(const QString &exportFile)
    : m_exportFile(exportFile)
{
}

void SyncFailure::see(const QString &text)
{
    if (!m_refusal && text.startsWith(QLatin1String(kComplaintOfExport)))
        m_refusal = unreadable(m_exportFile, text);
    for (const Failure &failure : kFailures) {
        if (!m_refusal && text.startsWith(QLatin1String(failure.beginning)))
            m_refusal = {failure.status, QString::fromLatin1(failure.sentence).arg(text)};
    }
}
