#include "mirovahrctl/preview/previewsubjects.h"

#include "mirovahrctl/preview/previewcard.h"

#include <algorithm>

namespace {

using Group = PreviewSubjects::Group;

Group groupOf(const PreviewLine &line)
{
    if (line.uid == 0)
        return Group::Thing;
    if (line.kind == PreviewKind::NewPeople)
        return Group::New;
    return line.isBookkeeping ? Group::Bookkeeping : Group::Changed;
}

} // namespace

void PreviewSubjects::add(const PreviewLine &line)
{
    // Two people may have the same payroll id and name.
    const QString key = line.uid != 0 ? QString::number(line.uid) : QLatin1Char(' ') + line.who;
    const auto position = m_positions.constFind(key);
    if (position == m_positions.constEnd()) {
        m_positions.insert(key, m_subjects.size());
        m_subjects.append({{line}, groupOf(line)});
        return;
    }
    Subject &subject = m_subjects[*position];
    subject.lines += line;
    subject.group = std::min(subject.group, groupOf(line));
}

int PreviewSubjects::count(Group group) const
{
    return static_cast<int>(
        std::count_if(m_subjects.cbegin(), m_subjects.cend(),
                      [group](const Subject &subject) { return subject.group == group; }));
}

QVector<Card> PreviewSubjects::cards(Group group) const
{
    QVector<Card> cards;
    for (const Subject &subject : m_subjects) {
        if (subject.group == group)
            cards += previewCard(subject.lines);
    }
    return cards;
}

QVector<Card> PreviewSubjects::thingCards(PreviewKind kind) const
{
    QVector<Card> cards;
    for (const Subject &subject : m_subjects) {
        if (subject.group == Group::Thing && subject.lines.constFirst().kind == kind)
            cards += previewCard(subject.lines);
    }
    return cards;
}
