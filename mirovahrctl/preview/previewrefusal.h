#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QString>

#include <optional>

/// Why there is no preview.
struct PreviewRefusal {
    ExitStatus status = ExitStatus::NoDatabase;
    QString sentence; ///< without its full stop

    /// The refusal for a text of the plugin's log that says that the synchronisation did not take
    /// place, or did not read all of the export; nothing for any other text.
    static std::optional<PreviewRefusal> ofLog(const QString &text, const QString &exportFile);
};
