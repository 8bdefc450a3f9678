// A line or a file without an end costs the worker neither memory nor time. A separate program,
// because it measures the program's peak memory.

#include "tests/support/exportfile.h"
#include "tests/support/logcapture.h"
#include "tests/worker/input/workerreading.h"
#include "worker/mhrworker.h"

#include <QFile>
#include <QTest>

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

private:
    static void writeFarBehind(const ExportFile &file, qint64 position, const QByteArray &bytes);

private Q_SLOTS:
    void aLineOfAThousandMegabytesIsSkippedInBoundedMemory_data();
    void aLineOfAThousandMegabytesIsSkippedInBoundedMemory();
    void aFileOfManyGigabytesIsNotReadToItsEndAndKept();
};

/// Writes these bytes at this place of the file; what lies before them is a hole.
void TestEndlessLine::writeFarBehind(const ExportFile &file, qint64 position,
                                     const QByteArray &bytes)
{
    QFile sparse(file.path());
    QVERIFY(sparse.open(QIODevice::ReadWrite));
    QVERIFY(sparse.seek(position));
    QCOMPARE(sparse.write(bytes), qint64(bytes.size()));
    sparse.close();
    QVERIFY(sparse.size() > position);
    QVERIFY(diskUse(file.path()) < kMiB);
}

void TestEndlessLine::aLineOfAThousandMegabytesIsSkippedInBoundedMemory_data()
{
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("of nothing") << QByteArray();
    QTest::newRow("that begins well") << ExportRow().text().toUtf8();
}

void TestEndlessLine::aLineOfAThousandMegabytesIsSkippedInBoundedMemory()
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
    writeFarBehind(file, 1000 * kMiB, '\n' + next.text().toUtf8() + '\n');

    const long before = peakMemory();
    QCOMPARE(WorkerReading::ofFile(file.path()), both);
    const long growth = peakMemory() - before;
    QVERIFY2(growth < 8 * 1024, qPrintable(QString("%1 KiB").arg(growth)));
}

void TestEndlessLine::aFileOfManyGigabytesIsNotReadToItsEndAndKept()
{
    const QString good = ExportRow().text();
    ExportFile file;
    file.write(QStringList{good});
    writeFarBehind(file, 64 * 1024 * kMiB, '\n' + good.toUtf8() + '\n');

    MHRWorker worker;
    worker.setDebugLevel(3);
    worker.setImportFile(file.path());
    worker.setDeleteFileAfterImport(true);
    const LogCapture log;
    worker.loadAndParseData();
    QCOMPARE(
        log.lines().mid(3),
        QStringList({"D MHRWorker::parseLine('" + good + "')",
                     "W MHRWorker::loadAndParseData() - file '" + file.path() + "' NOT removed!"}));
    QVERIFY(file.exists());
}

QTEST_GUILESS_MAIN(TestEndlessLine)
#include "tst_endlessline.moc"
