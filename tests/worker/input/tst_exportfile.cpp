#include "tests/support/exportfile.h"
#include "tests/support/logcapture.h"
#include "worker/exportline.h"
#include "worker/mhrworker.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <sys/resource.h>

namespace {

const QString kFieldsLine =
    "D MHRWorker::loadAndParseData() - fields: OsobniCislo, PoradoveCisloPP, Titul, Jmeno, "
    "Prijmeni, TitulZa, Telefon, DatumNastupu, DatumVystupu, Stredisko, StrediskoPopis, Kalendar, "
    "KalendarPlatnostOd, TypPracovnihoPomeru, StavPracovnihoPomeru, EvidencniStav, "
    "DovolenaZustatek, NadrizenyOsobniCislo";

const QString kDefaultPath = "/tmp/ron.data";

/// A good line of a person who has left: synchronising it writes nothing.
ExportRow formerEmployee(int personalNumber)
{
    return ExportRow()
        .with(&ExportRow::osobniCislo, personalNumber)
        .with(&ExportRow::jmeno, "Ján")
        .with(&ExportRow::stavPracovnihoPomeru, 4);
}

/// How the log shows the record of formerEmployee().
QString syncLine(int personalNumber)
{
    return QString("D MHRWorker::doSyncRecord(%1.1 Nováková Ján (S: 120, K: 3 from 1. 4. 2019) "
                   "N-V: 1. 4. 2019 - ; ES: 0, RS:  -  '' TPP: 11  DOV: 12.5 NOC: 0)")
        .arg(personalNumber);
}

/// As many bytes as wanted, by means of the description of the cost centre.
QByteArray lineOfLength(int personalNumber, int bytes)
{
    ExportRow line = formerEmployee(personalNumber).with(&ExportRow::strediskoPopis, "");
    const int missing = bytes - line.text().toUtf8().size();
    return line.with(&ExportRow::strediskoPopis, QString(missing, 'x')).text().toUtf8();
}

QStringList loadedLines(MHRWorker &worker)
{
    const LogCapture log;
    worker.loadAndParseData();
    return log.lines();
}

/// The records that wait to be synchronised, as the log shows them when they are. There is no
/// database, and none is needed for people who have left.
QStringList takeRecords(MHRWorker &worker)
{
    QStringList records;
    const LogCapture log;
    worker.setDebugLevel(3);
    worker.doSync();
    for (const QString &line : log.lines()) {
        if (line.contains("MHRWorker::doSyncRecord("))
            records += line;
    }
    worker.setDebugLevel(0);
    return records;
}

/// The number of records that wait, as the log states it; the records are then gone.
QStringList takeCount(MHRWorker &worker)
{
    QStringList counts;
    const LogCapture log;
    worker.setDebugLevel(2);
    worker.doSync();
    for (const QString &line : log.lines()) {
        if (line.contains("stack count"))
            counts += line;
    }
    worker.setDebugLevel(0);
    return counts;
}

void addDebugLevels()
{
    QTest::addColumn<int>("level");
    for (int level = 0; level <= 4; ++level)
        QTest::addRow("debug level %d", level) << level;
}

/// While it lives, no file can be opened, not even by root.
class NoFileCanBeOpened {
public:
    NoFileCanBeOpened()
    {
        getrlimit(RLIMIT_NOFILE, &m_outer);
        rlimit none = m_outer;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoFileCanBeOpened() { setrlimit(RLIMIT_NOFILE, &m_outer); }
    NoFileCanBeOpened(const NoFileCanBeOpened &) = delete;
    NoFileCanBeOpened &operator=(const NoFileCanBeOpened &) = delete;

private:
    rlimit m_outer = {};
};

} // namespace

class TestExportFile : public QObject {
    Q_OBJECT
public:
    /// The records' dates in the log follow the system's locale.
    static void initMain() { qputenv("LC_ALL", "sk_SK.UTF-8"); }

private Q_SLOTS:
    void init();

    void linesBecomeRecordsInTheirOrder();
    void loadingAgainAppends();
    void loadingLogsWhatTheDebugLevelAsksFor_data();
    void loadingLogsWhatTheDebugLevelAsksFor();

