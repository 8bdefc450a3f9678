#include "mirovahrctl/comparison/textpool.h"

#include <QHash>

namespace {

/// A power of two, as all numbers of slots.
constexpr size_t kFirstSlots = 1024;

} // namespace

quint32 TextPool::add(QStringView text)
{
    makeRoom();
    quint32 &slot = slotOf(text);
    if (slot == 0) {
        m_characters.append(text.utf16(), size_t(text.size()));
        m_ends.push_back(quint32(m_characters.size()));
        slot = quint32(m_ends.size());
    }
    return slot - 1;
}

QStringView TextPool::view(quint32 number) const
{
    const quint32 begin = number == 0 ? 0 : m_ends[number - 1];
    return {m_characters.data() + begin, qsizetype(m_ends[number] - begin)};
}

quint32 &TextPool::slotOf(QStringView text)
{
    const size_t mask = m_slots.size() - 1;
    size_t at = qHash(text) & mask;
    while (m_slots[at] != 0 && view(m_slots[at] - 1) != text)
        at = (at + 1) & mask;
    return m_slots[at];
}

/// At least half of the slots stay free, so that a text is near the place of its hash.
void TextPool::makeRoom()
{
    if (2 * (m_ends.size() + 1) <= m_slots.size())
        return;
    m_slots.assign(m_slots.empty() ? kFirstSlots : 2 * m_slots.size(), 0);
    for (quint32 number = 0; number < m_ends.size(); ++number)
        slotOf(view(number)) = number + 1;
}
