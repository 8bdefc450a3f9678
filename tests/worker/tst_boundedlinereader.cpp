#include "worker/boundedlinereader.h"

#include <QBuffer>
#include <QIODevice>
#include <QtTest>

#include <sys/resource.h>

namespace {

constexpr int kLongestLine = 65536;

QVector<QByteArray> linesOf(QIODevice &device)
{
    QVector<QByteArray> lines;
    BoundedLineReader reader(device);
    while (reader.next())
        lines += QByteArray(reader.line());
    return lines;
}

QVector<QByteArray> linesOf(QByteArray content)
{
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    return linesOf(buffer);
}

/// One line of a given length, then a short one. Neither is ever in memory as a whole.
class LongLineDevice : public QIODevice {
public:
    explicit LongLineDevice(qint64 length)
        : m_left(length)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        if (m_left > 0) {
            const qint64 count = qMin(m_left, maxSize);
            memset(data, 'x', size_t(count));
            m_left -= count;
            return count;
        }
        const qint64 count = qMin(qint64(m_rest.size()), maxSize);
        memcpy(data, m_rest.constData(), size_t(count));
        m_rest.remove(0, int(count));
        return count > 0 ? count : -1;
    }

    qint64 writeData(const char *, qint64) override { return -1; }

private:
    qint64 m_left;
    QByteArray m_rest = "\nnext\n";
};

/// The most memory that this program has held so far, in KiB.
long peakMemory()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

class TestBoundedLineReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void linesComeWithTheirLineFeed();
    void theLastLineNeedsNoLineFeed();
    void anEmptyDeviceHasNoLine();
    void aDeviceThatIsNotOpenHasNoLine();
    void aLineEndsAtItsFirstNulForTheCaller();
    void aLineOf64KiBIsRead_data();
    void aLineOf64KiBIsRead();
    void aLongerLineIsSkippedWhole_data();
    void aLongerLineIsSkippedWhole();
    void longLinesInARowAreSkipped();
    void aLongLineCostsNoMemory();
};

void TestBoundedLineReader::linesComeWithTheirLineFeed()
{
    QCOMPARE(linesOf("one\ntwo\r\n\n four\n"),
             QVector<QByteArray>({"one\n", "two\r\n", "\n", " four\n"}));
}

void TestBoundedLineReader::theLastLineNeedsNoLineFeed()
{
    QCOMPARE(linesOf("one\ntwo"), QVector<QByteArray>({"one\n", "two"}));
}

void TestBoundedLineReader::anEmptyDeviceHasNoLine()
{
    QCOMPARE(linesOf(""), QVector<QByteArray>());
}

void TestBoundedLineReader::aDeviceThatIsNotOpenHasNoLine()
{
    QBuffer closed;
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::read (QBuffer): device not open");
    QCOMPARE(linesOf(closed), QVector<QByteArray>());
}

void TestBoundedLineReader::aLineEndsAtItsFirstNulForTheCaller()
{
    const QByteArray content("on\0e\ntwo\n", 9);
    QCOMPARE(linesOf(content), QVector<QByteArray>({"on", "two\n"}));
}

void TestBoundedLineReader::aLineOf64KiBIsRead_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("in the middle") << QByteArray("\nnext\n");
    QTest::newRow("last, with a line feed") << QByteArray("\n");
    QTest::newRow("last, without a line feed") << QByteArray();
}

void TestBoundedLineReader::aLineOf64KiBIsRead()
{
    QFETCH(QByteArray, end);
    const QByteArray line(kLongestLine, 'x');
    QVector<QByteArray> expected = {end.isEmpty() ? line : line + '\n'};
    if (end.size() > 1)
        expected += "next\n";
    QVERIFY(linesOf("first\n" + line + end) == QVector<QByteArray>({"first\n"}) + expected);
}

void TestBoundedLineReader::aLongerLineIsSkippedWhole_data()
{
    QTest::addColumn<int>("length");
    for (const int length :
         {kLongestLine + 1, kLongestLine + 2, kLongestLine + 3, 2 * kLongestLine,
          2 * kLongestLine + 1, 2 * kLongestLine + 2, 2 * kLongestLine + 3, 10 * kLongestLine})
        QTest::addRow("%d bytes", length) << length;
}

void TestBoundedLineReader::aLongerLineIsSkippedWhole()
{
    QFETCH(int, length);
    const QByteArray line(length, 'x');
    QCOMPARE(linesOf("first\n" + line + "\nnext\n"), QVector<QByteArray>({"first\n", "next\n"}));
    QCOMPARE(linesOf(line + "\nnext"), QVector<QByteArray>({"next"}));
    QCOMPARE(linesOf("first\n" + line + '\n'), QVector<QByteArray>({"first\n"}));
    QCOMPARE(linesOf("first\n" + line), QVector<QByteArray>({"first\n"}));
}

void TestBoundedLineReader::longLinesInARowAreSkipped()
{
    const QByteArray line = QByteArray(kLongestLine + 1, 'x') + '\n';
    QCOMPARE(linesOf(line + line + "next\n" + line), QVector<QByteArray>({"next\n"}));
}

void TestBoundedLineReader::aLongLineCostsNoMemory()
{
    constexpr qint64 kMiB = 1024 * 1024;
    LongLineDevice device(64 * kMiB);
    const long before = peakMemory();
    QCOMPARE(linesOf(device), QVector<QByteArray>({"next\n"}));
    const long growth = peakMemory() - before;
    QVERIFY2(growth < 8 * 1024, qPrintable(QString("%1 KiB").arg(growth)));
}

QTEST_GUILESS_MAIN(TestBoundedLineReader)
#include "tst_boundedlinereader.moc"