    void anEmptyPathMeansTheDefaultFile();
    void anAbsentFileIsNamedFromDebugLevel2On_data();
    void anAbsentFileIsNamedFromDebugLevel2On();
    void anAbsentDefaultFileIsNamed();
    void whatIsNoRegularFileIsNotFound_data();
    void whatIsNoRegularFileIsNotFound();
    void aRelativePathIsShownAsGivenAndOnceAbsolute();
    void aFileThatCannotBeOpenedIsCritical_data();
    void aFileThatCannotBeOpenedIsCritical();

    void theFileIsRemovedOnlyWhenAskedFor();
    void aFileOfInvalidLinesIsRemoved();
    void anEmptyFileIsRemoved();
    void aFileThatCannotBeRemovedCausesAWarning_data();
    void aFileThatCannotBeRemovedCausesAWarning();

    void carriageReturnsAreDropped();
    void whiteSpaceAroundALineIsDropped();
    void emptyLinesAreIgnored();
    void theLastLineNeedsNoLineFeed();
    void aLineEndsAtItsFirstNul();
    void textIsUtf8();
    void twoLinesOfOnePersonAreTwoRecords();
    void manyLinesKeepTheirOrder();
    void aLineOf64KiBIsRead();
    void aLongerLineIsSkippedInSilence();
    void theLengthOfALineCountsBytes();

