#include "mirovahrctl/preview/previewcard.h"

#include "cli/text.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

/// A sentence names so many terminals, days or administrators; the details name all of them.
constexpr int kMostThings = 3;

/// So many cards say everything themselves. Of 3,000 new people the page would have 2 MB.
constexpr int kMostWhole = 100;
/// So many people share a part, or a leading card.
constexpr int kFewestSharing = 5;

using Row = PreviewLine::Row;
using Lines = PreviewWords::Lines;

QString orNone(const QString &value)
{
    return value.isEmpty() ? Text::tr("none", "value of a field") : value;
}

/// The value that comes or goes, or both when it changes; empty when there is none.
QString valueOf(const PreviewLine &line)
{
    if (line.row == Row::Added)
        return line.after;
    if (line.row == Row::Removed)
        return line.before;
    if (line.before.isEmpty() && line.after.isEmpty())
        return QString();
    return QStringLiteral("%1 → %2").arg(orNone(line.before), orNone(line.after));
}

/// "surname: Nováková → Malá", "joins the branch Sklad, since 2026-01-01".
QString withValue(const PreviewLine &line)
{
    const QString value = valueOf(line);
    if (value.isEmpty())
        return line.text();
    return line.sentence.isEmpty() ? QStringLiteral("%1: %2").arg(line.text(), value)
                                   : line.sentence.arg(line.thing, value);
}

/// Whether the line is one column of a row that comes or goes as a whole.
bool isOfRow(const PreviewLine &line)
{
    return !line.isBookkeeping
        && (line.kind == PreviewKind::NewPeople
            || (line.kind == PreviewKind::Other && line.row != Row::Changed));
}

/// Whether one part of the sentence says both: columns of a row, or the same of two things.
bool belongTogether(const PreviewLine &a, const PreviewLine &b)
{
    if (a.kind != b.kind || a.row != b.row)
        return false;
    if (isOfRow(a))
        return isOfRow(b);
    return a.what == b.what && a.before == b.before && a.after == b.after && !a.thing.isEmpty();
}

/// Whether the card's heading says it already.
bool isInHeading(const PreviewLine &line)
{
    return line.kind == PreviewKind::NewPeople && line.isName && line.who.contains(line.after);
}

/// A column in the list of its row: "employed from 2024-05-01", "active".
QString columnText(const PreviewLine &line)
{
    const QString name = line.thing.isEmpty() ? line.what : line.thing;
    const QString value = valueOf(line);
    return line.isYes ? name : name + QLatin1Char(' ') + orNone(value);
}

/// "is created: employed from 2024-05-01, active", "new row: bid 1, note x".
QString rowText(const Lines &columns)
{
    QStringList texts;
    for (const PreviewLine &line : columns) {
        if (line.kind == PreviewKind::Other || !valueOf(line).isEmpty())
            texts += columnText(line);
    }
    const QString list = texts.join(QStringLiteral(", "));
    if (columns.constFirst().kind == PreviewKind::Other)
        return QString(columns.constFirst().what).replace(QLatin1String("%1"), list);
    return list.isEmpty() ? columns.constFirst().what
                          : QStringLiteral("%1: %2").arg(columns.constFirst().what, list);
}

/// Adds lines that say the same, of several things or of none.
void addThings(const Lines &lines, Card &card)
{
    const PreviewLine &first = lines.constFirst();
    QStringList things;
    for (const PreviewLine &line : lines)
        things += line.thing;
    const auto text = [&first](const QString &list) {
        PreviewLine line = first;
        line.thing = list;
        return withValue(line);
    };
    const QString comma = QStringLiteral(", ");
    const QString whole = text(things.join(comma));
    if (first.isBookkeeping) {
        card.details += whole;
    } else if (things.size() <= kMostThings) {
        card.what += whole;
    } else {
        const QString few = QStringList(things.mid(0, kMostThings)).join(comma);
        card.what +=
            text(Text::tr("%1 and %Ln more", nullptr, things.size() - kMostThings).arg(few));
        card.details += whole;
    }
}

/// Takes the first line, and all that belong to it, out of \a lines.
Lines takeFirst(Lines &lines)
{
    const PreviewLine first = lines.constFirst();
    const auto end =
        std::stable_partition(lines.begin(), lines.end(), [&first](const PreviewLine &line) {
            return belongTogether(first, line);
        });
    // A line about no thing belongs to no other one, not even to itself.
    const int count = std::max(1, static_cast<int>(end - lines.begin()));
    const Lines taken = lines.mid(0, count);
    lines.remove(0, count);
    return taken;
}

/// Cards that share parts.
struct Sharing {
    QStringList what;
    QStringList details;
    QVector<const Card *> cards;
};

class Gathering {
public:
    explicit Gathering(const QVector<Card> &cards)
    {
        for (const Card &card : cards) {
            for (const QString &part : card.what + card.details)
                ++m_counts[part];
        }
        for (const Card &card : cards)
            add(card);
    }

    QVector<Card> cards() const
    {
        QVector<Card> whole;
        QVector<Card> led;
        for (const Sharing &sharing : m_sharings) {
            const bool isLed = sharing.cards.size() >= kFewestSharing;
            if (isLed)
                led += leading(sharing);
            for (const Card *const card : sharing.cards) {
                if (isLed)
                    led += remainder(*card);
                else
                    whole += *card;
            }
        }
        return whole + led; // nothing shows where the last cards that are led end
    }

private:
    void add(const Card &card)
    {
        const QStringList what = selected(card.what, true);
        const QStringList details = selected(card.details, true);
        const QString key =
            what.join(QChar::LineFeed) + QChar::Null + details.join(QChar::LineFeed);
        const auto position = m_positions.constFind(key);
        if (position != m_positions.constEnd()) {
            m_sharings[*position].cards += &card;
            return;
        }
        m_positions.insert(key, m_sharings.size());
        m_sharings.append({what, details, {&card}});
    }

    static Card leading(const Sharing &sharing)
    {
        return {Text::tr("Each of these %Ln people", nullptr, sharing.cards.size()), sharing.what,
                sharing.details, true};
    }

    Card remainder(const Card &card) const
    {
        return {card.who, selected(card.what, false), selected(card.details, false)};
    }

    /// The parts that are shared, or the others.
    QStringList selected(const QStringList &parts, bool isShared) const
    {
        QStringList selection;
        for (const QString &part : parts) {
            if ((m_counts.value(part) >= kFewestSharing) == isShared)
                selection += part;
        }
        return selection;
    }

    QHash<QString, int> m_counts; ///< of people, by part
    QVector<Sharing> m_sharings;
    QHash<QString, int> m_positions; ///< in m_sharings, by what they share
};

} // namespace

QVector<Card> gathered(const QVector<Card> &cards)
{
    return cards.size() <= kMostWhole ? cards : Gathering(cards).cards();
}

Card previewCard(const PreviewWords::Lines &lines)
{
    Card card;
    card.who = lines.constFirst().who;
    Lines rest;
    std::remove_copy_if(lines.cbegin(), lines.cend(), std::back_inserter(rest), isInHeading);
    while (!rest.isEmpty()) {
        const Lines part = takeFirst(rest);
        if (isOfRow(part.constFirst()))
            card.what += rowText(part);
        else
            addThings(part, card);
    }
    return card;
}
