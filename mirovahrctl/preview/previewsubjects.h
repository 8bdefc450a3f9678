#pragma once

#include "mirovahrctl/preview/previewwords.h"

#include <QHash>
#include <QString>
#include <QVector>

struct Card;

/// The differences of a preview by whom or what they concern.
class PreviewSubjects {
public:
    enum class Group {
        New, ///< people who are created
        Changed, ///< people in whom something changes that HR would recognise
        Bookkeeping, ///< other people whom a difference concerns
        Thing, ///< what is no person
    };

    void add(const PreviewLine &line);

    /// The number of people or things of a group.
    int count(Group group) const;
    /// The cards of a group, in the order in which they were added.
    QVector<Card> cards(Group group) const;
    /// The cards of the things whose first difference is of the kind.
    QVector<Card> thingCards(PreviewKind kind) const;

private:
    struct Subject {
        PreviewWords::Lines lines;
        Group group = Group::Bookkeeping;
    };

    QVector<Subject> m_subjects;
    QHash<QString, int> m_positions; ///< in m_subjects
};
