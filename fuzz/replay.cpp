// The inputs that people wrote and that the fuzzer has kept, one try each.

#include "fuzz/fuzztarget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

class TestFuzzCorpus : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyInputIsReadAsItMustBe_data();
    void everyInputIsReadAsItMustBe();
};

void TestFuzzCorpus::everyInputIsReadAsItMustBe_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("seeds") << SEEDS;
    QTest::newRow("corpus") << CORPUS;
}

void TestFuzzCorpus::everyInputIsReadAsItMustBe()
{
    QFETCH(QString, folder);
    const QFileInfoList inputs = QDir(folder).entryInfoList(QDir::Files);
    QVERIFY(!inputs.isEmpty());
    for (const QFileInfo &input : inputs) {
        QFile file(input.filePath());
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(input.filePath()));
        const QByteArray bytes = file.readAll();
        qInfo("%s", qUtf8Printable(input.fileName()));
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()),
                               size_t(bytes.size()));
    }
}

QTEST_GUILESS_MAIN(TestFuzzCorpus)
#include "replay.moc"
