#pragma once

#include "mirovahrctl/preview/previewrefusal.h"

#include <QString>

#include <optional>

/// Finds in the plugin's log why a synchronisation did not take place, or not with all of the
/// export.
class SyncFailure {
public:
    explicit SyncFailure(const QString &exportFile);

    /// Takes one text of the log.
    void see(const QString &text);

    /// Why there is nothing to preview; nothing when the synchronisation took place.
    std::optional<PreviewRefusal> refusal() const { return m_refusal; }

private:
    const QString m_exportFile;
    std::optional<PreviewRefusal> m_refusal;
};
