// What may stand in the place of the export, and what may happen to it while it is read.

#include "tests/support/exportfile.h"
#include "tests/support/logcapture.h"
#include "tests/worker/support/loghook.h"
#include "worker/mhrworker.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <sys/fsuid.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr unsigned kNobody = 65534;

QString row(int personalNumber)
{
    return ExportRow().with(&ExportRow::osobniCislo, personalNumber).text();
}

QByteArray rows(const QVector<int> &personalNumbers)
{
    QByteArray content;
    for (const int number : personalNumbers)
        content += row(number).toUtf8() + '\n';
    return content;
}

void write(const QString &path, const QByteArray &content,
           QIODevice::OpenMode mode = QIODevice::WriteOnly)
{
    QFile file(path);
    if (!file.open(mode) || file.write(content) != content.size())
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
}

/// For its lifetime, this thread accesses files without any rights, even if the test runs as root.
class WithoutRights {
public:
    WithoutRights()
        : m_outer(static_cast<uid_t>(::setfsuid(kNobody)))
    {
    }
    ~WithoutRights() { ::setfsuid(m_outer); }
    WithoutRights(const WithoutRights &) = delete;
    WithoutRights &operator=(const WithoutRights &) = delete;

private:
    uid_t m_outer;
};

void makeSocket(const QString &path)
{
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, qPrintable(path), sizeof(address.sun_path));
    if (::bind(descriptor, reinterpret_cast<sockaddr *>(&address), sizeof(address)) != 0)
        qFatal("%s: no socket", qPrintable(path));
    ::close(descriptor);
}

} // namespace

class TestFileKinds : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aLinkLeadsToTheExport();
    void aLinkIsRemovedAndTheExportLeft();
    void whatIsNoRegularFileIsNotFound_data();
    void whatIsNoRegularFileIsNotFound();
    void aFileWithoutTheRightToReadIsNotOpened();
    void aFileInAFolderWithoutTheRightToEnterIsNotFound();
    void aFileThatMayNotBeRemovedIsReadEachTime();

    void aFileThatIsReplacedIsReadToItsOwnEnd();
    void aFileThatIsRemovedIsReadToItsEnd();
    void aFileThatIsEmptiedEndsThere();
    void aFileThatGrowsIsReadToItsNewEnd();

private:
    QString inFolder(const QString &name) const { return m_dir->filePath(name); }
    QString notFound(const QString &name) const;
    QStringList load(const QString &name);
    QStringList loadWhile(const std::function<void()> &action);
    void makeKind(const QString &kind);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<MHRWorker> m_worker;
};

void TestFileKinds::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    ::chmod(qPrintable(m_dir->path()), 0755);
    m_worker = std::make_unique<MHRWorker>();
    m_worker->setDebugLevel(3);
    m_worker->setDeleteFileAfterImport(true);
}

void TestFileKinds::cleanup()
{
    m_worker.reset();
    ::chmod(qPrintable(m_dir->path()), 0755);
    m_dir.reset();
}

QString TestFileKinds::notFound(const QString &name) const
{
    return "W MHRWorker::loadAndParseData() - file '" + inFolder(name) + "' NOT found!";
}

/// What the log says of the file and its lines, and the personal numbers of the lines that were
/// parsed instead of their text.
QStringList TestFileKinds::load(const QString &name)
{
    m_worker->setImportFile(inFolder(name));
    const LogCapture log;
    m_worker->loadAndParseData();
    QStringList lines = log.lines().mid(3);
    lines.replaceInStrings(QRegularExpression("^D MHRWorker::parseLine\\('(\\d+)\\|.*\\|0'\\)$"),
                           "\\1");
    return lines;
}

/// Two good lines, and something that happens while the first of them is parsed. The reader has
/// then both of them.
QStringList TestFileKinds::loadWhile(const std::function<void()> &action)
{
    // More than a buffer holds between them.
    write(inFolder("export"), rows({1}) + QByteArray(300000, '\n') + rows({2}));
    const LogCapture log; // a hook wants one below it
    const LogHook hook("MHRWorker::parseLine('" + row(1) + "')", action);
    m_worker->setImportFile(inFolder("export"));
    m_worker->loadAndParseData();
    QStringList lines = log.lines().mid(3);
    lines.replaceInStrings(QRegularExpression("^D MHRWorker::parseLine\\('(\\d+)\\|.*\\|0'\\)$"),
                           "\\1");
    return lines;
}

void TestFileKinds::makeKind(const QString &kind)
{
    const QString path = inFolder("export");
    const QString target = inFolder("target");
    if (kind.startsWith("link")) {
        QVERIFY(QFile::link(kind == "link to itself" ? path : target, path));
        if (kind == "link to a folder")
            QVERIFY(QDir().mkdir(target));
        if (kind == "link to a pipe")
            QCOMPARE(::mkfifo(qPrintable(target), 0600), 0);
    } else if (kind == "folder") {
        QVERIFY(QDir().mkdir(path));
    } else if (kind == "pipe") {
        QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
    } else {
        makeSocket(path);
    }
}

// ---- What stands there --------------------------------------------------------------------------

void TestFileKinds::aLinkLeadsToTheExport()
{
    write(inFolder("target"), rows({1, 2}));
    QVERIFY(QFile::link("target", inFolder("link")));
    QVERIFY(QFile::link(inFolder("link"), inFolder("export")));
    m_worker->setDeleteFileAfterImport(false);
    QCOMPARE(load("export"), QStringList({"1", "2"}));
    QCOMPARE(load("export"), QStringList({"1", "2"}));
}

