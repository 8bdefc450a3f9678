#include "mirovahrctl/anonymise/othertexts.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

const QByteArray kKey(32, 'k');

/// All texts of so many of these characters.
QVector<QByteArray> allTexts(const QByteArray &characters, int length)
{
    QVector<QByteArray> texts{QByteArray()};
    for (int i = 0; i < length; ++i) {
        QVector<QByteArray> longer;
        for (const QByteArray &text : qAsConst(texts)) {
            for (const char character : characters)
                longer += text + character;
        }
        texts = longer;
    }
    return texts;
}

} // namespace

class TestOtherTexts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFormStays_data();
    void theFormStays();
    void whatIsNeitherLetterNorDigitStays_data();
    void whatIsNeitherLetterNorDigitStays();
    void lettersThatMayBelongToAPlaceholderStay_data();
    void lettersThatMayBelongToAPlaceholderStay();
    void noTwoTextsBecomeTheSame_data();
    void noTwoTextsBecomeTheSame();
    void aTextAlwaysBecomesTheSame();
    void anotherKeyGivesOtherTexts();
    void aChangedLetterChangesTheWholeText();
};

void TestOtherTexts::theFormStays_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("form"); // a regular expression
    QTest::newRow("a name") << QByteArray("Janicka") << "^[A-Z][a-z]{6}$";
    QTest::newRow("capitals") << QByteArray("JANICKA") << "^[A-Z]{7}$";
    QTest::newRow("accents") << QByteArray("Šťastný-Žiak")
                             << "^[Ā-žÀ-Þ][À-ž][a-z]{4}[à-ž]-[À-ž][a-z]{3}$";
    QTest::newRow("another script") << QByteArray("Іваненко") << "^[\\p{Cyrillic}]{8}$";
    QTest::newRow("a phone number") << QByteArray("+421 0905/123 456")
                                    << "^\\+[1-9]\\d\\d 0[1-9]\\d\\d/[1-9]\\d\\d [1-9]\\d\\d$";
    QTest::newRow("zeros in front") << QByteArray("000120") << "^000[1-9]\\d\\d$";
    QTest::newRow("letters beyond U+FFFF")
        << QString("𐐀𐐁𐐂").toUtf8() << "^[\\x{10400}-\\x{10427}]{3}$";
}

void TestOtherTexts::theFormStays()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, form);
    const QByteArray other = OtherTexts(kKey).of(text);
    QCOMPARE(other.size(), text.size());
    QVERIFY(other != text);
    const QRegularExpression expression(form, QRegularExpression::UseUnicodePropertiesOption);
    QVERIFY2(expression.match(QString::fromUtf8(other)).hasMatch(), other.constData());
}

void TestOtherTexts::whatIsNeitherLetterNorDigitStays_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("blanks") << QByteArray(" \t\xC2\xA0");
    QTest::newRow("zeros") << QByteArray("000");
    QTest::newRow("signs") << QByteArray("'\\%|;.,-/@");
    QTest::newRow("an emoji") << QString("👤").toUtf8();
    QTest::newRow("NUL bytes") << QByteArray(3, '\0');
    QTest::newRow("bytes that are no UTF-8") << QByteArray("\xFF\xC5\xE2\x82\xED\xA0\x80");
    QTest::newRow("a byte order mark") << QByteArray("\xEF\xBB\xBF");
    QTest::newRow("a replacement character") << QByteArray("\xEF\xBF\xBD");
}

void TestOtherTexts::whatIsNeitherLetterNorDigitStays()
{
    QFETCH(QByteArray, text);
    QCOMPARE(OtherTexts(kKey).of(text), text);
    const QByteArray around = OtherTexts(kKey).of("Horvat" + text + "Horvat");
    QCOMPARE(around.mid(6, text.size()), text);
    QVERIFY(!around.startsWith("Horvat"));
    QVERIFY(!around.endsWith("Horvat"));
}

void TestOtherTexts::lettersThatMayBelongToAPlaceholderStay_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("form");
    QTest::newRow("a placeholder") << QByteArray("%L1") << "^%L[1-9]$";
    QTest::newRow("a parted placeholder") << QByteArray("%' 'L1") << "^%' 'L[1-9]$";
    QTest::newRow("no placeholder") << QByteArray("%a1") << "^%a[1-9]$";
}

void TestOtherTexts::lettersThatMayBelongToAPlaceholderStay()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, form);
    for (char byte = 0; byte < 26; ++byte) {
        const QByteArray other = OtherTexts(QByteArray(32, byte)).of(text);
        QVERIFY2(QRegularExpression(form).match(other).hasMatch(), other.constData());
    }
}

void TestOtherTexts::noTwoTextsBecomeTheSame_data()
{
    QTest::addColumn<QByteArray>("characters");
    QTest::addColumn<int>("length");
    const QByteArray letters("abcdefghijklmnopqrstuvwxyz");
    QTest::newRow("one letter") << letters << 1;
    QTest::newRow("two letters") << letters << 2;
    QTest::newRow("three letters") << letters << 3;
    QTest::newRow("digits") << QByteArray("0123456789") << 4;
    QTest::newRow("a mixture") << QByteArray("aB1 .0") << 4;
}

void TestOtherTexts::noTwoTextsBecomeTheSame()
{
    QFETCH(QByteArray, characters);
    QFETCH(int, length);
    OtherTexts texts(kKey);
    const QVector<QByteArray> all = allTexts(characters, length);
    QSet<QByteArray> others;
    for (const QByteArray &text : all)
        others += texts.of(text);
    QCOMPARE(others.size(), all.size());
}

void TestOtherTexts::aTextAlwaysBecomesTheSame()
{
    OtherTexts texts(kKey);
    OtherTexts again(kKey);
    for (const char *const text : {"Horvath", "Horvath", "0905123456"})
        QCOMPARE(texts.of(text), again.of(text));
    QCOMPARE(texts.of(QByteArray(70, 'x')), texts.of(QByteArray(70, 'x')));
    // More texts than are remembered.
    const QByteArray first = texts.of("Horvath");
    for (int i = 0; i < 20001; ++i)
        texts.of("a" + QByteArray::number(i));
    QCOMPARE(texts.of("Horvath"), first);
}

void TestOtherTexts::anotherKeyGivesOtherTexts()
{
    QVERIFY(OtherTexts(kKey).of("Horvathova") != OtherTexts(QByteArray(32, 'l')).of("Horvathova"));
}

void TestOtherTexts::aChangedLetterChangesTheWholeText()
{
    OtherTexts texts(kKey);
    const QByteArray one = texts.of("Horvathovaaaaaaa");
    for (const char *const changed : {"Iorvathovaaaaaaa", "Horvathovaaaaaab"}) {
        const QByteArray other = texts.of(changed);
        int same = 0;
        for (int i = 0; i < one.size(); ++i)
            same += one.at(i) == other.at(i) ? 1 : 0;
        QVERIFY2(same <= 6, other.constData());
    }
}

QTEST_GUILESS_MAIN(TestOtherTexts)
#include "tst_othertexts.moc"
