// A line without an end costs the worker no memory. A program of its own: it looks at the most
// memory that the program has ever held.

#include "tests/input/workerreading.h"
#include "tests/support/exportfile.h"

#include <QFile>
#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

constexpr qint64 kMiB = 1024 * 1024;

/// The most memory that this program has held so far, in KiB.
long peakMemory()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// What the file takes on the disk, in bytes.
qint64 diskUse(const QString &path)
{
    struct stat status = {};
    ::stat(qPrintable(path), &status);
    return qint64(status.st_blocks) * 512;
}

} // namespace

class TestEndlessLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aLineOfGigabytesIsSkippedInBoundedMemory_data();
    void aLineOfGigabytesIsSkippedInBoundedMemory();
};

void TestEndlessLine::aLineOfGigabytesIsSkippedInBoundedMemory_data()
{
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("of nothing") << QByteArray();
    QTest::newRow("that begins well") << ExportRow().text().toUtf8();
}

void TestEndlessLine::aLineOfGigabytesIsSkippedInBoundedMemory()
{
    QFETCH(QByteArray, begin);
    const ExportRow first = ExportRow().with(&ExportRow::osobniCislo, 1);
    const ExportRow next = ExportRow().with(&ExportRow::osobniCislo, 2);
    ExportFile file;
    file.write({first, next});
    const QStringList both = WorkerReading::ofFile(file.path());
    QCOMPARE(both.size(), 4);

    // The same two lines with another one between them, most of which is a hole in the file.
    file.writeBytes(first.text().toUtf8() + '\n' + begin);
    QFile sparse(file.path());
    QVERIFY(sparse.open(QIODevice::ReadWrite));
    QVERIFY(sparse.seek(4096 * kMiB));
    sparse.write('\n' + next.text().toUtf8() + '\n');
    sparse.close();
    QVERIFY(sparse.size() > 4096 * kMiB);
    QVERIFY(diskUse(file.path()) < kMiB);

    const long before = peakMemory();
    QCOMPARE(WorkerReading::ofFile(file.path()), both);
    const long growth = peakMemory() - before;
    QVERIFY2(growth < 8 * 1024, qPrintable(QString("%1 KiB").arg(growth)));
}

QTEST_GUILESS_MAIN(TestEndlessLine)
#include "tst_endlessline.moc"
