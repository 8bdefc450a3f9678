#include "mirovahrctl/preview/previewrefusal.h"

#include "cli/text.h"

namespace {

struct Failure {
    const char *beginning; ///< of what the plugin logs
    ExitStatus status;
    const char *sentence; ///< with a placeholder for the text of the log
};

/// Any other failure concerns single people, and the plugin goes on: the preview shows what it does
/// then.
constexpr Failure kFailures[] = {
    {"MHRWorker::dbCheckOpen() - SQL ERROR", ExitStatus::NoDatabase,
     QT_TRANSLATE_NOOP("Text", "The plugin cannot open the copy. It logs \"%1\"")},
    {"MHRWorker::dbLoadPeople() - SQL ERROR", ExitStatus::ContractBroken,
     QT_TRANSLATE_NOOP("Text",
                       "The plugin cannot load the people of this database and would synchronise "
                       "nobody. It logs \"%1\". Run check-db for details")},
    {"MHRWorker::dbLoadBranches() - SQL ERROR", ExitStatus::ContractBroken,
     QT_TRANSLATE_NOOP("Text",
                       "The plugin cannot load the branches of this database; everybody whom it "
                       "writes would lose the branch. It logs \"%1\". Run check-db for details")},
};

/// A preview keeps the export, so the plugin names it only when it cannot read it.
constexpr char kUnreadableExport[] = "MHRWorker::loadAndParseData() - file '";

} // namespace

std::optional<PreviewRefusal> PreviewRefusal::ofLog(const QString &text, const QString &exportFile)
{
    if (text.startsWith(QLatin1String(kUnreadableExport))) {
        return PreviewRefusal{
            ExitStatus::Usage,
            Text::tr("'%1' cannot be read to its end: the plugin would log \"%2\"")
                .arg(exportFile, text)};
    }
    for (const Failure &failure : kFailures) {
        if (text.startsWith(QLatin1String(failure.beginning)))
            return PreviewRefusal{failure.status, Text::tr(failure.sentence).arg(text)};
    }
    return std::nullopt;
}
