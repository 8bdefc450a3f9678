#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/moment.h"
#include "mirovahrctl/report/wording.h"
#include "tests/mirovahrctl/program/toolrun.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTest>
#include <QTimeZone>

/// In which language mirovahrctl speaks, and how it writes numbers and times there.
class TestLanguage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theLocaleDecides_data();
    void theLocaleDecides();
    void theOptionOverridesTheLocale_data();
    void theOptionOverridesTheLocale();
    void theLastOptionHolds();
    void afterTheEndOfTheOptionsThereIsNone();
    void anUnknownLanguageIsRefused_data();
    void anUnknownLanguageIsRefused();
    void jsonIsEnglish_data();
    void jsonIsEnglish();
    void countsHaveTheFormsOfTheLanguage_data();
    void countsHaveTheFormsOfTheLanguage();
    void numbersAreWrittenAsInTheLanguage();
    void quotationMarksAreThoseOfTheLanguage();
    void timesAreWrittenAsInTheLanguage();
    void timesInFilesAreTheSameInEveryLanguage();
};

namespace {

const char *const kVariables[] = {"LC_ALL", "LC_MESSAGES", "LANG"};

const QString kEnglish = QStringLiteral("Unknown rule 'x'; mirovahrctl rules lists them.");
const QString kSlovak = QStringLiteral("Neznáme pravidlo „x“; zoznam vypíše mirovahrctl rules.");
const QString kCzech = QStringLiteral("Neznámé pravidlo „x“; seznam vypíše mirovahrctl rules.");

/// What `mirovahrctl rules x` says.
QString answer(const QStringList &arguments)
{
    const ToolRun run = runTool(arguments);
    return run.err.section("mirovahrctl: rules: ", 1).trimmed();
}

} // namespace

void TestLanguage::init()
{
    for (const char *const variable : kVariables)
        qunsetenv(variable);
}

void TestLanguage::cleanup()
{
    Language::use("en");
}

void TestLanguage::theLocaleDecides_data()
{
    QTest::addColumn<QByteArrayList>("values"); // of kVariables
    QTest::addColumn<QString>("expected");

    QTest::newRow("none") << QByteArrayList{"", "", ""} << kEnglish;
    QTest::newRow("LANG") << QByteArrayList{"", "", "sk_SK.UTF-8"} << kSlovak;
    QTest::newRow("LC_MESSAGES") << QByteArrayList{"", "cs_CZ.UTF-8", "sk_SK.UTF-8"} << kCzech;
    QTest::newRow("LC_ALL") << QByteArrayList{"sk_SK.UTF-8", "cs_CZ.UTF-8", "de_DE"} << kSlovak;
    QTest::newRow("without a country") << QByteArrayList{"", "", "cs"} << kCzech;
    QTest::newRow("with a variant") << QByteArrayList{"", "", "sk_SK@euro"} << kSlovak;
    QTest::newRow("C") << QByteArrayList{"C", "sk_SK.UTF-8", "sk_SK.UTF-8"} << kEnglish;
    QTest::newRow("C.UTF-8") << QByteArrayList{"", "", "C.UTF-8"} << kEnglish;
    QTest::newRow("POSIX") << QByteArrayList{"", "", "POSIX"} << kEnglish;
    QTest::newRow("another language") << QByteArrayList{"", "", "de_DE.UTF-8"} << kEnglish;
    QTest::newRow("of a similar name") << QByteArrayList{"", "", "skr_PK.UTF-8"} << kEnglish;
    QTest::newRow("nonsense") << QByteArrayList{"", "", "x"} << kEnglish;
}

void TestLanguage::theLocaleDecides()
{
    QFETCH(QByteArrayList, values);
    QFETCH(QString, expected);
    for (int i = 0; i < values.size(); ++i)
        qputenv(kVariables[i], values.at(i));
    QCOMPARE(answer({"rules", "x"}), expected);
}

void TestLanguage::theOptionOverridesTheLocale_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("behind the subcommand") << QStringList{"rules", "--language", "cs", "x"};
    QTest::newRow("at the end") << QStringList{"rules", "x", "--language", "cs"};
    QTest::newRow("before the subcommand") << QStringList{"--language", "cs", "rules", "x"};
    QTest::newRow("with an equals sign") << QStringList{"rules", "--language=cs", "x"};
}

void TestLanguage::theOptionOverridesTheLocale()
{
    QFETCH(QStringList, arguments);
    qputenv("LC_ALL", "sk_SK.UTF-8");
    QCOMPARE(answer(arguments), kCzech);
}

void TestLanguage::theLastOptionHolds()
{
    QCOMPARE(answer({"--language", "cs", "rules", "x", "--language=sk"}), kSlovak);
}

void TestLanguage::afterTheEndOfTheOptionsThereIsNone()
{
    const ToolRun run = runTool({"check-file", "--", "--language"});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QVERIFY2(run.err.contains("'--language'"), run.report().constData());
}