    void aLineIsSplitAtTheGivenSeparator();
    void theSeparatorIsCaseSensitive();
    void aLineOfAnotherNumberOfFieldsIsSkipped_data();
    void aLineOfAnotherNumberOfFieldsIsSkipped();
    void aLineOfAsManyPartsAsTooFewFieldsMakesNoRecord_data();
    void aLineOfAsManyPartsAsTooFewFieldsMakesNoRecord();
    void skippedLinesAreNamedFromDebugLevel3On_data();
    void skippedLinesAreNamedFromDebugLevel3On();
    void aLineWithoutNumberOrNameIsDroppedInSilence_data();
    void aLineWithoutNumberOrNameIsDroppedInSilence();
    void aLineWithBadValuesIsKept();
    void theFormatsOwnExampleIsRead();
};

void TestExportFile::init()
{
    // The default file of the machine itself must not be in reach.
    QVERIFY2(QFileInfo::exists("/tmp/.machine"), "Run this through scripts/private-view");
}

// ---- Reading the file ---------------------------------------------------------------------------

void TestExportFile::linesBecomeRecordsInTheirOrder()
{
    ExportFile file;
    file.write(QVector<ExportRow>{formerEmployee(3), formerEmployee(1), formerEmployee(2)});
    MHRWorker worker;
    worker.setImportFile(file.path());
    worker.loadAndParseData();
    QCOMPARE(takeRecords(worker), QStringList({syncLine(3), syncLine(1), syncLine(2)}));
    QCOMPARE(takeRecords(worker), QStringList());
}

void TestExportFile::loadingAgainAppends()
{
    ExportFile file;
    MHRWorker worker;
    worker.setImportFile(file.path());
    file.write(QVector<ExportRow>{formerEmployee(1), formerEmployee(2)});
    worker.loadAndParseData();
    file.write(QVector<ExportRow>{formerEmployee(3)});
    worker.loadAndParseData();
    QCOMPARE(takeRecords(worker), QStringList({syncLine(1), syncLine(2), syncLine(3)}));

    // The records are taken once; the file stays and is read again.
    worker.loadAndParseData();
    worker.loadAndParseData();
    QCOMPARE(takeCount(worker), QStringList("D MHRWorker::doSync() - stack count: 2"));
    QCOMPARE(takeCount(worker), QStringList());
}

void TestExportFile::loadingLogsWhatTheDebugLevelAsksFor_data()
{
    addDebugLevels();
}

void TestExportFile::loadingLogsWhatTheDebugLevelAsksFor()
{
    QFETCH(int, level);
    ExportFile file;
    const QString good = formerEmployee(1).text();
    file.write(QStringList{good, "a|b", "", good});
    MHRWorker worker;
    worker.setImportFile(file.path());
    worker.setDebugLevel(static_cast<unsigned char>(level));

    QStringList expected;
    if (level >= 2)
        expected += "D MHRWorker::loadAndParseData()";
    if (level >= 3) {
        expected += kFieldsLine;
        expected +=
            "I MHRWorker::loadAndParseData() - loading data from file: '" + file.path() + "'";
        expected += "D MHRWorker::parseLine('" + good + "')";
        expected += "D MHRWorker::parseLine('a|b')";
        expected += "W MHRWorker::parseLine() - parts count (2) <> fields count(18) - line "
                    "skipped!";
        expected += "D MHRWorker::parseLine('" + good + "')";
    }
    QCOMPARE(loadedLines(worker), expected);
    QCOMPARE(takeRecords(worker).size(), 2);
}

// ---- The file itself ----------------------------------------------------------------------------

void TestExportFile::anEmptyPathMeansTheDefaultFile()
{
    QFile file(kDefaultPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(formerEmployee(7).text().toUtf8());
    file.close();

    MHRWorker worker;
    worker.setDebugLevel(3);
    worker.setDeleteFileAfterImport(true);
    QVERIFY(loadedLines(worker).contains(
        "I MHRWorker::loadAndParseData() - loading data from file: '/tmp/ron.data'"));
    QCOMPARE(takeRecords(worker), QStringList(syncLine(7)));
    QVERIFY(!file.exists());
}

void TestExportFile::anAbsentFileIsNamedFromDebugLevel2On_data()
{
    addDebugLevels();
}

void TestExportFile::anAbsentFileIsNamedFromDebugLevel2On()
{
    QFETCH(int, level);
    const ExportFile file;
    MHRWorker worker;
    worker.setImportFile(file.path());
    worker.setDeleteFileAfterImport(true);
    worker.setDebugLevel(static_cast<unsigned char>(level));

    QStringList expected;
    if (level >= 2)
        expected += "D MHRWorker::loadAndParseData()";
    if (level >= 3) {
        expected += kFieldsLine;
        expected +=
            "I MHRWorker::loadAndParseData() - loading data from file: '" + file.path() + "'";
    }
    if (level >= 2)
        expected += "W MHRWorker::loadAndParseData() - file '" + file.path() + "' NOT found!";
    QCOMPARE(loadedLines(worker), expected);
    QCOMPARE(takeRecords(worker), QStringList());
}

void TestExportFile::anAbsentDefaultFileIsNamed()
{
    MHRWorker worker;
    worker.setDebugLevel(2);
    QCOMPARE(loadedLines(worker),
             QStringList({"D MHRWorker::loadAndParseData()",
                          "W MHRWorker::loadAndParseData() - file '/tmp/ron.data' NOT found!"}));
}

void TestExportFile::whatIsNoRegularFileIsNotFound_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("folder") << QDir::tempPath();
    QTest::newRow("device") << "/dev/null";
}

void TestExportFile::whatIsNoRegularFileIsNotFound()
{
    QFETCH(QString, path);
    MHRWorker worker;
    worker.setImportFile(path);
    worker.setDebugLevel(2);
    QCOMPARE(loadedLines(worker),
             QStringList({"D MHRWorker::loadAndParseData()",
                          "W MHRWorker::loadAndParseData() - file '" + path + "' NOT found!"}));
}

void TestExportFile::aRelativePathIsShownAsGivenAndOnceAbsolute()
{
    MHRWorker worker;
    worker.setImportFile("no/such.file");
    worker.setDebugLevel(3);
    const QStringList lines = loadedLines(worker);
    QCOMPARE(lines.mid(2),
             QStringList({"I MHRWorker::loadAndParseData() - loading data from file: '"
                              + QDir::currentPath() + "/no/such.file'",
                          "W MHRWorker::loadAndParseData() - file 'no/such.file' NOT found!"}));
}

void TestExportFile::aFileThatCannotBeOpenedIsCritical_data()
{
    addDebugLevels();
}

void TestExportFile::aFileThatCannotBeOpenedIsCritical()
{
    QFETCH(int, level);
    ExportFile file;
    file.write(QVector<ExportRow>{formerEmployee(1)});
    MHRWorker worker;
    worker.setImportFile(file.path());
    worker.setDeleteFileAfterImport(true);
    worker.setDebugLevel(static_cast<unsigned char>(level));

    QStringList lines;
    {
        const NoFileCanBeOpened limit;
        lines = loadedLines(worker);
    }
    QCOMPARE(lines.last(),
             "C MHRWorker::loadAndParseData() - file '" + file.path() + "' not opened!");
    QCOMPARE(lines.size(), level >= 3 ? 4 : level == 2 ? 2 : 1);
    QVERIFY(file.exists());
    QCOMPARE(takeRecords(worker), QStringList());

    // Once the cause is gone, the file is read.
    worker.loadAndParseData();
    QCOMPARE(takeRecords(worker), QStringList(syncLine(1)));
}

// ---- Removing the file --------------------------------------------------------------------------

void TestExportFile::theFileIsRemovedOnlyWhenAskedFor()
{
    ExportFile file;
    file.write(QVector<ExportRow>{formerEmployee(1)});
    MHRWorker worker;
    worker.setImportFile(file.path());
    worker.loadAndParseData();
    QVERIFY(file.exists());
    worker.setDeleteFileAfterImport(false);
    worker.loadAndParseData();
    QVERIFY(file.exists());
    QCOMPARE(takeRecords(worker), QStringList({syncLine(1), syncLine(1)}));

    worker.setDeleteFileAfterImport(true);
    worker.setDebugLevel(0);
    QCOMPARE(loadedLines(worker), QStringList());
    QVERIFY(!file.exists());
    QCOMPARE(takeRecords(worker), QStringList(syncLine(1)));
}

void TestExportFile::aFileOfInvalidLinesIsRemoved()
{
    ExportFile file;
    file.write(QStringList{"nonsense", formerEmployee(0).text(), formerEmployee(1).text() + '|'});
    MHRWorker worker;
    worker.setImportFile(file.path());
    worker.setDeleteFileAfterImport(true);
    QCOMPARE(loadedLines(worker), QStringList());
    QVERIFY(!file.exists());
    QCOMPARE(takeRecords(worker), QStringList());
}

void TestExportFile::anEmptyFileIsRemoved()
{
    ExportFile file;
    file.writeBytes(QByteArray());
    MHRWorker worker;
    worker.setImportFile(file.path());
    worker.setDeleteFileAfterImport(true);
    QCOMPARE(loadedLines(worker), QStringList());
    QVERIFY(!file.exists());
}

void TestExportFile::aFileThatCannotBeRemovedCausesAWarning_data()
{
    addDebugLevels();
}

void TestExportFile::aFileThatCannotBeRemovedCausesAWarning()
{
    QFETCH(int, level);
    // The kernel's name of an open file leads to the file but cannot be removed, not even by root.
    ExportFile file;
    file.write(QVector<ExportRow>{formerEmployee(1)});
    QFile open(file.path());
    QVERIFY(open.open(QIODevice::ReadOnly));
    const QString path = QString("/proc/self/fd/%1").arg(open.handle());

    MHRWorker worker;
    worker.setImportFile(path);
    worker.setDeleteFileAfterImport(true);
    worker.setDebugLevel(static_cast<unsigned char>(level));
    const QStringList lines = loadedLines(worker);
    QCOMPARE(lines.last(), "W MHRWorker::loadAndParseData() - file '" + path + "' NOT removed!");
    QCOMPARE(lines.size(), level >= 3 ? 5 : level == 2 ? 2 : 1);
    QVERIFY(file.exists());
    QCOMPARE(takeRecords(worker), QStringList(syncLine(1)));

    // It is read again.
    QCOMPARE(loadedLines(worker).size(), 1);
    QCOMPARE(takeRecords(worker), QStringList(syncLine(1)));
}

// ---- Lines --------------------------------------------------------------------------------------

namespace {

QStringList recordsOf(const QByteArray &content)
{
    ExportFile file;
    file.writeBytes(content);
    MHRWorker worker;
    worker.setImportFile(file.path());
    worker.loadAndParseData();
    return takeRecords(worker);
}

/// What the log shows of a file's lines at debug level 3.
QStringList linesOf(const QByteArray &content)
{
    ExportFile file;
    file.writeBytes(content);
    MHRWorker worker;
    worker.setImportFile(file.path());
    worker.setDebugLevel(3);
    return loadedLines(worker).mid(3);
}

} // namespace

void TestExportFile::carriageReturnsAreDropped()
{
    const QByteArray first = formerEmployee(1).text().toUtf8();
    const QByteArray second = formerEmployee(2).text().toUtf8();
    const QStringList both = {syncLine(1), syncLine(2)};
    QCOMPARE(recordsOf(first + '\n' + second + '\n'), both);
    QCOMPARE(recordsOf(first + "\r\n" + second + "\r\n"), both);
    QCOMPARE(linesOf(first + "\r\n"),
             QStringList("D MHRWorker::parseLine('" + QString::fromUtf8(first) + "')"));
}

void TestExportFile::whiteSpaceAroundALineIsDropped()
{
    const QString line = formerEmployee(1).with(&ExportRow::telefon, "  555  ").text();
    QCOMPARE(linesOf("\t  " + line.toUtf8() + " \t \r\n"),
             QStringList("D MHRWorker::parseLine('" + line + "')"));
    QVERIFY(line.contains("|  555  |"));
}

void TestExportFile::emptyLinesAreIgnored()
{
    const QByteArray line = formerEmployee(1).text().toUtf8();
    QCOMPARE(linesOf("\n\r\n   \n\t\n" + line + "\n\n"),
             QStringList("D MHRWorker::parseLine('" + QString::fromUtf8(line) + "')"));
}

void TestExportFile::theLastLineNeedsNoLineFeed()
{
    QCOMPARE(recordsOf(formerEmployee(1).text().toUtf8()), QStringList(syncLine(1)));
}

void TestExportFile::aLineEndsAtItsFirstNul()
{
    const QByteArray line = formerEmployee(1).text().toUtf8();
    const QByteArray nul(1, '\0');
    QCOMPARE(recordsOf(line + nul + "|and more\n" + formerEmployee(2).text().toUtf8()),
             QStringList({syncLine(1), syncLine(2)}));
    QCOMPARE(linesOf("a|b " + nul + "c|d\n" + nul + line + "\ne\n"),
             QStringList({"D MHRWorker::parseLine('a|b')",
                          "W MHRWorker::parseLine() - parts count (2) <> fields count(18) - line "
                          "skipped!",
                          "D MHRWorker::parseLine('e')",
                          "W MHRWorker::parseLine() - parts count (1) <> fields count(18) - line "
                          "skipped!"}));
}

void TestExportFile::textIsUtf8()
{
    QCOMPARE(linesOf("\xC5\xBDofia \xE2\x82\xAC\n").first(),
             QString("D MHRWorker::parseLine('\u017Dofia \u20AC')"));
    QCOMPARE(linesOf("\xC2\xA0\xC5\xBD\xC2\xA0\n").first(),
             QString("D MHRWorker::parseLine('\u017D')"));
}

void TestExportFile::twoLinesOfOnePersonAreTwoRecords()
{
    const QByteArray line = formerEmployee(1).text().toUtf8() + '\n';
    QCOMPARE(recordsOf(line + line), QStringList({syncLine(1), syncLine(1)}));
}

void TestExportFile::manyLinesKeepTheirOrder()
{
    QByteArray content;
    QStringList expected;
    for (int i = 1; i <= 5000; ++i) {
        content += formerEmployee(i).text().toUtf8() + '\n';
        expected += syncLine(i);
    }
    QCOMPARE(recordsOf(content), expected);
}

void TestExportFile::aLineOf64KiBIsRead()
{
    const QByteArray line = lineOfLength(1, 65536);
    QCOMPARE(line.size(), 65536);
    QCOMPARE(recordsOf(line + '\n' + formerEmployee(2).text().toUtf8()),
             QStringList({syncLine(1), syncLine(2)}));
    QCOMPARE(recordsOf(line), QStringList(syncLine(1)));
}

void TestExportFile::aLongerLineIsSkippedInSilence()
{
    const QByteArray next = formerEmployee(2).text().toUtf8();
    for (const int length : {65537, 65538, 200000, 5000000}) {
        const QByteArray line = lineOfLength(1, length);
        QCOMPARE(line.size(), length);
        QCOMPARE(recordsOf(line + '\n' + next), QStringList(syncLine(2)));
        QCOMPARE(recordsOf(next + '\n' + line), QStringList(syncLine(2)));
        QCOMPARE(linesOf(line + '\n' + next),
                 QStringList("D MHRWorker::parseLine('" + QString::fromUtf8(next) + "')"));
    }
}

void TestExportFile::theLengthOfALineCountsBytes()
{
    const QByteArray blanks(65536, ' ');
    QCOMPARE(recordsOf(blanks + formerEmployee(1).text().toUtf8() + '\n'
                       + formerEmployee(2).text().toUtf8()),
             QStringList(syncLine(2)));
    const QByteArray letters = QString(32768, QChar(u'ž')).toUtf8();
    QCOMPARE(linesOf(letters + '\n').size(), 2);
    QCOMPARE(linesOf(letters + "z\n"), QStringList());
}

// ---- Fields of a line ---------------------------------------------------------------------------

void TestExportFile::aLineIsSplitAtTheGivenSeparator()
{
    MHRWorker worker;
    const QStringList fields = formerEmployee(1).with(&ExportRow::strediskoPopis, "|").fields();
    worker.parseLine(fields.join(';'), ExportLine::fieldNames(), ';');
    worker.parseLine(fields.join('|'), ExportLine::fieldNames(), ';');
    QCOMPARE(takeRecords(worker), QStringList(syncLine(1)));
}

void TestExportFile::theSeparatorIsCaseSensitive()
{
    MHRWorker worker;
    const QStringList fields = formerEmployee(1).with(&ExportRow::titul, "X").fields();
    worker.parseLine(fields.join('x'), ExportLine::fieldNames(), 'x');
    QCOMPARE(takeRecords(worker), QStringList(syncLine(1)));
}

void TestExportFile::aLineOfAnotherNumberOfFieldsIsSkipped_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("parts");
    const QStringList fields = formerEmployee(1).fields();
    QTest::newRow("17 fields") << fields.mid(0, 17).join('|') << 17;
    QTest::newRow("19 fields") << fields.join('|') + "|x" << 19;
    QTest::newRow("a separator at the end") << fields.join('|') + '|' << 19;
    QTest::newRow("a separator at the begin") << '|' + fields.join('|') << 19;
    QTest::newRow("a separator in a name") << fields.join('|').replace("Ján", "J|án") << 19;
    QTest::newRow("one field") << "x" << 1;
    QTest::newRow("no field") << "" << 1;
    QTest::newRow("separators only") << QString(20, '|') << 21;
}

