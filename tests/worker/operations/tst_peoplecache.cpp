#include "tests/worker/operations/workerconnection.h"
#include "tests/worker/support/workertest.h"
#include "worker/peoplecache.h"

#include <QSqlQuery>
#include <QTest>

#include <algorithm>

/// The cache finds the same people, whichever were expected.
class TestPeopleCache : public WorkerTest {
    Q_OBJECT
public:
    TestPeopleCache()
        : WorkerTest(Tables::Empty)
    {
    }

private Q_SLOTS:
    void init();

    void everyPersonWithARowIsFound_data();
    void everyPersonWithARowIsFound();
    void aLaterRowOfTheSameKeyWins_data();
    void aLaterRowOfTheSameKeyWins();
    void aChangeStaysWhoeverIsLookedForNext_data();
    void aChangeStaysWhoeverIsLookedForNext();
    void eachLoadReplacesTheOneBefore_data();
    void eachLoadReplacesTheOneBefore();
    void aClearedCacheFindsNoPerson_data();
    void aClearedCacheFindsNoPerson();
    void everybodyIsFoundThoughTheServerIsGone();
    void lookingForPeopleSendsNothing();

private:
    using Pids = QSet<quint32>;

    void addExpectations();
    void load(const Pids &expected);
    QString surnameOf(quint32 pid);

    PeopleCache m_people;
};

/// Eva has two rows: the pid column does not count.
void TestPeopleCache::init()
{
    m_people.clear();
    WorkerTest::init();
    m_db.run("INSERT INTO people (uid, pid, pamId, surname, status) VALUES"
             " (1, 11, '100.1', 'Anna', 1), (2, 12, '200.1', 'Eva before', 1),"
             " (3, 13, '300.1', 'Jana', 1), (4, 14, '200.1', 'Eva', 1)");
}

void TestPeopleCache::addExpectations()
{
    QTest::addColumn<Pids>("expected");
    QTest::newRow("nobody is expected") << Pids();
    QTest::newRow("one with one row is") << Pids{1001};
    QTest::newRow("one with two rows is") << Pids{2001};
    QTest::newRow("one without a row is") << Pids{4001};
    QTest::newRow("everybody is") << Pids{1001, 2001, 3001};
}

void TestPeopleCache::load(const Pids &expected)
{
    QSqlQuery query(workerConnection());
    QVERIFY(query.exec(PeopleCache::kSelect));
    m_people.load(query, expected);
}

/// The surname of the person that is found, "nobody" when none is.
QString TestPeopleCache::surnameOf(quint32 pid)
{
    const MirovaRonRecord *person = m_people.find(pid);
    return person ? person->prijmeni : QStringLiteral("nobody");
}

void TestPeopleCache::everyPersonWithARowIsFound_data()
{
    addExpectations();
}

void TestPeopleCache::everyPersonWithARowIsFound()
{
    QFETCH(Pids, expected);
    QVector<quint32> pids = {1001, 3001, 4001};
    do {
        load(expected);
        for (const quint32 pid : qAsConst(pids)) {
            const QString surname = pid == 1001 ? "Anna" : pid == 3001 ? "Jana" : "nobody";
            QCOMPARE(surnameOf(pid), surname);
        }
    } while (std::next_permutation(pids.begin(), pids.end()));
}

void TestPeopleCache::aLaterRowOfTheSameKeyWins_data()
{
    addExpectations();
}

void TestPeopleCache::aLaterRowOfTheSameKeyWins()
{
    QFETCH(Pids, expected);
    load(expected);
    QCOMPARE(surnameOf(2001), QString("Eva"));
}

void TestPeopleCache::aChangeStaysWhoeverIsLookedForNext_data()
{
    addExpectations();
}

void TestPeopleCache::aChangeStaysWhoeverIsLookedForNext()
{
    QFETCH(Pids, expected);
    load(expected);
    for (const quint32 pid : {1001U, 3001U, 2001U}) {
        MirovaRonRecord *person = m_people.find(pid);
        QVERIFY(person);
        person->prijmeni += " changed";
    }
    QCOMPARE(surnameOf(4001), QString("nobody"));
    QCOMPARE(surnameOf(1001), QString("Anna changed"));
    QCOMPARE(surnameOf(2001), QString("Eva changed"));
    QCOMPARE(surnameOf(3001), QString("Jana changed"));
}

void TestPeopleCache::eachLoadReplacesTheOneBefore_data()
{
    addExpectations();
}

void TestPeopleCache::eachLoadReplacesTheOneBefore()
{
    QFETCH(Pids, expected);
    load({1001});
    QCOMPARE(surnameOf(3001), QString("Jana"));
    m_db.run("DELETE FROM people WHERE uid = 1");
    m_db.run("UPDATE people SET surname = 'Iveta' WHERE uid = 3");
    load(expected);
    QCOMPARE(surnameOf(1001), QString("nobody"));
    QCOMPARE(surnameOf(3001), QString("Iveta"));
}

void TestPeopleCache::aClearedCacheFindsNoPerson_data()
{
    addExpectations();
}

void TestPeopleCache::aClearedCacheFindsNoPerson()
{
    QFETCH(Pids, expected);
    load(expected);
    m_people.clear();
    for (const quint32 pid : {1001U, 2001U, 3001U, 4001U})
        QCOMPARE(surnameOf(pid), QString("nobody"));
}

void TestPeopleCache::everybodyIsFoundThoughTheServerIsGone()
{
    load({1001});
    m_db.killServer();
    QCOMPARE(surnameOf(1001), QString("Anna"));
    QCOMPARE(surnameOf(3001), QString("Jana"));
    m_db.startServer();
}

void TestPeopleCache::lookingForPeopleSendsNothing()
{
    load({1001});
    const Trace trace = observe([this] {
        QCOMPARE(surnameOf(1001), QString("Anna"));
        QCOMPARE(surnameOf(3001), QString("Jana"));
        QCOMPARE(surnameOf(4001), QString("nobody"));
    });
    QCOMPARE(trace.statements, QStringList());
    QCOMPARE(trace.log, QStringList());
}

QTEST_GUILESS_MAIN(TestPeopleCache)
#include "tst_peoplecache.moc"
