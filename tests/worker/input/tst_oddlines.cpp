// Lines as other systems and broken transfers leave them, one kind at a time.

#include "tests/support/exportfile.h"
#include "tests/worker/input/workerreading.h"

#include <QTest>
#include <QTextCodec>

namespace {

const QString kJana = "D MHRWorker::doSyncRecord(1234.1 Nováková Jana (S: 120, K: 3 from 1 Apr "
                      "2019) N-V: 1 Apr 2019 - ; ES: 0, RS:  -  '' TPP: 11  DOV: 12.5 NOC: 0)";

QByteArray jana()
{
    return ExportRow().text().toUtf8();
}

QString parsed(const QString &line)
{
    return "D MHRWorker::parseLine('" + line + "')";
}

QString skipped(int parts)
{
    return QString("W MHRWorker::parseLine() - parts count (%1) <> fields count(18) - line "
                   "skipped!")
        .arg(parts);
}

/// How the log shows Jana under another surname.
QString withSurname(const QString &surname)
{
    return QString(kJana).replace("Nováková", surname);
}

QByteArray janaAs(const QByteArray &surname)
{
    return jana().replace("Nováková", surname);
}

} // namespace

class TestOddLines : public QObject {
    Q_OBJECT
public:
    static void initMain() { qputenv("LC_ALL", "C"); }

private Q_SLOTS:
    void aByteOrderMarkInFrontIsNoText();
    void aByteOrderMarkElsewhereIsText();
    void bytesThatAreNoUtf8SpoilOnlyTheirCharacter_data();
    void bytesThatAreNoUtf8SpoilOnlyTheirCharacter();
    void aNulByteEndsTheLine();
    void aCarriageReturnAloneEndsNoLine();
    void carriageReturnsBeforeLineFeedsAreDropped();
    void separatorsInARowAreEmptyFields();
    void otherEncodingsGiveNoRecord_data();
    void otherEncodingsGiveNoRecord();
};

void TestOddLines::aByteOrderMarkInFrontIsNoText()
{
    const QStringList expected = {parsed(ExportRow().text()), kJana};
    QCOMPARE(WorkerReading::ofContent("\xEF\xBB\xBF" + jana() + '\n'), expected);
    // Exports that were joined have one in the middle, too.
    QCOMPARE(WorkerReading::ofContent(jana() + "\n\xEF\xBB\xBF" + jana() + '\n'),
             QStringList({expected[0], expected[0], expected[1], expected[1]}));
    QCOMPARE(WorkerReading::ofContent("\xEF\xBB\xBF"), QStringList());
    QCOMPARE(WorkerReading::ofContent("\xEF\xBB\xBF\r\n"), QStringList());
}

void TestOddLines::aByteOrderMarkElsewhereIsText()
{
    // Behind a blank it is a part of the personal number, which then is none.
    QCOMPARE(WorkerReading::ofContent(" \xEF\xBB\xBF" + jana()).size(), 1);
    QCOMPARE(WorkerReading::ofContent(janaAs("Nov\xEF\xBB\xBFá")).last(),
             withSurname("Nov\uFEFFá"));
}

void TestOddLines::bytesThatAreNoUtf8SpoilOnlyTheirCharacter_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("replacements");
    QTest::newRow("no begin of a character") << QByteArray("\xFF") << 1;
    QTest::newRow("only the end of a character") << QByteArray("\xA1") << 1;
    QTest::newRow("only the begin of a character") << QByteArray("\xC3") << 1;
    QTest::newRow("one byte missing") << QByteArray("\xE2\x82") << 2;
    QTest::newRow("too long a form") << QByteArray("\xC0\xAF") << 2;
    QTest::newRow("half a surrogate pair") << QByteArray("\xED\xA0\x80") << 3;
    QTest::newRow("beyond the last character") << QByteArray("\xF4\x90\x80\x80") << 4;
    QTest::newRow("Windows-1250") << QByteArray("\x8A\xE1") << 2;
}

void TestOddLines::bytesThatAreNoUtf8SpoilOnlyTheirCharacter()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, replacements);
    QCOMPARE(WorkerReading::ofContent(janaAs("Nov" + bytes + "kov") + '\n' + jana()),
             QStringList({
                 parsed(ExportRow()
                            .with(&ExportRow::prijmeni,
                                  "Nov" + QString(replacements, QChar(0xFFFD)) + "kov")
                            .text()),
                 parsed(ExportRow().text()),
                 withSurname("Nov" + QString(replacements, QChar(0xFFFD)) + "kov"),
                 kJana,
             }));
    // A character that the end of the line cuts off does not reach into the next one.
    QCOMPARE(WorkerReading::ofContent(jana() + bytes + '\n' + jana()).last(), kJana);
    QCOMPARE(WorkerReading::ofContent(bytes + '\n' + jana()),
             QStringList({parsed(QString(replacements, QChar(0xFFFD))), skipped(1),
                          parsed(ExportRow().text()), kJana}));
}

void TestOddLines::aNulByteEndsTheLine()
{
    const QByteArray nul(1, '\0');
    QCOMPARE(WorkerReading::ofContent(nul + jana() + '\n' + jana() + nul + "|x\n" + nul + '\n'),
             QStringList({parsed(ExportRow().text()), kJana}));
    QCOMPARE(WorkerReading::ofContent(QByteArray(100000, '\0')), QStringList());
    QCOMPARE(WorkerReading::ofContent(QByteArray(1000, '\0') + '\n' + jana()).last(), kJana);
}

void TestOddLines::aCarriageReturnAloneEndsNoLine()
{
    const QString text = ExportRow().text();
    QCOMPARE(WorkerReading::ofContent(jana() + '\r' + jana() + '\r'),
             QStringList({parsed(text + '\r' + text), skipped(35)}));
}

void TestOddLines::carriageReturnsBeforeLineFeedsAreDropped()
{
    const QString text = ExportRow().text();
    QCOMPARE(WorkerReading::ofContent(jana() + "\r\n\r\n" + jana() + "\r\r\n"),
             QStringList({parsed(text), parsed(text), kJana, kJana}));
}

void TestOddLines::separatorsInARowAreEmptyFields()
{
    for (const int count : {16, 17, 18, 40000}) {
        const QByteArray separators(count, '|');
        QStringList expected = {parsed(separators)};
        if (count != 17)
            expected += skipped(count + 1);
        expected += parsed(ExportRow().text());
        expected += kJana;
        QCOMPARE(WorkerReading::ofContent(separators + '\n' + jana()), expected);
    }
}

void TestOddLines::otherEncodingsGiveNoRecord_data()
{
    QTest::addColumn<QByteArray>("content");
    const QString text = ExportRow().text() + '\n';
    const auto bytes = [&text](const char *codec) {
        return QTextCodec::codecForName(codec)->fromUnicode(text);
    };
    QTest::newRow("UTF-16, little end first") << bytes("UTF-16LE");
    QTest::newRow("UTF-16, big end first") << bytes("UTF-16BE");
    QTest::newRow("UTF-16 with a byte order mark") << bytes("UTF-16");
    QTest::newRow("UTF-32") << bytes("UTF-32");
}

void TestOddLines::otherEncodingsGiveNoRecord()
{
    QFETCH(QByteArray, content);
    for (const QString &line : WorkerReading::ofContent(content + content))
        QVERIFY2(!line.startsWith("D MHRWorker::doSyncRecord("), qPrintable(line));
}

QTEST_GUILESS_MAIN(TestOddLines)
#include "tst_oddlines.moc"
