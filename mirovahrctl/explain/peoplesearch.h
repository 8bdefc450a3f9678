#pragma once

#include "mirovahrctl/explain/personid.h"
#include "mirovahrctl/export/sqltexts.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

class Console;
class MirovaRonRecord;
class QFile;
class Report;
class SqlSession;

/// Somebody whom a PeopleSearch has found.
struct FoundPerson {
    quint32 osobniCislo = 0; ///< 0 with poradoveCisloPP: known by the pid only
    quint32 poradoveCisloPP = 0;
    quint32 pid = 0;
    QString name;
    qint64 line = 0; ///< the first line of the export that names the person; 0: none
    std::optional<bool> active; ///< the row of `people`; nothing: there is none

    /// The id that names exactly this person; nothing when no line and no row has a number.
    std::optional<PersonId> person() const;
};

/// Searches the export and the database for the people whom a name or a number may mean. A number
/// is a personal number or a pid. A name is one or more words, each of which is a word of the
/// person's name or title; capital letters and accents do not matter.
class PeopleSearch {
public:
    /// Maximum number of people that are kept.
    static constexpr int kMost = 100;

    /// Nothing when the text is neither a number above 0 nor contains a letter.
    static std::optional<PeopleSearch> parse(const QString &text);

    /// \a route: how the texts of the export get into the database. False when it cannot be read to
    /// its end; errorString() then says why, a part of a sentence without its full stop. The file
    /// is at its beginning afterwards.
    bool searchExport(QFile &file, const SqlTexts::Route &route, Console &console);
    QString errorString() const { return m_error; }
    /// Errors are those of the session.
    void searchDatabase(SqlSession &site);

    /// The text that was searched for.
    QString text() const { return m_text; }
    /// Sorted by personal number and relationship number.
    QVector<FoundPerson> people() const;
    /// Whether more people match than are kept.
    bool hasMore() const { return m_hasMore; }
    /// Lists the people, for a search that has not found exactly one. Returns the verdict in one
    /// sentence.
    QString reportPeople(Report &report) const;

private:
    void examine(const QString &line, qint64 number, Backslash backslash);
    void examineRow(const QStringList &row);
    bool matches(const FoundPerson &person) const;
    void add(const FoundPerson &person);

    QString m_text;
    quint32 m_number = 0; ///< 0: a name
    QStringList m_words;
    QVector<FoundPerson> m_people;
    bool m_hasMore = false;
    qint64 m_unreadableLines = 0; ///< of the export: too broken to say whether they match
    QString m_error;
};
