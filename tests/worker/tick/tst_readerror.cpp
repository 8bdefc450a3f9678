// An export that cannot be read to its end, as on a network mount that fails in the middle.

#include "tests/worker/support/loghook.h"
#include "tests/worker/support/workertest.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int kBlockSize = 65536; // that the worker reads at once

/// A file that opens and gives an input/output error for every byte.
const QString kUnreadableFile = QStringLiteral("/proc/self/mem");

ExportRow person(int personalNumber)
{
    return ExportRow().with(&ExportRow::osobniCislo, personalNumber);
}

/// Replaces an open file of this program by the unreadable one, behind the same descriptor: reading
/// fails from now on, and what was read stays.
void breakOpenFile(const QString &path)
{
    const int unreadable = ::open(qPrintable(kUnreadableFile), O_RDONLY | O_CLOEXEC);
    int broken = 0;
    const QFileInfoList descriptors =
        QDir("/proc/self/fd").entryInfoList(QDir::AllEntries | QDir::System);
    for (const QFileInfo &descriptor : descriptors) {
        if (descriptor.symLinkTarget() == path && ::dup2(unreadable, descriptor.fileName().toInt()))
            ++broken;
    }
    ::close(unreadable);
    if (broken != 1)
        qFatal("%s is open %d times", qPrintable(path), broken);
}

} // namespace

class TestReadError : public WorkerTest {
    Q_OBJECT

private Q_SLOTS:
    void completeLinesAreUsedAndACutOneIsNot();
    void theFileIsKeptAndReadAgain_data() { addDeletions(); }
    void theFileIsKeptAndReadAgain();
    void theWarningComesAtEveryDebugLevel_data();
    void theWarningComesAtEveryDebugLevel();

private:
    static void addDeletions();
    void writeExport(int first);
    QStringList tickWithError(int first);
    QStringList peopleFrom(int first);
};

void TestReadError::addDeletions()
{
    QTest::addColumn<bool>("deletes");
    QTest::newRow("deleteFile is on") << true;
    QTest::newRow("deleteFile is off") << false;
}

/// The lines of three people. The first block ends in the last field of the second: what is read of
/// it then would be a line that names another supervisor.
void TestReadError::writeExport(int first)
{
    const QByteArray firstLine = person(first).text().toUtf8() + '\n';
    const QByteArray cutLine =
        person(first + 1).with(&ExportRow::nadrizenyOsobniCislo, 1001).text().toUtf8();
    const QByteArray lastLine = person(first + 2).text().toUtf8() + '\n';
    const QByteArray blank(kBlockSize - firstLine.size() - cutLine.size() + 1, '\n');
    m_export->writeBytes(firstLine + blank + cutLine + '\n' + lastLine);
}

/// One tick, in which reading the file fails after its first block.
QStringList TestReadError::tickWithError(int first)
{
    const LogHook hook("MHRWorker::parseLine('" + person(first).text() + "')",
                       [this] { breakOpenFile(m_export->path()); });
    return tick();
}

/// The pids of those three who are in the database.
QStringList TestReadError::peopleFrom(int first)
{
    const TableRows rows = m_db.rows(QString("SELECT pid FROM people WHERE pid BETWEEN %1 AND %2 "
                                             "ORDER BY pid")
                                         .arg(10 * first)
                                         .arg(10 * first + 29));
    QStringList pids;
    for (const QStringList &row : rows)
        pids += row;
    return pids;
}

void TestReadError::completeLinesAreUsedAndACutOneIsNot()
{
    writeExport(6001);
    startWorker(3);
    const QStringList log = tickWithError(6001);
    QCOMPARE(peopleFrom(6001), QStringList("60011"));
    QCOMPARE(log.filter("parseLine("),
             QStringList("D MHRWorker::parseLine('" + person(6001).text() + "')"));
    QCOMPARE(log.filter(QRegularExpression("^[WC] .*loadAndParseData")),
             QStringList("W MHRWorker::loadAndParseData() - file '" + m_export->path()
                         + "' NOT removed!"));
}

void TestReadError::theFileIsKeptAndReadAgain()
{
    QFETCH(bool, deletes);
    const int first = deletes ? 6011 : 6021;
    writeExport(first);
    startWorker(3).setDeleteFileAfterImport(deletes);
    m_worker->setSyncInterval(1);
    tickWithError(first);
    QVERIFY(m_export->exists());

    const QStringList log = tick();
    QCOMPARE(peopleFrom(first).size(), 3);
    QCOMPARE(log.filter("NOT removed!"), QStringList());
    QCOMPARE(m_export->exists(), !deletes);
}

void TestReadError::theWarningComesAtEveryDebugLevel_data()
{
    QTest::addColumn<int>("debugLevel");
    for (int level = 0; level <= 3; ++level)
        QTest::addRow("debug level %d", level) << level;
}

void TestReadError::theWarningComesAtEveryDebugLevel()
{
    QFETCH(int, debugLevel);
    startWorker(debugLevel);
    m_worker->setImportFile(kUnreadableFile);
    m_worker->setDeleteFileAfterImport(false);
    QCOMPARE(tick().filter(QRegularExpression("^[WC] ")),
             QStringList("W MHRWorker::loadAndParseData() - file '" + kUnreadableFile
                         + "' NOT removed!"));
}

QTEST_GUILESS_MAIN(TestReadError)
#include "tst_readerror.moc"
