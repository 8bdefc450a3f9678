#pragma once

#include "tests/support/exportfile.h"

#include <QDate>
#include <QRandomGenerator>
#include <QVector>

/// How many people the largest firm of a test has: MIROVAHR_FIRM of the environment, or else so
/// many that the suite can wait for them.
int peopleOfALargeFirm();

/// The people of a firm as HR exports them, and what happens to them from day to day: hires, last
/// days, returns, moves, marriages, vacations, bosses who leave, the turns of months and of years.
/// The same size and seed give the same life.
class Firm {
public:
    Firm(int size, quint32 seed, const QDate &today);

    const QDate &today() const { return m_today; }
    QVector<ExportRow> people() const;
    /// What HR exports today.
    QByteArray exported() const;

    void nextDay();

private:
    struct Person {
        ExportRow row;
        QDate lastDay; ///< invalid while there is none
        double balance = 0; ///< days
        double entitlement = 0; ///< days a year
        int branch = 0;
        bool isBoss = false;

        bool works() const { return row.stavPracovnihoPomeru == QLatin1String("1"); }
        ExportRow exported() const;
    };

    /// True once in so many calls, on average.
    bool happens(double perMonth);
    template <typename Values> auto any(const Values &values)
    {
        return values[m_random.bounded(int(values.size()))];
    }

    Person newPerson(int branch);
    void appointBoss(int branch);
    void hire();
    void live(Person &person);
    void liveAtWork(Person &person);
    void changeData(Person &person);
    void takeVacation(Person &person);
    void leave(Person &person);
    void turnMonth();
    void turnYear();
    void replaceBosses();
    void forgetOldLines();
    int bossOf(int branch) const;

    QRandomGenerator m_random;
    QDate m_today;
    const bool m_accrues; ///< an entitlement each month, instead of the whole in January
    int m_branches;
    int m_nextNumber = 1001;
    QVector<Person> m_people;
};
