#include "tests/worker/operations/recordtext.h"
#include "tests/worker/operations/samplerecord.h"
#include "worker/mirovaronrecord.h"

#include <QRandomGenerator>
#include <QTest>
#include <QVector>

#include <limits>

namespace {

struct FieldChange {
    const char *what;
    void (*apply)(MirovaRonRecord &);
};

const FieldChange kFieldChanges[] = {
    {"osobniCislo",
     [](MirovaRonRecord &r) {
         r.osobniCislo = 1235;
     }},
    {"poradoveCisloPP",
     [](MirovaRonRecord &r) {
         r.poradoveCisloPP = 3;
     }},
    {"titul",
     [](MirovaRonRecord &r) {
         r.titul = "Mgr.";
     }},
    {"jmeno",
     [](MirovaRonRecord &r) {
         r.jmeno = "Jan";
     }},
    {"prijmeni",
     [](MirovaRonRecord &r) {
         r.prijmeni = "Novák";
     }},
    {"titulZa",
     [](MirovaRonRecord &r) {
         r.titulZa = "CSc.";
     }},
    {"telefon",
     [](MirovaRonRecord &r) {
         r.telefon = "555123457";
     }},
    {"datumNastupu",
     [](MirovaRonRecord &r) {
         r.datumNastupu = QDate(2019, 4, 2);
     }},
    {"datumVystupu",
     [](MirovaRonRecord &r) {
         r.datumVystupu = QDate();
     }},
    {"stredisko",
     [](MirovaRonRecord &r) {
         r.stredisko = 121;
     }},
    {"strediskoPopis",
     [](MirovaRonRecord &r) {
         r.strediskoPopis = "Výroba";
     }},
    {"kalendar",
     [](MirovaRonRecord &r) {
         r.kalendar = 4;
     }},
    {"kalendarPlatnostOd",
     [](MirovaRonRecord &r) {
         r.kalendarPlatnostOd = QDate(2020, 5, 2);
     }},
    {"typPracovnihoPomeru",
     [](MirovaRonRecord &r) {
         r.typPracovnihoPomeru = 12;
     }},
    {"stavPracovnihoPomeru",
     [](MirovaRonRecord &r) {
         r.stavPracovnihoPomeru = 2;
     }},
    {"evidencniStav",
     [](MirovaRonRecord &r) {
         r.evidencniStav = 22;
     }},
    {"rsFrom",
     [](MirovaRonRecord &r) {
         r.rsFrom = QDate(2021, 6, 2);
     }},
    {"rsTo",
     [](MirovaRonRecord &r) {
         r.rsTo = QDate(2021, 7, 2);
     }},
    {"rsText",
     [](MirovaRonRecord &r) {
         r.rsText = "rodičovská dovolenka";
     }},
    {"dovolenaZustatek by 0.001",
     [](MirovaRonRecord &r) {
         r.dovolenaZustatek += 0.001;
     }},
    {"nadrizenyOsobniCislo",
     [](MirovaRonRecord &r) {
         r.nadrizenyOsobniCislo = 0;
     }},
};

} // namespace

class TestMirovaRonRecord : public QObject {
    Q_OBJECT
public:
    /// Before Qt asks for the system's locale: the dates of the log follow it.
    static void initMain() { qputenv("LC_ALL", "sk_SK.UTF-8"); }

private Q_SLOTS:
    void aDefaultRecordIsEmpty();
    void copiesAreEqual();
    void everyFieldCountsForEquality_data();
    void everyFieldCountsForEquality();
    void textsAreComparedByContent();
    void aBalanceThatIsNotANumberEqualsNothing();
    void vectorsFindAndRemoveARecordByEquality();

    void thePidJoinsTheTwoNumbers_data();
    void thePidJoinsTheTwoNumbers();
    void thePidIsTheTextOfBothNumbersReadAsOne();
    void thePidFollowsItsNumbers();
    void thePayrollIdHasADotBetweenTheTwoNumbers_data();
    void thePayrollIdHasADotBetweenTheTwoNumbers();

