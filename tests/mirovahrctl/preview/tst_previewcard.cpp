#include "mirovahrctl/preview/previewcard.h"
#include "mirovahrctl/preview/previewsubjects.h"

#include <QTest>

namespace {

using Row = PreviewLine::Row;
using Group = PreviewSubjects::Group;

PreviewLine line(PreviewKind kind, Row row, const char *what, const char *thing = "",
                 const char *before = "", const char *after = "")
{
    PreviewLine line;
    line.kind = kind;
    line.row = row;
    line.uid = 4;
    line.who = "1234.1 Jana Malá";
    line.what = what;
    line.thing = thing;
    line.before = before;
    line.after = after;
    return line;
}

PreviewLine bookkeeping(PreviewLine line)
{
    line.isBookkeeping = true;
    return line;
}

PreviewLine inSentence(PreviewLine line, const char *sentence)
{
    line.sentence = sentence;
    return line;
}

PreviewLine ofName(PreviewLine line)
{
    line.isName = true;
    return line;
}

PreviewLine withoutSaying(PreviewLine line)
{
    line.isYes = true;
    return line;
}

PreviewLine about(quint32 uid, const char *who, PreviewLine line)
{
    line.uid = uid;
    line.who = who;
    return line;
}

} // namespace

Q_DECLARE_METATYPE(PreviewWords::Lines)

/// How the differences of a person become sentences.
class TestPreviewCard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aCardSaysWhatHappens_data();
    void aCardSaysWhatHappens();
    void whatIsTooLongIsCompleteInTheDetails();
    void bookkeepingIsADetail();
    void aNewPersonIsCreatedInOnePart();
    void everybodyIsInOneGroup();
    void whatManyPeopleShareIsSaidOnce();
    void fewPeopleHaveWholeCards();
};

void TestPreviewCard::aCardSaysWhatHappens_data()
{
    QTest::addColumn<PreviewWords::Lines>("lines");
    QTest::addColumn<QStringList>("said");
    const PreviewKind changed = PreviewKind::ChangedPeople;
    const PreviewKind terminals = PreviewKind::Terminals;
    const PreviewKind other = PreviewKind::Other;
    QTest::newRow("a value changes")
        << PreviewWords::Lines{line(changed, Row::Changed, "surname", "", "Nováková", "Malá")}
        << QStringList{"surname: Nováková → Malá"};
    QTest::newRow("a value comes")
        << PreviewWords::Lines{line(changed, Row::Changed, "employed until", "", "", "2026-01-31")}
        << QStringList{"employed until: none → 2026-01-31"};
    QTest::newRow("a value goes") << PreviewWords::Lines{line(changed, Row::Changed, "telephone",
                                                              "", "905", "")}
                                  << QStringList{"telephone: 905 → none"};
    QTest::newRow("a row of its own comes") << PreviewWords::Lines{inSentence(
        line(PreviewKind::Balances, Row::Added, "balance corrected on %1 by", "03-03", "",
             "+2 days"),
        "balance corrected on %1 by %2")} << QStringList{"balance corrected on 03-03 by +2 days"};
    QTest::newRow("a row of its own goes") << PreviewWords::Lines{inSentence(
        line(PreviewKind::Branches, Row::Removed, "leaves %1, in it since", "Sklad", "2019-04-01"),
        "leaves %1, in it since %2")} << QStringList{"leaves Sklad, in it since 2019-04-01"};
    QTest::newRow("a row without a sentence of its own comes")
        << PreviewWords::Lines{line(PreviewKind::Payroll, Row::Added, "settings", "", "", "2")}
        << QStringList{"settings: 2"};
    QTest::newRow("the same of two things")
        << PreviewWords::Lines{line(terminals, Row::Added, "is known to %1", "terminal 1"),
                               line(changed, Row::Changed, "title", "", "", "Ing."),
                               line(terminals, Row::Added, "is known to %1", "terminal 2")}
        << QStringList{"is known to terminal 1, terminal 2", "title: none → Ing."};
    QTest::newRow("another of two things") << PreviewWords::Lines{
        line(PreviewKind::Calendars, Row::Changed, "group in %1", "2025-03", "11", "12"),
        line(PreviewKind::Calendars, Row::Changed, "group in %1", "2025-04", "11",
             "13")} << QStringList{"group in 2025-03: 11 → 12", "group in 2025-04: 11 → 13"};
    QTest::newRow("a row of another table comes")
        << PreviewWords::Lines{line(other, Row::Added, "new row: %1", "bid", "", "2"),
                               line(other, Row::Added, "new row: %1", "note", "", "")}
        << QStringList{"new row: bid 2, note none"};
    QTest::newRow("columns of another table change")
        << PreviewWords::Lines{line(other, Row::Changed, "%1", "bid", "1", "2"),
                               line(other, Row::Changed, "%1", "note", "", "x")}
        << QStringList{"bid: 1 → 2", "note: none → x"};
}

void TestPreviewCard::aCardSaysWhatHappens()
{
    QFETCH(PreviewWords::Lines, lines);
    QFETCH(QStringList, said);
    const Card card = previewCard(lines);
    QCOMPARE(card.who, QString("1234.1 Jana Malá"));
    QCOMPARE(card.what, said);
    QCOMPARE(card.details, QStringList());
}

