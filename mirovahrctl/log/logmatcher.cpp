#include "mirovahrctl/log/logmatcher.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace {

/// No name is longer; a line of any bytes must not take long.
constexpr size_t kLongestFunction = 80;

/// A shorter beginning of a text is not taken for one.
constexpr size_t kShortestCut = 12;

/// What only the plugin's own lines begin with.
constexpr std::string_view kOwnBeginnings[] = {"MHRWorker: ", "MHRWorker::", "MHRWorker - "};

bool isLetter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

/// "MHRWorker::checkSync" of "MHRWorker::checkSync(): #1".
std::string_view nameOf(std::string_view text)
{
    size_t end = 0;
    while (end < text.size() && end < kLongestFunction && (isLetter(text[end]) || text[end] == ':'))
        ++end;
    return text.substr(0, end);
}

bool beginsLikeThePlugin(std::string_view text)
{
    return std::any_of(std::begin(kOwnBeginnings), std::end(kOwnBeginnings),
                       [text](std::string_view beginning) {
                           return text.substr(0, beginning.size()) == beginning;
                       });
}

std::string_view withoutEnd(std::string_view line)
{
    while (!line.empty() && std::isspace(static_cast<unsigned char>(line.back())) != 0)
        line.remove_suffix(1);
    return line;
}

} // namespace

LogMatcher::LogMatcher()
{
    for (const LogTextGroup &group : logTextGroups()) {
        for (const LogText &text : group.texts) {
            for (const LogPattern &pattern : LogPattern::of(text))
                m_patterns.push_back(pattern);
        }
    }
    for (const LogPattern &pattern : m_patterns) {
        const std::string_view name =
            nameOf({pattern.head().constData(), size_t(pattern.head().size())});
        m_byName[std::string(name)].push_back(&pattern);
        m_begins[static_cast<unsigned char>(name.front())] = true;
    }
    for (auto &named : m_byName) {
        std::sort(
            named.second.begin(), named.second.end(),
            [](const LogPattern *a, const LogPattern *b) { return a->weight() > b->weight(); });
    }
}

LogMatcher::Outcome LogMatcher::find(std::string_view line, LoggedText &message) const
{
    line = withoutEnd(line);
    for (size_t i = 0; i < line.size(); ++i) {
        if (!m_begins[static_cast<unsigned char>(line[i])] || (i > 0 && isLetter(line[i - 1])))
            continue;
        const Outcome outcome = findAt(line.substr(i), message);
        if (outcome != Outcome::Foreign) {
            message.prefix = line.substr(0, i);
            return outcome;
        }
    }
    return Outcome::Foreign;
}

LogMatcher::Outcome LogMatcher::findAt(std::string_view text, LoggedText &message) const
{
    const std::string_view name = nameOf(text);
    const auto named = m_byName.find(std::string(name));
    const Outcome otherwise = beginsLikeThePlugin(text) ? Outcome::Unknown : Outcome::Foreign;
    if (named == m_byName.end())
        return otherwise;
    message.text = text;
    const LogPattern *cut = nullptr;
    int cuts = 0;
    for (const LogPattern *const pattern : named->second) {
        message.values = {};
        const LogPattern::Fit fit = pattern->match(text, message.values);
        message.pattern = pattern;
        if (fit == LogPattern::Fit::Whole)
            return Outcome::Found;
        if (fit == LogPattern::Fit::Cut) {
            cut = pattern;
            ++cuts;
        }
    }
    // Only the beginning of a text is there: it tells enough when it is that of no other text.
    if (cuts != 1 || text.size() < kShortestCut)
        return otherwise;
    message.values = {};
    cut->match(text, message.values);
    message.pattern = cut;
    return Outcome::Found;
}
