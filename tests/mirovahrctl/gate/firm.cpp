#include "tests/mirovahrctl/gate/firm.h"

#include "tests/support/environmentnumber.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

const QStringList kSurnames{"Nováková", "Šťastný", "Horváth", "Kováč",    "Žiak",
                            "Čierny",   "Ďurica",  "Szabó",   "Poláková", "Malá"};
const QStringList kFirstNames{"Jana", "Ján", "Peter", "Ľubica", "Štefan", "Andrea"};
const QStringList kTitles{"", "", "", "Ing.", "Mgr."};
constexpr int kPeopleOfABranch = 25;
constexpr double kDaysOfAMonth = 30;
constexpr int kDaysAfterWhichALineGoes = 45;

/// In quarters of a day, as HR rounds.
double rounded(double days)
{
    return std::round(days * 4) / 4;
}

} // namespace

int peopleOfALargeFirm()
{
    return int(environmentNumber("MIROVAHR_FIRM", 2000));
}

ExportRow Firm::Person::exported() const
{
    return ExportRow(row)
        .with(&ExportRow::dovolenaZustatek, QString::number(balance))
        .with(&ExportRow::datumVystupu, lastDay)
        .with(&ExportRow::stredisko, 100 + branch)
        .with(&ExportRow::strediskoPopis, QString("Branch %1").arg(branch));
}

Firm::Firm(int size, quint32 seed, const QDate &today)
    : m_random(seed)
    , m_today(today)
    , m_accrues(seed % 2 == 1)
    , m_branches(1 + size / kPeopleOfABranch)
{
    for (int i = 0; i < size; ++i) {
        Person person = newPerson(i % m_branches);
        person.isBoss = i < m_branches;
        person.balance = rounded(m_random.bounded(m_accrues ? 22.0 : 12.0));
        // Some have left lately.
        if (!person.isBoss && i % 12 == 11) {
            person.row.stavPracovnihoPomeru = "4";
            person.lastDay = today.addDays(-1 - m_random.bounded(kDaysAfterWhichALineGoes));
            person.balance = 0;
        }
        m_people.append(person);
    }
    for (Person &person : m_people)
        person.row.with(&ExportRow::nadrizenyOsobniCislo,
                        person.isBoss ? 0 : bossOf(person.branch));
}

QVector<ExportRow> Firm::people() const
{
    QVector<ExportRow> rows;
    for (const Person &person : m_people)
        rows << person.exported();
    return rows;
}

QByteArray Firm::exported() const
{
    QByteArray content;
    for (const Person &person : m_people)
        content += person.exported().text().toUtf8() + '\n';
    return content;
}

void Firm::nextDay()
{
    m_today = m_today.addDays(1);
    for (Person &person : m_people)
        live(person);
    if (m_today.day() == 1)
        turnMonth();
    if (m_today.dayOfYear() == 1)
        turnYear();
    replaceBosses();
    forgetOldLines();
    hire();
}

bool Firm::happens(double perMonth)
{
    return m_random.generateDouble() < perMonth / kDaysOfAMonth;
}

Firm::Person Firm::newPerson(int branch)
{
    Person person;
    person.branch = branch;
    person.entitlement = any(QVector<double>{20, 20, 25, 25, 12.5});
    const QDate begin = m_today.addDays(-m_random.bounded(4000));
    person.row.with(&ExportRow::osobniCislo, m_nextNumber++)
        .with(&ExportRow::titul, any(kTitles))
        .with(&ExportRow::jmeno, any(kFirstNames))
        .with(&ExportRow::prijmeni, any(kSurnames))
        .with(&ExportRow::telefon, QString("0905%1").arg(m_random.bounded(1000000)))
        .with(&ExportRow::datumNastupu, begin)
        .with(&ExportRow::kalendar, 1 + m_random.bounded(4))
        .with(&ExportRow::kalendarPlatnostOd, begin)
        .with(&ExportRow::stavPracovnihoPomeru, 1);
    return person;
}

int Firm::bossOf(int branch) const
{
    const auto boss =
        std::find_if(m_people.cbegin(), m_people.cend(), [branch](const Person &person) {
            return person.isBoss && person.branch == branch;
        });
    return boss == m_people.cend() ? 0 : boss->row.osobniCislo.toInt();
}