void TestExportFile::aLineOfAnotherNumberOfFieldsIsSkipped()
{
    QFETCH(QString, line);
    QFETCH(int, parts);
    MHRWorker worker;
    worker.setDebugLevel(3);
    const LogCapture log;
    worker.parseLine(line, ExportLine::fieldNames(), '|');
    QCOMPARE(log.lines(),
             QStringList({"D MHRWorker::parseLine('" + line + "')",
                          QString("W MHRWorker::parseLine() - parts count (%1) <> fields "
                                  "count(18) - line skipped!")
                              .arg(parts)}));
    QCOMPARE(takeRecords(worker), QStringList());
}

void TestExportFile::aLineOfAsManyPartsAsTooFewFieldsMakesNoRecord_data()
{
    QTest::addColumn<int>("count");
    for (int count = 1; count < ExportLine::fieldNames().size(); ++count)
        QTest::addRow("the first %d fields", count) << count;
}

void TestExportFile::aLineOfAsManyPartsAsTooFewFieldsMakesNoRecord()
{
    QFETCH(int, count);
    MHRWorker worker;
    worker.setDebugLevel(3);
    const QString line = formerEmployee(1).fields().mid(0, count).join('|');
    {
        const LogCapture log;
        worker.parseLine(line, ExportLine::fieldNames().mid(0, count), '|');
        QCOMPARE(log.lines(), QStringList("D MHRWorker::parseLine('" + line + "')"));
    }
    QCOMPARE(takeRecords(worker), QStringList());
}

