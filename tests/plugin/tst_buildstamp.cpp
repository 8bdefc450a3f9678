#include "plugin/buildstamp.h"

#include <QLocale>
#include <QTest>

/// Linked with the code as it is compiled with SOURCE_DATE_EPOCH=1670454511.
class TestBuildStamp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void itIsMadeOfTheCompilersTexts_data();
    void itIsMadeOfTheCompilersTexts();
    void theMonthIsEnglishInEveryLocale();
    void ofAReproducibleBuildItIsTheMomentInUtc();
};

void TestBuildStamp::cleanup()
{
    QLocale::setDefault(QLocale::system());
}

void TestBuildStamp::itIsMadeOfTheCompilersTexts_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("stamp");
    QTest::newRow("day of one digit") << "Dec  7 2022"
                                      << "23:08:31"
                                      << "2212072308";
    QTest::newRow("day of two digits") << "Dec 17 2022"
                                       << "23:08:31"
                                       << "2212172308";
    QTest::newRow("seconds are dropped") << "Jan  1 2026"
                                         << "00:00:59"
                                         << "2601010000";
    QTest::newRow("white space around") << " Dec   7  2022 "
                                        << " 23:08:31 "
                                        << "2212072308";
    QTest::newRow("last day of a leap February") << "Feb 29 2024"
                                                 << "12:34:56"
                                                 << "2402291234";
    QTest::newRow("no such day") << "Feb 30 2024"
                                 << "12:34:56"
                                 << "";
    QTest::newRow("no such time counts as midnight") << "Dec  7 2022"
                                                     << "24:00:00"
                                                     << "2212070000";
    QTest::newRow("unknown date") << "??? ?? ????"
                                  << "23:08:31"
                                  << "";
    QTest::newRow("unknown time counts as midnight") << "Dec  7 2022"
                                                     << "??:??:??"
                                                     << "2212070000";
    QTest::newRow("nothing") << ""
                             << ""
                             << "";
    QTest::newRow("a month that is not English") << "dec  7 2022 r."
                                                 << "23:08:31"
                                                 << "";
}

void TestBuildStamp::itIsMadeOfTheCompilersTexts()
{
    QFETCH(QString, date);
    QFETCH(QString, time);
    QFETCH(QString, stamp);
    QCOMPARE(BuildStamp::fromCompilerTexts(date, time), stamp);
}

void TestBuildStamp::theMonthIsEnglishInEveryLocale()
{
    // "Oct" has another name in this one.
    QLocale::setDefault(QLocale("cs_CZ"));
    QCOMPARE(BuildStamp::fromCompilerTexts("Oct  9 2022", "01:02:03"), QString("2210090102"));
}

void TestBuildStamp::ofAReproducibleBuildItIsTheMomentInUtc()
{
    QCOMPARE(BuildStamp::ofThisBuild(), QString("2212072308"));
}

QTEST_GUILESS_MAIN(TestBuildStamp)
#include "tst_buildstamp.moc"
