#pragma once

#include "mirovahrctl/log/logtext.h"

#include <QByteArray>
#include <QVector>

#include <array>
#include <string_view>
#include <vector>

/// The values of a line in the order of its pattern, as bytes of the line.
using LogValues = std::array<std::string_view, 6>;

/// One way in which a text of the plugin appears in a line.
class LogPattern {
public:
    enum class Level { Debug, Info, Warning, Critical };

    enum class Fit {
        None,
        Cut, ///< the line agrees as far as it goes
        Whole,
    };

    /// All patterns of a text; \a text must live as long as they do.
    static std::vector<LogPattern> of(const LogText &text);

    const LogText &text() const { return *m_text; }
    Level level() const { return m_level; }
    bool isProblem() const { return m_level >= Level::Warning; }
    /// The lowest debug level at which the line appears; 0 for a line that always does.
    int debugLevel() const { return m_debugLevel; }
    /// The text's own values, behind which those of the form come.
    int ownValues() const { return m_ownValues; }
    /// How much of a line it determines: of two patterns that fit, the one with more is meant.
    int weight() const { return m_weight; }
    /// What the line begins with, up to its first value.
    const QByteArray &head() const { return m_pieces.front().literal; }

    /// Compares the line from the text's first character on; finds the values of a whole one.
    Fit match(std::string_view line, LogValues &values) const;

private:
    /// A literal, and the kind of the value behind it: 'u', 'i' or 's'; 0 at the end.
    struct Piece {
        QByteArray literal;
        char value = 0;
    };

    LogPattern(const LogText &text, const QByteArray &format, Level level);
    /// Finds the value behind a literal in the rest of the line.
    Fit findValue(size_t piece, std::string_view rest, std::string_view &value) const;

    const LogText *m_text;
    Level m_level;
    int m_debugLevel = 0;
    int m_ownValues = 0;
    int m_weight = 0;
    std::vector<Piece> m_pieces;
};
