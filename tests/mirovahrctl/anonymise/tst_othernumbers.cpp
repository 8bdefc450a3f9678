#include "mirovahrctl/anonymise/othernumbers.h"
#include "worker/mirovaronrecord.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTest>

namespace {

struct Relationship {
    quint32 number;
    quint32 relationship;
};

using Relationships = QVector<Relationship>;

quint32 pidOf(const Relationship &one)
{
    MirovaRonRecord record;
    record.osobniCislo = one.number;
    record.poradoveCisloPP = one.relationship;
    return record.getPid();
}

int digits(quint32 number)
{
    return QString::number(number).size();
}

QString text(const Relationships &relationships)
{
    QStringList texts;
    for (const Relationship &one : relationships)
        texts << QString("%1.%2").arg(one.number).arg(one.relationship);
    return texts.join(' ');
}

/// The relationships with other numbers.
Relationships others(const OtherNumbers &numbers, const Relationships &relationships)
{
    Relationships all;
    for (const Relationship &one : relationships) {
        all.append(
            {numbers.other(one.number), numbers.otherRelationship(one.number, one.relationship)});
    }
    return all;
}

/// Which of them has which pid, first come first counted; 0 for those without a pid.
QVector<int> pattern(const Relationships &relationships)
{
    QVector<int> pattern;
    QHash<quint32, int> seen;
    for (const Relationship &one : relationships) {
        const quint32 pid = pidOf(one);
        if (pid != 0 && !seen.contains(pid))
            seen.insert(pid, seen.size() + 1);
        pattern += seen.value(pid);
    }
    return pattern;
}

OtherNumbers settled(QRandomGenerator &random, const Relationships &relationships)
{
    OtherNumbers numbers(random);
    for (const Relationship &one : relationships)
        numbers.note(one.number, one.relationship);
    numbers.settle();
    return numbers;
}

void compareRelations(const OtherNumbers &numbers, const Relationships &before)
{
    const Relationships after = others(numbers, before);
    QSet<quint32> known;
    QSet<quint32> chosen;
    for (int i = 0; i < before.size(); ++i) {
        QCOMPARE(digits(after[i].number), digits(before[i].number));
        QCOMPARE(digits(after[i].relationship), digits(before[i].relationship));
        if (before[i].relationship < OtherNumbers::kFirstLong)
            QCOMPARE(after[i].relationship, before[i].relationship);
        known += before[i].number;
        chosen += after[i].number;
    }
    QCOMPARE(chosen.size(), known.size());
    QVERIFY2(pattern(after) == pattern(before),
             qPrintable(text(before) + "\nbecame\n" + text(after)));
}

} // namespace

Q_DECLARE_METATYPE(Relationship)

class TestOtherNumbers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNumberHasAnotherOfAsManyDigits();
    void whereThereIsRoomNoNumberOfTheExportIsUsed();
    void aNumberThatWasNotNotedHasNoOther();
    void shortRelationshipsStay();
    void longRelationshipsAreNumbersOfPeople();
    void theSamePidsComeAbout_data();
    void theSamePidsComeAbout();
    void theSamePidsComeAboutAmongRandomNumbers_data();
    void theSamePidsComeAboutAmongRandomNumbers();
    void allNumbersOfALengthMayBeTaken();
    void numbersWithoutAnAlternativeStayAndAreCounted();

private:
    QRandomGenerator m_random{20210331};
};

void TestOtherNumbers::aNumberHasAnotherOfAsManyDigits()
{
    OtherNumbers numbers(m_random);
    for (const quint32 number : {7U, 12U, 4711U, 999999U, 4294967295U})
        numbers.note(number);
    numbers.settle();
    for (const quint32 number : {7U, 12U, 4711U, 999999U, 4294967295U}) {
        QVERIFY(numbers.other(number) != number);
        QCOMPARE(digits(numbers.other(number)), digits(number));
    }
    QCOMPARE(numbers.countKept(), 0);
}

void TestOtherNumbers::whereThereIsRoomNoNumberOfTheExportIsUsed()
{
    OtherNumbers numbers(m_random);
    for (quint32 number = 1000; number < 5000; ++number)
        numbers.note(number);
    numbers.settle();
    for (quint32 number = 1000; number < 5000; ++number)
        QVERIFY(numbers.other(number) >= 5000);
}

void TestOtherNumbers::aNumberThatWasNotNotedHasNoOther()
{
    const OtherNumbers numbers = settled(m_random, {{1234, 1}});
    QCOMPARE(numbers.other(1235), 0U);
    QCOMPARE(numbers.other(numbers.other(1234)), 0U);
}