void TestLanguage::anUnknownLanguageIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("subcommand"); // that refuses it; empty: the program
    QTest::newRow("another one") << QStringList{"rules", "--language", "de"} << "de"
                                 << "rules: ";
    QTest::newRow("before the subcommand") << QStringList{"--language", "de", "rules"} << "de"
                                           << "rules: ";
    QTest::newRow("a locale") << QStringList{"rules", "--language=sk_SK"} << "sk_SK"
                              << "rules: ";
    QTest::newRow("none") << QStringList{"rules", "--language"} << ""
                          << "rules: ";
    QTest::newRow("an empty one") << QStringList{"--language=", "rules"} << ""
                                  << "rules: ";
    QTest::newRow("without a subcommand") << QStringList{"--language", "de"} << "de"
                                          << "";
    QTest::newRow("of the overview") << QStringList{"help", "--language", "de"} << "de"
                                     << "";
}

void TestLanguage::anUnknownLanguageIsRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, language);
    QFETCH(QString, subcommand);
    const QString sentence = QString("Unknown language '%1'; there are cs, en, sk.").arg(language);
    const ToolRun run = runTool(arguments);
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, "mirovahrctl: " + subcommand + sentence + '\n');
    QCOMPARE(run.out, QString());
    QCOMPARE(runTool(QStringList("--json") + arguments).failure(), sentence);
}

void TestLanguage::jsonIsEnglish_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("a report") << QStringList{"rules", "--json"};
    QTest::newRow("a failure") << QStringList{"rules", "x", "--json"};
    QTest::newRow("wrong usage") << QStringList{"rules", "--json", "--nothing"};
}

void TestLanguage::jsonIsEnglish()
{
    QFETCH(QStringList, arguments);
    const ToolRun english = runTool(arguments);
    QVERIFY2(!english.json().isEmpty(), english.report().constData());
    QCOMPARE(runTool(arguments + QStringList{"--language", "sk"}).report(), english.report());
    qputenv("LC_ALL", "cs_CZ.UTF-8");
    QCOMPARE(runTool(arguments).report(), english.report());
}

void TestLanguage::countsHaveTheFormsOfTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("expected"); // of 0, 1, 2, 4, 5, 22 and 50000 seconds

    QTest::newRow("en") << "en" << QStringList{"0 seconds", "1 second",   "2 seconds", "4 seconds",
                                               "5 seconds", "22 seconds", "13 hours"};
    QTest::newRow("sk") << "sk" << QStringList{"0 sekúnd", "1 sekunda", "2 sekundy", "4 sekundy",
                                               "5 sekúnd", "22 sekúnd", "13 hodín"};
    QTest::newRow("cs") << "cs" << QStringList{"0 sekund", "1 sekunda", "2 sekundy", "4 sekundy",
                                               "5 sekund", "22 sekund", "13 hodin"};
}

void TestLanguage::countsHaveTheFormsOfTheLanguage()
{
    QFETCH(QString, language);
    QFETCH(QStringList, expected);
    Language::use(language);
    QStringList spans;
    for (const qint64 seconds : {0, 1, 2, 4, 5, 22, 50000})
        spans << Wording::span(seconds);
    QCOMPARE(spans, expected);
}

void TestLanguage::numbersAreWrittenAsInTheLanguage()
{
    QCOMPARE(Language::number(1234567), QString("1234567"));
    QCOMPARE(Language::number(12.5, 1), QString("12.5"));
    for (const char *const language : {"sk", "cs"}) {
        Language::use(language);
        QCOMPARE(Language::number(1234567), QString("1\u00a0234\u00a0567"));
        QCOMPARE(Language::number(12.5, 1), QString("12,5"));
        QVERIFY(Wording::span(86400 * qint64(12345)).startsWith("12\u00a0345 "));
    }
}

void TestLanguage::quotationMarksAreThoseOfTheLanguage()
{
    QCOMPARE(Wording::quoted("12,5"), QString("\"12,5\""));
    for (const char *const language : {"sk", "cs"}) {
        Language::use(language);
        QCOMPARE(Wording::quoted("12,5"), QString("„12,5“"));
        QCOMPARE(Wording::quoted(QString(61, 'x')), "„" + QString(60, 'x') + "“…");
    }
}

void TestLanguage::timesAreWrittenAsInTheLanguage()
{
    const QDateTime time(QDate(2026, 11, 3), QTime(5, 6, 7), Qt::UTC);
    const QString zone = time.toLocalTime()
                             .toOffsetFromUtc(time.toLocalTime().offsetFromUtc())
                             .timeZoneAbbreviation();
    QVERIFY2(Moment::text(time).startsWith("2026-11-0"), qPrintable(Moment::text(time)));
    QCOMPARE(Moment::text(time.date()), QString("2026-11-03"));
    for (const char *const language : {"sk", "cs"}) {
        Language::use(language);
        static const QRegularExpression form("^\\d\\.\u00a011\\.\u00a02026\u00a0\\d+:06:07\u00a0"
                                             "\\(.*\\)$");
        QVERIFY2(form.match(Moment::text(time)).hasMatch(), qPrintable(Moment::text(time)));
        QVERIFY(Moment::text(time).endsWith('(' + zone + ')'));
        QCOMPARE(Moment::text(time.date()), QString("3.\u00a011.\u00a02026"));
    }
}

void TestLanguage::timesInFilesAreTheSameInEveryLanguage()
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(1793000000);
    const QString english = Moment::fileText(time);
    QCOMPARE(QDateTime::fromString(english, Qt::ISODate), time);
    Language::use("sk");
    QCOMPARE(Moment::fileText(time), english);
}

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_language.moc"
