#pragma once

#include <functional>
#include <string>
#include <string_view>

/// Cuts a log that comes in blocks into lines.
class LineCutter {
public:
    /// Bytes of a line; the rest of a longer one is left out.
    static constexpr size_t kLongestLine = size_t(64) * 1024;

    /// Gets a line without its line feed. Returns whether to go on.
    using Visitor = std::function<bool(std::string_view line)>;

    explicit LineCutter(Visitor visit);

    /// Visits the lines that end in the block. False when the visitor does not want to go on.
    bool take(std::string_view block);

    /// Visits the last line when it has no line feed: nothing more comes of it.
    void finish();

private:
    void keep(std::string_view part);
    bool endLine(std::string_view line);

    const Visitor m_visit;
    std::string m_rest; ///< the beginning of a line that has not ended
};
