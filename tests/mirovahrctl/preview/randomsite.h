#pragma once

#include "tests/support/exportfile.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <random>

class TestDatabase;

/// Rows of test data for random sites, with the column `seed`. \a countVariable names the
/// environment variable with their number, \a seedVariable the one with the first seed.
void addSeeds(const char *countVariable, uint quickCount, const char *seedVariable);

/// Random contents of an attendance database, and random exports for it: much of it alike, so that
/// people are found, some of it wrong. People of different seeds have different numbers, since a
/// process looks up the uid of a person only once.
class RandomSite {
public:
    /// Whether a site may have routines and triggers of its own.
    enum class Programs { Some, None };

    explicit RandomSite(quint32 seed);

    /// Fills the database, which holds the sample data, with more, and changes what is there.
    void fill(TestDatabase &db, Programs programs = Programs::Some);
    /// Adds rows of uids that nobody has, or that the next people get.
    void fillLeftBehind(TestDatabase &db);

    /// Whether texts of an export may break the statements that they get into.
    enum class Texts { Any, Harmless };

    /// Lines of an export, each with a line feed.
    QByteArray exportContent(Texts texts = Texts::Any);
    /// The same of a few people who have several lines each: equal ones, ones that differ in a few
    /// fields, ones in which they have left, in any order. Few texts break a statement.
    QByteArray exportOfFewPeople();
    /// Further lines of an INI file.
    QString ini();

private:
    int number(int from, int to);
    bool chance(int percent);
    QString one(const QStringList &list);
    QString time();
    QString optionalTime();
    void fillPeople(TestDatabase &db);
    void fillRelations(TestDatabase &db);
    void fillAttendance(TestDatabase &db);
    void fillYears(TestDatabase &db);
    void fillSettings(TestDatabase &db);
    void addRoutinesAndTriggers(TestDatabase &db);
    QString text();
    QString date();
    QString person();
    QString line();
    QStringList lineOf(const QString &person);
    QStringList varied(const QStringList &fields);

    std::mt19937 m_random;
    Texts m_texts = Texts::Any;
    const int m_firstNumber; ///< of people who are not of the sample
};