/// Most people begin on the first of a month.
void Firm::hire()
{
    const double each = m_today.day() == 1 ? 0.6 : 0.02;
    const int size = m_people.size();
    for (int i = 0; i < size; ++i) {
        if (!happens(each))
            continue;
        Person person = newPerson(m_random.bounded(m_branches));
        person.row.with(&ExportRow::datumNastupu, m_today)
            .with(&ExportRow::kalendarPlatnostOd, m_today)
            .with(&ExportRow::nadrizenyOsobniCislo, bossOf(person.branch));
        m_people.append(person);
    }
}

void Firm::live(Person &person)
{
    if (person.works()) {
        liveAtWork(person);
        return;
    }
    // A contract that is renewed after all.
    if (happens(0.05)) {
        person.row.with(&ExportRow::stavPracovnihoPomeru, 1);
        person.lastDay = QDate();
    }
}

void Firm::liveAtWork(Person &person)
{
    changeData(person);
    takeVacation(person);
    if (person.lastDay.isValid() && person.lastDay < m_today)
        leave(person);
    else if (!person.lastDay.isValid() && happens(person.isBoss ? 0.15 : 0.04))
        person.lastDay = m_today.addDays(m_random.bounded(60));
    else if (person.lastDay.isValid() && happens(0.1))
        person.lastDay = QDate();
}

void Firm::changeData(Person &person)
{
    if (happens(0.02))
        person.row.with(&ExportRow::prijmeni, any(kSurnames));
    if (happens(0.05))
        person.row.with(&ExportRow::telefon, QString("0906%1").arg(m_random.bounded(1000000)));
    if (happens(0.005))
        person.row.with(&ExportRow::telefon, QString());
    if (happens(0.005))
        person.row.with(&ExportRow::titul, any(kTitles));
    if (happens(0.08))
        person.row.with(&ExportRow::evidencniStav, any(QVector<int>{0, 0, 0, 1, 2, 21}));
    if (happens(0.05)) {
        person.row.with(&ExportRow::kalendar, 1 + m_random.bounded(4))
            .with(&ExportRow::kalendarPlatnostOd, m_today);
    }
    if (!person.isBoss && happens(0.05)) {
        person.branch = m_random.bounded(m_branches);
        person.row.with(&ExportRow::nadrizenyOsobniCislo, bossOf(person.branch));
    }
}

/// More in the last week of the year, when some use up what is left.
void Firm::takeVacation(Person &person)
{
    const bool isHoliday = m_today.month() == 12 && m_today.day() >= 24;
    if (person.balance <= 0 || !happens(isHoliday ? 6 : 1))
        return;
    person.balance -= std::min(person.balance, any(QVector<double>{0.5, 1, 2, 5}));
}

void Firm::leave(Person &person)
{
    person.row.with(&ExportRow::stavPracovnihoPomeru, 4);
    person.balance = 0;
    person.isBoss = false;
}

void Firm::turnMonth()
{
    for (Person &person : m_people) {
        if (person.works() && m_accrues)
            person.balance = rounded(person.balance + person.entitlement / 12);
    }
}

void Firm::turnYear()
{
    for (Person &person : m_people) {
        if (!person.works())
            continue;
        const double carried = std::min(person.balance, 5.0);
        person.balance =
            m_accrues ? rounded(carried + person.entitlement / 12) : carried + person.entitlement;
    }
}

/// Where a boss has left, somebody else of the branch becomes boss, or there is none for a while.
void Firm::replaceBosses()
{
    for (int branch = 0; branch < m_branches; ++branch) {
        if (bossOf(branch) == 0)
            appointBoss(branch);
    }
}

void Firm::appointBoss(int branch)
{
    if (m_random.bounded(3) != 0) {
        const auto next =
            std::find_if(m_people.begin(), m_people.end(), [branch](const Person &person) {
                return person.branch == branch && person.works() && !person.lastDay.isValid();
            });
        if (next != m_people.end())
            next->isBoss = true;
    }
    const int boss = bossOf(branch);
    for (Person &person : m_people) {
        if (person.branch == branch && person.works())
            person.row.with(&ExportRow::nadrizenyOsobniCislo, person.isBoss ? 0 : boss);
    }
}

void Firm::forgetOldLines()
{
    const auto isOld = [this](const Person &person) {
        return !person.works() && person.lastDay.daysTo(m_today) > kDaysAfterWhichALineGoes;
    };
    m_people.erase(std::remove_if(m_people.begin(), m_people.end(), isOld), m_people.end());
}