void TestFileKinds::aLinkIsRemovedAndTheExportLeft()
{
    write(inFolder("target"), rows({1}));
    QVERIFY(QFile::link("target", inFolder("export")));
    QCOMPARE(load("export"), QStringList("1"));
    QVERIFY(!QFileInfo(inFolder("export")).isSymLink());
    QVERIFY(QFile::exists(inFolder("target")));
    QCOMPARE(load("export"), QStringList(notFound("export")));
}

void TestFileKinds::whatIsNoRegularFileIsNotFound_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"folder", "pipe", "socket", "link to nothing", "link to itself",
                             "link to a folder", "link to a pipe"})
        QTest::newRow(kind) << kind;
}

void TestFileKinds::whatIsNoRegularFileIsNotFound()
{
    // A pipe above all: opening one would wait for a writer for ever.
    QFETCH(QString, kind);
    makeKind(kind);
    QCOMPARE(load("export"), QStringList(notFound("export")));
    const QFileInfo still(inFolder("export"));
    QVERIFY(still.exists() || still.isSymLink());

    // Once a file stands there, it is read.
    QVERIFY(still.isDir() && !still.isSymLink() ? QDir().rmdir(still.filePath())
                                                : QFile::remove(still.filePath()));
    write(still.filePath(), rows({1}));
    QCOMPARE(load("export"), QStringList("1"));
}

void TestFileKinds::aFileWithoutTheRightToReadIsNotOpened()
{
    write(inFolder("export"), rows({1}));
    ::chmod(qPrintable(inFolder("export")), 0);
    QStringList lines;
    {
        const WithoutRights rights;
        lines = load("export");
    }
    QCOMPARE(lines,
             QStringList("C MHRWorker::loadAndParseData() - file '" + inFolder("export")
                         + "' not opened!"));
    QVERIFY(QFile::exists(inFolder("export")));

    ::chmod(qPrintable(inFolder("export")), 0644);
    QCOMPARE(load("export"), QStringList("1"));
    QVERIFY(!QFile::exists(inFolder("export")));
}

void TestFileKinds::aFileInAFolderWithoutTheRightToEnterIsNotFound()
{
    write(inFolder("export"), rows({1}));
    ::chmod(qPrintable(m_dir->path()), 0);
    QStringList lines;
    {
        const WithoutRights rights;
        lines = load("export");
    }
    QCOMPARE(lines, QStringList(notFound("export")));
    ::chmod(qPrintable(m_dir->path()), 0755);
    QCOMPARE(load("export"), QStringList("1"));
}

void TestFileKinds::aFileThatMayNotBeRemovedIsReadEachTime()
{
    write(inFolder("export"), rows({1}));
    ::chmod(qPrintable(m_dir->path()), 0555);
    const QStringList expected = {
        "1", "W MHRWorker::loadAndParseData() - file '" + inFolder("export") + "' NOT removed!"};
    for (int time = 0; time < 2; ++time) {
        QStringList lines;
        {
            const WithoutRights rights;
            lines = load("export");
        }
        QCOMPARE(lines, expected);
    }
    ::chmod(qPrintable(m_dir->path()), 0755);
    QCOMPARE(load("export"), QStringList("1"));
    QVERIFY(!QFile::exists(inFolder("export")));
}

// ---- What happens while it is read --------------------------------------------------------------

void TestFileKinds::aFileThatIsReplacedIsReadToItsOwnEnd()
{
    const auto replace = [this] {
        write(inFolder("new"), rows({3, 4}));
        QCOMPARE(::rename(qPrintable(inFolder("new")), qPrintable(inFolder("export"))), 0);
    };
    QCOMPARE(loadWhile(replace), QStringList({"1", "2"}));
    // What is removed is the name, and so the new file, unread. HR must not write before the export
    // was taken; whoever cannot be sure keeps the file (deleteFile=false).
    QVERIFY(!QFile::exists(inFolder("export")));

    m_worker->setDeleteFileAfterImport(false);
    QCOMPARE(loadWhile(replace), QStringList({"1", "2"}));
    QCOMPARE(load("export"), QStringList({"3", "4"}));
}

void TestFileKinds::aFileThatIsRemovedIsReadToItsEnd()
{
    QCOMPARE(loadWhile([this] { QVERIFY(QFile::remove(inFolder("export"))); }),
             QStringList({"1", "2",
                          "W MHRWorker::loadAndParseData() - file '" + inFolder("export")
                              + "' NOT removed!"}));
    QCOMPARE(load("export"), QStringList(notFound("export")));
}

void TestFileKinds::aFileThatIsEmptiedEndsThere()
{
    QCOMPARE(loadWhile([this] { QVERIFY(QFile::resize(inFolder("export"), 0)); }),
             QStringList("1"));
    QVERIFY(!QFile::exists(inFolder("export")));
}

void TestFileKinds::aFileThatGrowsIsReadToItsNewEnd()
{
    QCOMPARE(loadWhile([this] { write(inFolder("export"), rows({3}), QIODevice::Append); }),
             QStringList({"1", "2", "3"}));
    QVERIFY(!QFile::exists(inFolder("export")));
}

QTEST_GUILESS_MAIN(TestFileKinds)
#include "tst_filekinds.moc"
