#pragma once

#include <QtGlobal>

#include <optional>
#include <string_view>

/// How many records wait for a branch or a calendar group, as the plugin's log says at the end of
/// each synchronisation.
class WaitingRecords {
public:
    /// Takes the lines of a log in their order, with whatever stands before the plugin's text.
    void take(std::string_view line);

    /// By the last synchronisation; nothing when the log does not tell, or when the plugin was
    /// loaded since: then it knows of none until the next synchronisation.
    std::optional<qint64> count() const { return m_count; }

private:
    std::optional<qint64> m_count;
};
