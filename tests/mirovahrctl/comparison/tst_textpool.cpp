#include "mirovahrctl/comparison/textpool.h"

#include <QTest>

/// Texts that are kept once.
class TestTextPool : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void equalTextsHaveOneNumber();
    void numbersStayWhenThePoolGrows();
};

void TestTextPool::equalTextsHaveOneNumber()
{
    TextPool pool;
    const QStringList texts{"Jana", "", "Ján", "jana", "👤", "Jan", "a"};
    QVector<quint32> numbers;
    for (const QString &text : texts)
        numbers += pool.add(text);
    QCOMPARE(QSet<quint32>(numbers.cbegin(), numbers.cend()).size(), texts.size());
    for (int i = 0; i < texts.size(); ++i) {
        QCOMPARE(pool.at(numbers.at(i)), texts.at(i));
        QCOMPARE(pool.add(texts.at(i)), numbers.at(i));
    }
    QCOMPARE(pool.add(QString()), numbers.at(1));
}

void TestTextPool::numbersStayWhenThePoolGrows()
{
    constexpr int kTexts = 100000;
    TextPool pool;
    QVector<quint32> numbers;
    for (int i = 0; i < kTexts; ++i)
        numbers += pool.add(QString::number(i));
    for (int i = 0; i < kTexts; ++i) {
        QCOMPARE(pool.at(numbers.at(i)), QString::number(i));
        QCOMPARE(pool.add(QString::number(i)), numbers.at(i));
    }
}

QTEST_APPLESS_MAIN(TestTextPool)
#include "tst_textpool.moc"