void TestOtherNumbers::shortRelationshipsStay()
{
    const OtherNumbers numbers = settled(m_random, {{1234, 1}, {1234, 2}, {1234, 999}});
    for (const quint32 relationship : {1U, 2U, 999U})
        QCOMPARE(numbers.otherRelationship(1234, relationship), relationship);
}

void TestOtherNumbers::longRelationshipsAreNumbersOfPeople()
{
    // HR has exchanged the two columns.
    const Relationships exchanged{{1, 1234}, {1, 1235}, {2, 1234}};
    const OtherNumbers numbers = settled(m_random, exchanged);
    QVERIFY(numbers.otherRelationship(1, 1234) != 1234);
    QCOMPARE(numbers.otherRelationship(1, 1234), numbers.other(1234));
    QCOMPARE(numbers.otherRelationship(2, 1234), numbers.other(1234));
    compareRelations(numbers, exchanged);
}

void TestOtherNumbers::theSamePidsComeAbout_data()
{
    QTest::addColumn<Relationships>("relationships");
    QTest::newRow("one relationship twice") << Relationships{{1234, 1}, {1234, 1}};
    QTest::newRow("a clash") << Relationships{{1234, 1}, {123, 41}};
    QTest::newRow("a clash of three") << Relationships{{1234, 1}, {123, 41}, {12, 341}};
    QTest::newRow("two clashes that share a person")
        << Relationships{{12, 341}, {1234, 1}, {1234, 5}, {123, 45}};
    QTest::newRow("people who clash with one person each other way")
        << Relationships{{12, 31}, {123, 1}, {12, 41}, {124, 1}};
    QTest::newRow("a clash with a long relationship") << Relationships{{1, 2341}, {1234, 1}};
    QTest::newRow("more than 32 bits") << Relationships{{4294967, 296}, {429496730, 1}};
    QTest::newRow("just 32 bits") << Relationships{{4294967, 295}, {429496729, 5}};
    QTest::newRow("ten digits") << Relationships{{1000000000, 1}, {4294967295, 1}};
}

void TestOtherNumbers::theSamePidsComeAbout()
{
    QFETCH(Relationships, relationships);
    for (int i = 0; i < 50; ++i)
        compareRelations(settled(m_random, relationships), relationships);
}

void TestOtherNumbers::theSamePidsComeAboutAmongRandomNumbers_data()
{
    QTest::addColumn<int>("numbers"); // below this
    QTest::addColumn<int>("relationships"); // below this
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("files");
    QTest::newRow("few small numbers") << 120 << 120 << 12 << 1000;
    QTest::newRow("all small numbers") << 100 << 30 << 150 << 50;
    QTest::newRow("nearly all small numbers with nearly all relationships")
        << 30 << 120 << 1500 << 3;
    QTest::newRow("large and small") << 20000 << 12 << 5000 << 5;
    QTest::newRow("long relationships") << 2000 << 2000 << 50 << 200;
}

void TestOtherNumbers::theSamePidsComeAboutAmongRandomNumbers()
{
    QFETCH(int, numbers);
    QFETCH(int, relationships);
    QFETCH(int, count);
    QFETCH(int, files);
    for (int file = 0; file < files; ++file) {
        Relationships all;
        for (int i = 0; i < count; ++i) {
            all.append({1 + quint32(m_random.bounded(numbers)),
                        1 + quint32(m_random.bounded(relationships))});
        }
        compareRelations(settled(m_random, all), all);
        if (QTest::currentTestFailed())
            return;
    }
}

void TestOtherNumbers::allNumbersOfALengthMayBeTaken()
{
    Relationships all;
    for (quint32 number = 1; number < 1000; ++number)
        all.append({number, 1});
    const OtherNumbers numbers = settled(m_random, all);
    compareRelations(numbers, all);
    QVERIFY(numbers.countKept() < 20);
}

void TestOtherNumbers::numbersWithoutAnAlternativeStayAndAreCounted()
{
    // The first pid fits 32 bits, the second does not: only this number parts them.
    const Relationships edge{{4294967, 295}, {4294967, 296}, {1234, 1}};
    const OtherNumbers numbers = settled(m_random, edge);
    compareRelations(numbers, edge);
    QCOMPARE(numbers.other(4294967), 4294967U);
    QCOMPARE(numbers.countKept(), 1);
}

QTEST_GUILESS_MAIN(TestOtherNumbers)
#include "tst_othernumbers.moc"
