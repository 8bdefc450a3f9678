// The inputs that the fuzzer has kept, one try each.

#include "fuzz/fuzztarget.h"

#include <QDir>
#include <QFile>
#include <QtTest>

class TestFuzzCorpus : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyInputIsReadAsItMustBe();
};

void TestFuzzCorpus::everyInputIsReadAsItMustBe()
{
    const QStringList names = QDir(CORPUS).entryList(QDir::Files);
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        QFile file(CORPUS "/" + name);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(name));
        const QByteArray input = file.readAll();
        qInfo("%s", qUtf8Printable(name));
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.constData()),
                               size_t(input.size()));
    }
}

QTEST_GUILESS_MAIN(TestFuzzCorpus)
#include "replay.moc"