    void theShortTextNamesThePerson();
    void theLongTextNamesTheRelationship();
    void invalidDatesAreEmptyInTheTexts();
    void theBalanceIsPrintedWithSixDigits_data();
    void theBalanceIsPrintedWithSixDigits();
    void aPlaceholderInAValueTakesTheNextValue();
    void aPlaceholderInAValueIsFilledInItsTurn();
    void aPlaceholderBeyondTheLastStays();
};

void TestMirovaRonRecord::aDefaultRecordIsEmpty()
{
    const MirovaRonRecord r;
    QCOMPARE(r.osobniCislo, 0U);
    QCOMPARE(r.poradoveCisloPP, 0U);
    QCOMPARE(r.titul, QString());
    QCOMPARE(r.jmeno, QString());
    QCOMPARE(r.prijmeni, QString());
    QCOMPARE(r.titulZa, QString());
    QCOMPARE(r.telefon, QString());
    QCOMPARE(r.datumNastupu, QDate());
    QCOMPARE(r.datumVystupu, QDate());
    QCOMPARE(r.stredisko, 0U);
    QCOMPARE(r.strediskoPopis, QString());
    QCOMPARE(r.kalendar, 0U);
    QCOMPARE(r.kalendarPlatnostOd, QDate());
    QCOMPARE(r.typPracovnihoPomeru, quint16(0));
    QCOMPARE(r.stavPracovnihoPomeru, quint16(0));
    QCOMPARE(r.evidencniStav, quint16(0));
    QCOMPARE(r.rsFrom, QDate());
    QCOMPARE(r.rsTo, QDate());
    QCOMPARE(r.rsText, QString());
    QCOMPARE(r.dovolenaZustatek, 0.0);
    QCOMPARE(r.nadrizenyOsobniCislo, 0U);
}

void TestMirovaRonRecord::copiesAreEqual()
{
    const MirovaRonRecord record = fullRecord();
    MirovaRonRecord assigned;
    QVERIFY(assigned != record);
    assigned = record;
    QCOMPARE(assigned, record);
    QCOMPARE(MirovaRonRecord(record), record);
    QCOMPARE(MirovaRonRecord(), MirovaRonRecord());
}

void TestMirovaRonRecord::everyFieldCountsForEquality_data()
{
    QTest::addColumn<int>("change");
    QCOMPARE(int(std::size(kFieldChanges)), 21);
    for (int i = 0; i < int(std::size(kFieldChanges)); ++i)
        QTest::newRow(kFieldChanges[i].what) << i;
}

void TestMirovaRonRecord::everyFieldCountsForEquality()
{
    QFETCH(int, change);
    MirovaRonRecord a = fullRecord();
    MirovaRonRecord b = fullRecord();
    QVERIFY(a == b);
    QVERIFY(!(a != b));

    kFieldChanges[change].apply(b);
    QVERIFY(!(a == b));
    QVERIFY(!(b == a));
    QVERIFY(a != b);
    QVERIFY(b != a);

    kFieldChanges[change].apply(a);
    QVERIFY(a == b);
    QVERIFY(!(a != b));
}

void TestMirovaRonRecord::textsAreComparedByContent()
{
    MirovaRonRecord null;
    MirovaRonRecord empty;
    empty.titul = QLatin1String("");
    QVERIFY(null.titul.isNull() && !empty.titul.isNull());
    QCOMPARE(null, empty);
}

void TestMirovaRonRecord::aBalanceThatIsNotANumberEqualsNothing()
{
    MirovaRonRecord r = fullRecord();
    r.dovolenaZustatek = std::numeric_limits<double>::quiet_NaN();
    const MirovaRonRecord copy = r;
    QVERIFY(!(r == r));
    QVERIFY(r != r);
    QVERIFY(!(r == copy));
    QVERIFY(r != copy);
}

void TestMirovaRonRecord::vectorsFindAndRemoveARecordByEquality()
{
    MirovaRonRecord other = fullRecord();
    other.rsText.clear();
    QVector<MirovaRonRecord> records = {fullRecord(), other, fullRecord()};
    QVERIFY(records.contains(other));
    QCOMPARE(records.removeAll(fullRecord()), 2);
    QCOMPARE(records, QVector<MirovaRonRecord>({other}));
    QVERIFY(!records.contains(fullRecord()));
}

