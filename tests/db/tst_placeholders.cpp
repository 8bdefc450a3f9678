#include "db/placeholders.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

QString chained(QLatin1String text, const QStringList &values)
{
    QString result = text;
    for (const QString &value : values)
        result = result.arg(value);
    return result;
}

const QLatin1String kSixteen("A('%1', '%2', '%3', '%4', '%5', '%6', '%7', %8, %9, %10, %11, '%12', "
                             "%13, %14, %15, %16) B=VALUES(b)");
const QLatin1String kOutOfOrder("a=%1, b='%2', c=%4, d='%5', e=%6 WHERE f=%3");

} // namespace

class TestPlaceholders : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theValuesTakeThePlacesOfTheirNumbers_data();
    void theValuesTakeThePlacesOfTheirNumbers();
    void randomValuesAreFilledInAsByAChain_data();
    void randomValuesAreFilledInAsByAChain();
    void numbersAndCharactersAreFilledInAsByAChain();
};

void TestPlaceholders::theValuesTakeThePlacesOfTheirNumbers_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << "SELECT 1" << QStringList() << "SELECT 1";
    QTest::newRow("one") << "WHERE pid=%1" << QStringList{"7"} << "WHERE pid=7";
    QTest::newRow("only a place") << "%1" << QStringList{"7"} << "7";
    QTest::newRow("twice the same") << "%1 > %1;" << QStringList{"7"} << "7 > 7;";
    QTest::newRow("out of order") << "a='%2' WHERE b=%1" << QStringList{"1", "x"}
                                  << "a='x' WHERE b=1";
    QTest::newRow("an empty value") << "a='%1'" << QStringList{""} << "a=''";
    QTest::newRow("two digits and one more")
        << "%1%2%3%4%5%6%7%8%9%101" << QStringList{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"}
        << "abcdefghij1";
    QTest::newRow("a value with a mark") << "'%1', %2" << QStringList{"100 %", "7"} << "'100 %', 7";
    // Whatever looks like a placeholder is one, also within a value.
    QTest::newRow("a value with a place") << "'%1', %2" << QStringList{"%2", "7"} << "'7', 7";
}

void TestPlaceholders::theValuesTakeThePlacesOfTheirNumbers()
{
    QFETCH(QString, pattern);
    QFETCH(QStringList, values);
    const QByteArray bytes = pattern.toLatin1();
    QTEST(Placeholders::filled(QLatin1String(bytes), values), "text");
}

void TestPlaceholders::randomValuesAreFilledInAsByAChain_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("count");
    QTest::newRow("sixteen") << QString(kSixteen) << 16;
    QTest::newRow("out of order") << QString(kOutOfOrder) << 6;
}

void TestPlaceholders::randomValuesAreFilledInAsByAChain()
{
    QFETCH(QString, pattern);
    QFETCH(int, count);
    const QByteArray bytes = pattern.toLatin1();
    const QLatin1String statement(bytes);
    const QStringList pieces = {"%", "%1", "%2", "%9", "%12", "%L3", "1",
                                "0", "'",  "Á",  " ",  "abc", "",    "\U0001F600"};
    QRandomGenerator random(20240319);
    for (int i = 0; i < 20000; ++i) {
        QStringList values;
        const int variety = i % 2 == 0 ? pieces.size() : 6;
        for (int n = 0; n < count; ++n) {
            QString value;
            // Every other statement has no mark in any value.
            for (int length = random.bounded(4); length > 0; --length)
                value += pieces.at(pieces.size() - 1 - random.bounded(variety));
            values += value;
        }
        QCOMPARE(Placeholders::filled(statement, values), chained(statement, values));
    }
}

void TestPlaceholders::numbersAndCharactersAreFilledInAsByAChain()
{
    const QLatin1String text("%1, %2, %3, %4, '%5', '%6' = %1");
    const ushort narrow = 65535;
    const uint wide = 4294967295U;
    const int negative = -7;
    const qint64 wider = -9223372036854775807LL - 1;
    const QChar character = QLatin1Char('D');
    for (const QString &name : {QStringLiteral("Nováková"), QStringLiteral("5 %"), QString()}) {
        const QString chain =
            QString(text).arg(narrow).arg(wide).arg(negative).arg(wider).arg(character).arg(name);
        QCOMPARE(Placeholders::filled(text, narrow, wide, negative, wider, character, name), chain);
    }
    QCOMPARE(Placeholders::filled(QLatin1String("%1"), QStringLiteral("x")), QStringLiteral("x"));
}

QTEST_APPLESS_MAIN(TestPlaceholders)
#include "tst_placeholders.moc"
