#pragma once

#include "mirovahrctl/comparison/textpool.h"
#include "worker/exportline.h"
#include "worker/mirovaronrecord.h"

#include <QHash>
#include <QVector>

#include <array>

/// The people of two exports side by side. A person is an employment relationship: personal number
/// and relationship number. Of several lines about one person the last counts, as for the plugin.
///
/// Needs some 250 bytes for each person: texts that occur more than once are kept once, and so is a
/// line that is the same in both exports.
class ComparedPeople {
public:
    enum Side { Before, Now };

    /// Adds a line, which ends with a NUL byte. False when the plugin reads no person from it. The
    /// lines of the older export come first.
    bool add(Side side, const char *line);

    /// How many lines of an export the plugin reads as people.
    qint64 lines(Side side) const { return m_lines[side]; }

    /// How many of these lines are about a person of an earlier line of the same export.
    qint64 repetitions(Side side) const { return m_repetitions[side]; }

    /// Indexes of all people, ordered by their numbers.
    QVector<int> inOrder() const;
    /// The same people, ordered by their numbers.
    QVector<int> inOrder(QVector<int> people) const;

    bool isIn(Side side, int person) const { return m_people.at(person).rows[side] >= 0; }
    bool isInBoth(int person) const { return isIn(Before, person) && isIn(Now, person); }
    /// Whether the line is the same in both exports.
    bool isUnchanged(int person) const;

    /// The text of an ExportLine::Field. The person must be in the export.
    QString text(Side side, int person, int field) const;
    /// What the plugin reads. The person must be in the export.
    MirovaRonRecord record(Side side, int person) const;
    /// That of the newer export that has the person.
    MirovaRonRecord latest(int person) const;

private:
    using Row = std::array<quint32, ExportLine::kFieldCount>; ///< numbers of texts

    struct Person {
        quint64 key = 0;
        std::array<int, 2> rows{-1, -1}; ///< -1: not in that export
    };

    Row rowOf(const ExportLine::Parts &parts);
    int indexOf(quint64 key);

    TextPool m_texts;
    QVector<Row> m_rows;
    QVector<Person> m_people;
    QHash<quint64, int> m_indexes;
    std::array<qint64, 2> m_lines{};
    std::array<qint64, 2> m_repetitions{};
};