void TestMirovaRonRecord::thePidJoinsTheTwoNumbers_data()
{
    QTest::addColumn<quint32>("personalNumber");
    QTest::addColumn<quint32>("relationship");
    QTest::addColumn<quint32>("pid");
    QTest::newRow("1234 and 2") << 1234U << 2U << 12342U;
    QTest::newRow("0 and 5: the text 05") << 0U << 5U << 5U;
    QTest::newRow("5 and 0") << 5U << 0U << 50U;
    QTest::newRow("0 and 0") << 0U << 0U << 0U;
    QTest::newRow("the largest pid") << 429496729U << 5U << 4294967295U;
    QTest::newRow("one more") << 429496729U << 6U << 0U;
    QTest::newRow("4294967 and 296 exceed 32 bits") << 4294967U << 296U << 0U;
    QTest::newRow("4294967 and 295 do not") << 4294967U << 295U << 4294967295U;
    QTest::newRow("0 and the largest relationship") << 0U << 4294967295U << 4294967295U;
    QTest::newRow("both largest") << 4294967295U << 4294967295U << 0U;
    QTest::newRow("1 and 23 ...") << 1U << 23U << 123U;
    QTest::newRow("... share a pid with 12 and 3") << 12U << 3U << 123U;
}

void TestMirovaRonRecord::thePidJoinsTheTwoNumbers()
{
    QFETCH(quint32, personalNumber);
    QFETCH(quint32, relationship);
    MirovaRonRecord r;
    r.osobniCislo = personalNumber;
    r.poradoveCisloPP = relationship;
    QTEST(r.getPid(), "pid");
}

void TestMirovaRonRecord::thePidIsTheTextOfBothNumbersReadAsOne()
{
    QRandomGenerator random(20240317);
    int fitting = 0;
    for (int i = 0; i < 200000; ++i) {
        MirovaRonRecord r;
        r.osobniCislo = random.generate() >> random.bounded(32);
        r.poradoveCisloPP = random.generate() >> random.bounded(32);
        const QString digits = QString::number(r.osobniCislo) + QString::number(r.poradoveCisloPP);
        QVERIFY2(r.getPid() == digits.toUInt(), qPrintable(digits));
        fitting += r.getPid() != 0 ? 1 : 0;
    }
    QVERIFY(fitting > 50000 && fitting < 150000);
}

void TestMirovaRonRecord::thePidFollowsItsNumbers()
{
    MirovaRonRecord r = fullRecord();
    QCOMPARE(r.getPid(), 12342U);
    r.poradoveCisloPP = 3;
    QCOMPARE(r.getPid(), 12343U);
    r.osobniCislo = 9;
    QCOMPARE(r.getPid(), 93U);
}

void TestMirovaRonRecord::thePayrollIdHasADotBetweenTheTwoNumbers_data()
{
    QTest::addColumn<quint32>("personalNumber");
    QTest::addColumn<quint32>("relationship");
    QTest::addColumn<QString>("payrollId");
    QTest::newRow("77 and 1") << 77U << 1U << "77.1";
    QTest::newRow("1234 and 2") << 1234U << 2U << "1234.2";
    QTest::newRow("both 0") << 0U << 0U << "0.0";
    QTest::newRow("both largest") << 4294967295U << 4294967295U << "4294967295.4294967295";
}

void TestMirovaRonRecord::thePayrollIdHasADotBetweenTheTwoNumbers()
{
    QFETCH(quint32, personalNumber);
    QFETCH(quint32, relationship);
    MirovaRonRecord r;
    r.osobniCislo = personalNumber;
    r.poradoveCisloPP = relationship;
    QTEST(r.getPamId(), "payrollId");
}

void TestMirovaRonRecord::theShortTextNamesThePerson()
{
    QCOMPARE(fullRecord().getString(true),
             QString("1234.2 Ing. Jana Nováková PhD. (T: 555123456) N-V: 1. 4. 2019 - "
                     "31. 12. 2030 TPP: 11  K: 3  DOV: 12.5, S: 120"));
}

