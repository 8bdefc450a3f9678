#pragma once

#include "mirovahrctl/log/logpattern.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// A line of the plugin. The views point into the line.
struct LoggedText {
    const LogPattern *pattern = nullptr;
    std::string_view prefix; ///< what stands before the text
    std::string_view text;
    LogValues values; ///< empty where the line is cut
};

/// Finds the plugin's texts in the lines of a log, whatever stands before them.
class LogMatcher {
public:
    LogMatcher();

    enum class Outcome {
        Foreign, ///< the line is not of the plugin
        Unknown, ///< it begins like a line of the plugin, and is none of its texts
        Found,
    };

    /// Finds the text of a line without its line feed.
    Outcome find(std::string_view line, LoggedText &message) const;

private:
    Outcome findAt(std::string_view text, LoggedText &message) const;

    std::vector<LogPattern> m_patterns;
    /// By the names that they begin with; those that determine more come first.
    std::unordered_map<std::string, std::vector<const LogPattern *>> m_byName;
    std::array<bool, 256> m_begins = {}; ///< whether a name begins with this character
};