void TestExportFile::skippedLinesAreNamedFromDebugLevel3On_data()
{
    addDebugLevels();
}

void TestExportFile::skippedLinesAreNamedFromDebugLevel3On()
{
    QFETCH(int, level);
    MHRWorker worker;
    worker.setDebugLevel(static_cast<unsigned char>(level));
    const LogCapture log;
    worker.parseLine("a|b|c", ExportLine::fieldNames().mid(0, 4), '|');
    QStringList expected;
    if (level >= 3) {
        expected += "D MHRWorker::parseLine('a|b|c')";
        expected += "W MHRWorker::parseLine() - parts count (3) <> fields count(4) - line "
                    "skipped!";
    }
    QCOMPARE(log.lines(), expected);
}

void TestExportFile::aLineWithoutNumberOrNameIsDroppedInSilence_data()
{
    QTest::addColumn<QString>("line");
    const ExportRow good = formerEmployee(1);
    QTest::newRow("personal number 0") << ExportRow(good).with(&ExportRow::osobniCislo, "0").text();
    QTest::newRow("personal number abc")
        << ExportRow(good).with(&ExportRow::osobniCislo, "abc").text();
    QTest::newRow("negative personal number")
        << ExportRow(good).with(&ExportRow::osobniCislo, "-1").text();
    QTest::newRow("no relationship")
        << ExportRow(good).with(&ExportRow::poradoveCisloPP, "").text();
    QTest::newRow("relationship 1.0")
        << ExportRow(good).with(&ExportRow::poradoveCisloPP, "1.0").text();
    QTest::newRow("no name")
        << ExportRow(good).with(&ExportRow::jmeno, "").with(&ExportRow::prijmeni, "").text();
}