void TestMirovaRonRecord::theLongTextNamesTheRelationship()
{
    QCOMPARE(fullRecord().getString(false),
             QString("1234.2 Nováková Jana (S: 120, K: 3 from 1. 5. 2020) N-V: 1. 4. 2019 - "
                     "31. 12. 2030; ES: 21, RS: 1. 6. 2021 - 1. 7. 2021 'materská dovolenka' "
                     "TPP: 11  DOV: 12.5 NOC: 1001"));
}

void TestMirovaRonRecord::invalidDatesAreEmptyInTheTexts()
{
    QCOMPARE(MirovaRonRecord().getString(true),
             QString("0.0     (T: ) N-V:  -  TPP: 0  K: 0  DOV: 0, S: 0"));
    QCOMPARE(MirovaRonRecord().getString(false),
             QString("0.0   (S: 0, K: 0 from ) N-V:  - ; ES: 0, RS:  -  '' TPP: 0  DOV: 0 NOC: 0"));
}

void TestMirovaRonRecord::theBalanceIsPrintedWithSixDigits_data()
{
    QTest::addColumn<double>("balance");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole days") << 20.0 << "20";
    QTest::newRow("negative") << -0.5 << "-0.5";
    QTest::newRow("rounded") << 12.3456789 << "12.3457";
    QTest::newRow("large") << 1234567.0 << "1.23457e+06";
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << "nan";
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << "inf";
}

void TestMirovaRonRecord::theBalanceIsPrintedWithSixDigits()
{
    QFETCH(double, balance);
    QFETCH(QString, text);
    MirovaRonRecord r;
    r.dovolenaZustatek = balance;
    QCOMPARE(r.getString(true), "0.0     (T: ) N-V:  -  TPP: 0  K: 0  DOV: " + text + ", S: 0");
    QCOMPARE(r.getString(false),
             "0.0   (S: 0, K: 0 from ) N-V:  - ; ES: 0, RS:  -  '' TPP: 0  DOV: " + text
                 + " NOC: 0");
}

// The values are filled in one after the other, each into the lowest placeholder that the text
// then has, its own values included.

void TestMirovaRonRecord::aPlaceholderInAValueTakesTheNextValue()
{
    MirovaRonRecord r = fullRecord();
    r.titul = "%1";
    QCOMPARE(r.getString(true),
             QString("1234.2 Jana Nováková PhD. 555123456 (T: 1. 4. 2019) N-V: 31. 12. 2030 - 11 "
                     "TPP: 3  K: 12.5  DOV: 120, S: %13"));
    r.prijmeni = "%1";
    QCOMPARE(r.getString(false),
             QString("1234.2 Jana 120 (S: 3, K: 1. 5. 2020 from 1. 4. 2019) N-V: 31. 12. 2030 - "
                     "21; ES: 1. 6. 2021, RS: 1. 7. 2021 - materská dovolenka '11' TPP: 12.5  "
                     "DOV: 1001 NOC: %16"));
}

void TestMirovaRonRecord::aPlaceholderInAValueIsFilledInItsTurn()
{
    MirovaRonRecord r = fullRecord();
    r.titul = "%13 of %10";
    QCOMPARE(r.getString(true),
             QString("1234.2 120 of 11 Jana Nováková PhD. (T: 555123456) N-V: 1. 4. 2019 - "
                     "31. 12. 2030 TPP: 11  K: 3  DOV: 12.5, S: 120"));
    r.jmeno = "%16";
    QCOMPARE(r.getString(false),
             QString("1234.2 Nováková 1001 (S: 120, K: 3 from 1. 5. 2020) N-V: 1. 4. 2019 - "
                     "31. 12. 2030; ES: 21, RS: 1. 6. 2021 - 1. 7. 2021 'materská dovolenka' "
                     "TPP: 11  DOV: 12.5 NOC: 1001"));
}

void TestMirovaRonRecord::aPlaceholderBeyondTheLastStays()
{
    MirovaRonRecord r = fullRecord();
    r.jmeno = "100 %99";
    QCOMPARE(r.getString(true),
             QString("1234.2 Ing. 100 %99 Nováková PhD. (T: 555123456) N-V: 1. 4. 2019 - "
                     "31. 12. 2030 TPP: 11  K: 3  DOV: 12.5, S: 120"));
}

QTEST_GUILESS_MAIN(TestMirovaRonRecord)
#include "tst_mirovaronrecord.moc"
