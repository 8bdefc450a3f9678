#include "worker/boundedlinereader.h"

#include <QBuffer>
#include <QIODevice>
#include <QTest>

#include <sys/resource.h>

namespace {

constexpr int kLongestLine = 65536;
constexpr qint64 kMiB = 1024 * 1024;
constexpr qint64 kMostBytes = 1024 * kMiB;

QVector<QByteArray> restOf(BoundedLineReader &reader)
{
    QVector<QByteArray> lines;
    while (reader.next())
        lines += QByteArray(reader.line());
    return lines;
}

QVector<QByteArray> linesOf(QIODevice &device)
{
    BoundedLineReader reader(device);
    return restOf(reader);
}

QVector<QByteArray> linesOf(QByteArray content)
{
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    return linesOf(buffer);
}

/// A first text, one line of a given length, and a second text. The line is never in memory as a
/// whole.
class LongLineDevice : public QIODevice {
public:
    LongLineDevice(const QByteArray &before, qint64 length, const QByteArray &behind)
        : m_before(before)
        , m_left(length)
        , m_behind('\n' + behind)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        if (!m_before.isEmpty())
            return take(m_before, data, maxSize);
        if (m_left == 0)
            return take(m_behind, data, maxSize);
        const qint64 count = qMin(m_left, maxSize);
        memset(data, 'x', size_t(count));
        m_left -= count;
        return count;
    }

    qint64 writeData(const char *, qint64) override { return -1; }

private:
    static qint64 take(QByteArray &text, char *data, qint64 maxSize)
    {
        const qint64 count = qMin(qint64(text.size()), maxSize);
        memcpy(data, text.constData(), size_t(count));
        text.remove(0, int(count));
        return count;
    }

    QByteArray m_before;
    qint64 m_left;
    QByteArray m_behind;
};

/// A text and then an error, once or for ever. After a single error the rest can be read.
class FailingDevice : public QIODevice {
public:
    FailingDevice(const QByteArray &before, const QByteArray &behind)
        : m_before(before)
        , m_behind(behind)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const QByteArray text = std::exchange(m_before, QByteArray());
        if (text.isEmpty()) {
            m_before = std::exchange(m_behind, QByteArray());
            setErrorString("the disk is gone");
            return -1;
        }
        Q_ASSERT(text.size() <= maxSize);
        memcpy(data, text.constData(), size_t(text.size()));
        return text.size();
    }

    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_before;
    QByteArray m_behind;
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

    void completeLinesBeforeAnErrorAreRead();
    void aLineThatAnErrorCutsIsLeftOut_data();
    void aLineThatAnErrorCutsIsLeftOut();
    void nothingIsReadBehindAnError();
    void aDeviceThatIsReadToItsEndHasNotFailed();
    void aDeviceOfOneGibibyteIsReadToItsEnd();
    void noMoreThanOneGibibyteIsRead_data();
    void noMoreThanOneGibibyteIsRead();
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
    BoundedLineReader reader(closed);
    QVERIFY(!reader.next());
    QVERIFY(reader.hasFailed());
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
    LongLineDevice device({}, 64 * kMiB, "next\n");
    const long before = peakMemory();
    QCOMPARE(linesOf(device), QVector<QByteArray>({"next\n"}));
    const long growth = peakMemory() - before;
    QVERIFY2(growth < 8 * 1024, qPrintable(QString("%1 KiB").arg(growth)));
}

// ---- Errors and limits --------------------------------------------------------------------------

void TestBoundedLineReader::completeLinesBeforeAnErrorAreRead()
{
    FailingDevice device("one\n\ntwo\n", {});
    BoundedLineReader reader(device);
    QCOMPARE(restOf(reader), QVector<QByteArray>({"one\n", "\n", "two\n"}));
    QCOMPARE(reader.lineNumber(), 3);
    QVERIFY(reader.hasFailed());
    QCOMPARE(reader.errorString(), QString("the disk is gone"));
}

void TestBoundedLineReader::aLineThatAnErrorCutsIsLeftOut_data()
{
    QTest::addColumn<QByteArray>("cut");
    QTest::newRow("a short one") << QByteArray("tw");
    QTest::newRow("one that is as long as it may be") << QByteArray(kLongestLine - 4, 'x');
    QTest::newRow("a carriage return") << QByteArray("\r");
}

void TestBoundedLineReader::aLineThatAnErrorCutsIsLeftOut()
{
    QFETCH(QByteArray, cut);
    FailingDevice device("one\n" + cut, {});
    BoundedLineReader reader(device);
    QCOMPARE(restOf(reader), QVector<QByteArray>({"one\n"}));
    QCOMPARE(reader.lineNumber(), 1);
    QVERIFY(reader.hasFailed());
}

void TestBoundedLineReader::nothingIsReadBehindAnError()
{
    // The rest of the cut line would look like a line.
    FailingDevice device("one\ntw", "o\nthree\n");
    BoundedLineReader reader(device);
    QCOMPARE(restOf(reader), QVector<QByteArray>({"one\n"}));
    QCOMPARE(restOf(reader), QVector<QByteArray>());
    QVERIFY(reader.hasFailed());
}

void TestBoundedLineReader::aDeviceThatIsReadToItsEndHasNotFailed()
{
    for (const QByteArray &content : {QByteArray(), QByteArray("one"), QByteArray("one\n"),
                                      QByteArray(3 * kLongestLine, 'x')}) {
        LongLineDevice device(content, 0, {});
        BoundedLineReader reader(device);
        restOf(reader);
        QVERIFY(!reader.hasFailed());
        QCOMPARE(reader.errorString(), QString());
    }
}

void TestBoundedLineReader::aDeviceOfOneGibibyteIsReadToItsEnd()
{
    const QByteArray before = "one\n";
    const QByteArray behind = "two";
    LongLineDevice device(before, kMostBytes - before.size() - behind.size() - 1, behind);
    BoundedLineReader reader(device);
    QCOMPARE(restOf(reader), QVector<QByteArray>({"one\n", "two"}));
    QCOMPARE(reader.lineNumber(), 3);
    QVERIFY(!reader.hasFailed());
}

void TestBoundedLineReader::noMoreThanOneGibibyteIsRead_data()
{
    QTest::addColumn<qint64>("length");
    QTest::newRow("one byte more") << kMostBytes - 4;
    QTest::newRow("a thousand times as much") << 1000 * kMostBytes;
}

void TestBoundedLineReader::noMoreThanOneGibibyteIsRead()
{
    QFETCH(qint64, length);
    LongLineDevice device("one\n", length, "two\n");
    BoundedLineReader reader(device);
    QCOMPARE(restOf(reader), QVector<QByteArray>({"one\n"}));
    QCOMPARE(reader.lineNumber(), 1);
    QVERIFY(reader.hasFailed());
    QCOMPARE(reader.errorString(),
             QString("it is longer than 1 GiB, and the plugin reads no further"));
}

QTEST_GUILESS_MAIN(TestBoundedLineReader)
#include "tst_boundedlinereader.moc"