void TestExportFile::aLineWithoutNumberOrNameIsDroppedInSilence()
{
    QFETCH(QString, line);
    MHRWorker worker;
    worker.setDebugLevel(3);
    const LogCapture log;
    worker.parseLine(line, ExportLine::fieldNames(), '|');
    QCOMPARE(log.lines(), QStringList("D MHRWorker::parseLine('" + line + "')"));
    QCOMPARE(takeRecords(worker), QStringList());
}

void TestExportFile::aLineWithBadValuesIsKept()
{
    MHRWorker worker;
    worker.parseLine(ExportRow()
                         .with(&ExportRow::osobniCislo, " 0001234 ")
                         .with(&ExportRow::prijmeni, "")
                         .with(&ExportRow::datumNastupu, "2019-04-01")
                         .with(&ExportRow::datumVystupu, "")
                         .with(&ExportRow::stredisko, "-1")
                         .with(&ExportRow::kalendar, "3.0")
                         .with(&ExportRow::kalendarPlatnostOd, "x")
                         .with(&ExportRow::typPracovnihoPomeru, "11x")
                         .with(&ExportRow::stavPracovnihoPomeru, "65540")
                         .with(&ExportRow::evidencniStav, "65537")
                         .with(&ExportRow::dovolenaZustatek, "12,5")
                         .with(&ExportRow::nadrizenyOsobniCislo, "4294967296")
                         .text(),
                     ExportLine::fieldNames(), '|');
    QCOMPARE(takeRecords(worker),
             QStringList("D MHRWorker::doSyncRecord(1234.1  Jana (S: 0, K: 0 from ) N-V:  - ; "
                         "ES: 1, RS:  -  '' TPP: 0  DOV: 0 NOC: 0)"));
}

void TestExportFile::theFormatsOwnExampleIsRead()
{
    QCOMPARE(recordsOf("1234|1|Ing.|Jana|Nováková||555123456|2019-04-01 00:00:00.000||120|Sklad|3|"
                       "2019-04-01 00:00:00.000|1|4|1|12.5|1001\n"),
             QStringList("D MHRWorker::doSyncRecord(1234.1 Nováková Jana (S: 120, K: 3 from "
                         "1. 4. 2019) N-V: 1. 4. 2019 - ; ES: 1, RS:  -  '' TPP: 1  DOV: 12.5 "
                         "NOC: 1001)"));
}

QTEST_GUILESS_MAIN(TestExportFile)
#include "tst_exportfile.moc"