void TestPreviewCard::whatIsTooLongIsCompleteInTheDetails()
{
    PreviewWords::Lines lines;
    for (const char *day : {"03-03", "03-04", "03-05", "03-06", "03-07"}) {
        lines += line(PreviewKind::Recalculation, Row::Changed, "attendance of %1", day,
                      "calculated", "to be calculated");
    }
    const Card card = previewCard(lines);
    QCOMPARE(card.what,
             QStringList("attendance of 03-03, 03-04, 03-05 and 2 more: calculated → to be "
                         "calculated"));
    QCOMPARE(card.details,
             QStringList("attendance of 03-03, 03-04, 03-05, 03-06, 03-07: calculated → to be "
                         "calculated"));
}

void TestPreviewCard::bookkeepingIsADetail()
{
    const Card card = previewCard(
        {bookkeeping(line(PreviewKind::ChangedPeople, Row::Changed, "last changed", "", "", "now")),
         bookkeeping(line(PreviewKind::Terminals, Row::Added, "is queued for %1", "terminal 1")),
         bookkeeping(line(PreviewKind::Terminals, Row::Added, "is queued for %1", "terminal 2"))});
    QCOMPARE(card.what, QStringList());
    QCOMPARE(card.details,
             QStringList({"last changed: none → now", "is queued for terminal 1, terminal 2"}));
}

void TestPreviewCard::aNewPersonIsCreatedInOnePart()
{
    const PreviewKind created = PreviewKind::NewPeople;
    const Card card =
        previewCard({line(created, Row::Added, "is created"),
                     bookkeeping(line(created, Row::Added, "uid", "", "", "9")),
                     ofName(line(created, Row::Added, "payroll id", "", "", "1234.1")),
                     ofName(line(created, Row::Added, "first name", "", "", "Jana")),
                     ofName(line(created, Row::Added, "surname", "", "", "Malá")),
                     line(created, Row::Added, "employed from", "", "", "2024-05-01"),
                     line(created, Row::Added, "employment type", "", "", "1"),
                     withoutSaying(line(created, Row::Added, "active", "", "", "yes")),
                     line(PreviewKind::Branches, Row::Added, "joins the branch %1", "Sklad")});
    QCOMPARE(card.what,
             QStringList({"is created: employed from 2024-05-01, employment type 1, active",
                          "joins the branch Sklad"}));
    QCOMPARE(card.details, QStringList("uid: 9"));
}

void TestPreviewCard::everybodyIsInOneGroup()
{
    const PreviewLine stamp =
        bookkeeping(line(PreviewKind::ChangedPeople, Row::Changed, "last changed"));
    const PreviewLine joined = line(PreviewKind::Branches, Row::Added, "joins the branch Sklad");
    PreviewSubjects subjects;
    subjects.add(about(9, "new", line(PreviewKind::NewPeople, Row::Added, "is created")));
    subjects.add(about(9, "new", joined));
    subjects.add(about(1, "stamped", stamp));
    subjects.add(about(2, "changed", stamp));
    subjects.add(about(2, "changed", joined));
    subjects.add(about(3, "changed", joined)); // another person of the same name
    subjects.add(
        about(0, "terminal 1", bookkeeping(line(PreviewKind::Terminals, Row::Changed, "syn"))));
    QCOMPARE(subjects.count(Group::New), 1);
    QCOMPARE(subjects.count(Group::Changed), 2);
    QCOMPARE(subjects.count(Group::Bookkeeping), 1);
    QCOMPARE(subjects.count(Group::Thing), 1);
    QCOMPARE(subjects.cards(Group::Changed).size(), 2);
    QCOMPARE(subjects.thingCards(PreviewKind::Terminals).size(), 1);
    QCOMPARE(subjects.thingCards(PreviewKind::Other).size(), 0);
}

void TestPreviewCard::whatManyPeopleShareIsSaidOnce()
{
    QVector<Card> cards;
    for (int i = 0; i < 200; ++i) {
        const QString number = QString::number(i);
        cards.append({number,
                      {"is created on day " + number, i % 2 == 0 ? "joins Sklad" : "joins Dielňa"},
                      {"uid: " + number, "created: now"}});
    }
    cards.insert(3, {"alone", {"joins nothing"}, {"created: now"}});
    const QVector<Card> result = gathered(cards);
    QCOMPARE(result.size(), 203);
    QCOMPARE(result.at(0).who, QString("alone"));
    QCOMPARE(result.at(0).what, QStringList("joins nothing"));
    QCOMPARE(result.at(0).details, QStringList("created: now"));
    QCOMPARE(result.at(1).who, QString("Each of these 100 people"));
    QCOMPARE(result.at(1).what, QStringList("joins Sklad"));
    QCOMPARE(result.at(1).details, QStringList("created: now"));
    QVERIFY(result.at(1).leads && !result.at(2).leads);
    QCOMPARE(result.at(3).who, QString("2"));
    QCOMPARE(result.at(3).what, QStringList("is created on day 2"));
    QCOMPARE(result.at(3).details, QStringList("uid: 2"));
    QVERIFY(result.at(102).leads);
}

void TestPreviewCard::fewPeopleHaveWholeCards()
{
    QVector<Card> cards;
    for (int i = 0; i < 100; ++i)
        cards.append({QString::number(i), {"joins Sklad"}, {}});
    const QVector<Card> result = gathered(cards);
    QCOMPARE(result.size(), 100);
    QCOMPARE(result.at(99).what, QStringList("joins Sklad"));
}

QTEST_GUILESS_MAIN(TestPreviewCard)
#include "tst_previewcard.moc"
