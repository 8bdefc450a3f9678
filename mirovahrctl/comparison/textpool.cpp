#include "mirovahrctl/comparison/textpool.h"

quint32 TextPool::add(const QString &text)
{
    const auto found = m_numbers.constFind(text);
    if (found != m_numbers.constEnd())
        return *found;
    const auto number = quint32(m_texts.size());
    m_numbers.insert(text, number);
    m_texts.append(text);
    return number;
}
