#include "mirovahrctl/log/growingfile.h"
#include "tests/support/patience.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

const QByteArray kText = "BEGIN #";

/// In blocks of so many bytes it is searched from its end.
constexpr int kBlock = 256 * 1024;

void append(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::Append | QIODevice::Unbuffered) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

/// An open file, with what it has handed on.
class CollectedFile : public GrowingFile {
public:
    explicit CollectedFile(const QString &path)
        : GrowingFile(path)
    {
        connect(this, &GrowingFile::read, [this](const QByteArray &block) { bytes += block; });
        connect(this, &GrowingFile::begunAnew, [this] { bytes += '|'; });
        if (!open())
            qFatal("%s", qPrintable(errorString()));
    }

    /// "|" where it begins anew.
    QByteArray bytes;
};

} // namespace

/// The file of log --follow, step by step: what happens between two looks at it.
class TestGrowingFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theOldFileIsReadUntilTheNewOneIsWritten();
    void aNewFileIsTakenThoughTheNameWasFree();
    void anEmptiedFileBeginsAnew();
    void aPipeInItsPlaceIsNotOpened();
    void aFileThatComesBackIsWatchedAgain();
    void aNewFileBehindALinkIsNoticed();
    void aSearchFindsWhatReachesAcrossBlocks();
    void aLineThatIsLongerThanABlockIsWhole();

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QString m_path;
    QString m_old;
};

void TestGrowingFile::init()
{
    m_folder.reset(new QTemporaryDir);
    m_path = m_folder->filePath("log");
    m_old = m_folder->filePath("log.1");
}

/// As logrotate does: the server has the old file open until it is told to open the new one.
void TestGrowingFile::theOldFileIsReadUntilTheNewOneIsWritten()
{
    append(m_path, "a");
    CollectedFile file(m_path);
    file.readOn();
    QVERIFY(QFile::rename(m_path, m_old));
    append(m_path, "");
    file.readOn();
    append(m_old, "b");
    file.readOn();
    QCOMPARE(file.bytes, QByteArray("ab"));
    append(m_old, "c");
    append(m_path, "d");
    file.readOn();
    QCOMPARE(file.bytes, QByteArray("abc|d"));
    append(m_old, "e");
    append(m_path, "f");
    file.readOn();
    QCOMPARE(file.bytes, QByteArray("abc|df"));
}

void TestGrowingFile::aNewFileIsTakenThoughTheNameWasFree()
{
    append(m_path, "a");
    CollectedFile file(m_path);
    file.readOn();
    QVERIFY(QFile::remove(m_path));
    file.readOn();
    append(m_path, "b");
    file.readOn();
    QCOMPARE(file.bytes, QByteArray("a|b"));
}

void TestGrowingFile::anEmptiedFileBeginsAnew()
{
    append(m_path, "abc");
    CollectedFile file(m_path);
    file.readOn();
    QVERIFY(QFile::resize(m_path, 0));
    append(m_path, "d");
    file.readOn();
    append(m_path, "e");
    file.readOn();
    QCOMPARE(file.bytes, QByteArray("abc|de"));
}

/// Opening one would wait for whoever writes into it.
void TestGrowingFile::aPipeInItsPlaceIsNotOpened()
{
    append(m_path, "a");
    CollectedFile file(m_path);
    QVERIFY(QFile::rename(m_path, m_old));
    QCOMPARE(mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    append(m_old, "b");
    file.readOn();
    QCOMPARE(file.bytes, QByteArray("ab"));
}

void TestGrowingFile::aFileThatComesBackIsWatchedAgain()
{
    append(m_path, "a");
    CollectedFile file(m_path);
    file.readOn();
    QVERIFY(QFile::rename(m_path, m_old));
    QVERIFY(QFile::rename(m_old, m_path));
    QCoreApplication::processEvents();
    QSignalSpy read(&file, &GrowingFile::read);
    append(m_path, "b");
    QVERIFY(read.wait(kPatienceMs));
    QCOMPARE(file.bytes, QByteArray("ab"));
}

/// It appears in another folder than that of the name.
void TestGrowingFile::aNewFileBehindALinkIsNoticed()
{
    QVERIFY(QDir(m_folder->path()).mkdir("logs"));
    const QString target = m_folder->filePath("logs/log");
    append(target, "a");
    QVERIFY(QFile::link(target, m_path));
    CollectedFile file(m_path);
    file.readOn();
    QVERIFY(QFile::rename(target, m_old));
    QCoreApplication::processEvents();
    QSignalSpy begunAnew(&file, &GrowingFile::begunAnew);
    append(target, "b");
    QVERIFY(begunAnew.wait(kPatienceMs));
    file.readOn();
    QCOMPARE(file.bytes, QByteArray("a|b"));
}

void TestGrowingFile::aSearchFindsWhatReachesAcrossBlocks()
{
    const QByteArray begin = "x\ntime " + kText + "1\n";
    const QByteArray wanted = "time " + kText;
    for (int behind = kBlock - 20; behind <= kBlock + 5; ++behind) {
        const QByteArray rest = "2\n" + QByteArray(behind - 2, 'y');
        QVERIFY(!QFile::exists(m_path) || QFile::remove(m_path));
        append(m_path, begin + wanted + rest);
        CollectedFile file(m_path);
        file.skipToLast(kText, 1);
        file.readOn();
        QVERIFY2(file.bytes == wanted + rest, QByteArray::number(behind));
    }
}

void TestGrowingFile::aLineThatIsLongerThanABlockIsWhole()
{
    const QByteArray line = QByteArray(3 * kBlock, 'x') + kText + '\n';
    append(m_path, "a\n" + line + "b\n");
    CollectedFile file(m_path);
    file.skipToLast(kText, 1);
    file.readOn();
    QVERIFY(file.bytes == line + "b\n");
}

QTEST_GUILESS_MAIN(TestGrowingFile)
#include "tst_growingfile.moc"
