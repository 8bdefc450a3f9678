#include "mirovahrctl/comparison/comparedpeople.h"
#include "mirovahrctl/gate/gateassessment.h"
#include "tests/mirovahrctl/gate/firm.h"

#include <QTest>

namespace {

/// Reads an export as the gate does.
void read(const QByteArray &content, ComparedPeople::Side side, ComparedPeople &people)
{
    for (const QByteArray &line : content.split('\n')) {
        if (!line.isEmpty() && !people.add(side, line.constData()))
            qFatal("The firm exports nobody: %s", line.constData());
    }
}

/// Why the gate would refuse an export on a day.
QStringList reasons(const QByteArray &before, const QByteArray &now, const QDate &today)
{
    ComparedPeople people;
    read(before, ComparedPeople::Before, people);
    read(now, ComparedPeople::Now, people);
    GateFacts facts;
    facts.hasBaseline = true;
    facts.oldLines = people.lines(ComparedPeople::Before);
    facts.newLines = people.lines(ComparedPeople::Now);
    facts.counts.records = facts.newLines;
    facts.changes = ExportDifferences::of(people, today);
    QStringList messages;
    for (const GateReason &reason : GateAssessment::assess(facts, GateLimits(), false))
        messages << reason.finding.message;
    return messages;
}

} // namespace

/// The life of a firm, day by day, against the gate's default limits.
class TestGateLife : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingIsRefused_data();
    void nothingIsRefused();
};

void TestGateLife::nothingIsRefused_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("seed");
    QTest::addColumn<QDate>("from");
    // A month with the turn of a year, and an ordinary one.
    const QDate winter(2026, 12, 6);
    const QDate spring(2026, 3, 15);
    const auto rows = [](int size, int seeds, const QDate &from) {
        for (int seed = 1; seed <= seeds; ++seed) {
            QTest::addRow("%d people, seed %d, from %s", size, seed,
                          qPrintable(from.toString(Qt::ISODate)))
                << size << seed << from;
        }
    };
    rows(10, 20, winter);
    rows(10, 20, spring);
    rows(400, 4, winter);
    rows(400, 2, spring);
    rows(peopleOfALargeFirm(), 2, winter);
}

void TestGateLife::nothingIsRefused()
{
    QFETCH(int, size);
    QFETCH(int, seed);
    QFETCH(QDate, from);
    constexpr int kDays = 31;
    Firm firm(size, quint32(seed), from);
    QByteArray before = firm.exported();
    bool hasChanged = false;
    for (int i = 0; i < kDays; ++i) {
        firm.nextDay();
        const QByteArray now = firm.exported();
        const QStringList refused = reasons(before, now, firm.today());
        QVERIFY2(refused.isEmpty(),
                 qPrintable(firm.today().toString(Qt::ISODate) + ": " + refused.join("; ")));
        hasChanged = hasChanged || now != before;
        before = now;
    }
    QVERIFY(hasChanged);
}

QTEST_GUILESS_MAIN(TestGateLife)
#include "tst_gatelife.moc"
