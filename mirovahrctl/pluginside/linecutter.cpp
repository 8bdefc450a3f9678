#include "mirovahrctl/pluginside/linecutter.h"

#include <utility>

LineCutter::LineCutter(Visitor visit)
    : m_visit(std::move(visit))
{
}

bool LineCutter::take(std::string_view block)
{
    size_t end = 0;
    while ((end = block.find('\n')) != std::string_view::npos) {
        if (!endLine(block.substr(0, end)))
            return false;
        block.remove_prefix(end + 1);
    }
    keep(block);
    return true;
}

void LineCutter::finish()
{
    if (!m_rest.empty())
        endLine({});
}

void LineCutter::keep(std::string_view part)
{
    m_rest.append(part.substr(0, kLongestLine - m_rest.size()));
}

bool LineCutter::endLine(std::string_view line)
{
    if (m_rest.empty())
        return m_visit(line.substr(0, kLongestLine));
    keep(line);
    const bool goesOn = m_visit(m_rest);
    m_rest.clear();
    return goesOn;
}
