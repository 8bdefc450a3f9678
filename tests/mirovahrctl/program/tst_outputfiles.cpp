#include "mirovahrctl/program/outputfile.h"
#include "tests/mirovahrctl/preview/previewbench.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/worker/support/sampleexport.h"

#include <QDir>
#include <QTest>

#include <sys/stat.h>

namespace {

/// Sets the umask for its lifetime.
class Umask {
public:
    explicit Umask(mode_t mask)
        : m_outer(::umask(mask))
    {
    }
    ~Umask() { ::umask(m_outer); }
    Umask(const Umask &) = delete;
    Umask &operator=(const Umask &) = delete;

private:
    const mode_t m_outer;
};

int modeOf(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        qFatal("%s is not there", qPrintable(path));
    return status.st_mode & 07777;
}

void makeFile(const QString &path, mode_t mode)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || ::chmod(QFile::encodeName(path).constData(), mode) != 0)
        qFatal("%s cannot be created", qPrintable(path));
}

} // namespace

/// The files that the command line asks for hold personal data.
class TestOutputFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_folder.reset(new QTemporaryDir); }

    void aFileIsForOwnerAndGroupAtMost_data();
    void aFileIsForOwnerAndGroupAtMost();
    void theUmaskOfTheProgramStays();
    void everyFileOfTheCommandLineIsSuchAFile_data();
    void everyFileOfTheCommandLineIsSuchAFile();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    PreviewBench m_bench;
    QScopedPointer<QTemporaryDir> m_folder;
};

void TestOutputFiles::initTestCase()
{
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
    m_bench.writeExport({SampleExport::jana()});
}

void TestOutputFiles::aFileIsForOwnerAndGroupAtMost_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<int>("before"); // mode of the file that is there already; 0: there is none
    QTest::addColumn<int>("expected");
    QTest::newRow("new, no umask") << 0 << 0 << 0640;
    QTest::newRow("new, the usual umask") << 0022 << 0 << 0640;
    QTest::newRow("new, a umask against the group") << 0077 << 0 << 0600;
    QTest::newRow("over one that everybody may write") << 0 << 0666 << 0640;
    QTest::newRow("over one that everybody may read") << 0022 << 0644 << 0640;
    QTest::newRow("over one that may be run") << 0022 << 0755 << 0640;
    QTest::newRow("over one for owner and group") << 0077 << 0640 << 0640;
    QTest::newRow("over one for the owner") << 0022 << 0600 << 0600;
}

void TestOutputFiles::aFileIsForOwnerAndGroupAtMost()
{
    QFETCH(int, mask);
    QFETCH(int, before);
    QFETCH(int, expected);
    if (before != 0)
        makeFile(path("page"), mode_t(before));
    const Umask umask{mode_t(mask)};
    OutputFile file(path("page"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    // While it is written, it has another name.
    for (const QFileInfo &info : QDir(m_folder->path()).entryInfoList(QDir::Files | QDir::Hidden)) {
        if (info.fileName() != "page")
            QCOMPARE(modeOf(info.filePath()), expected);
    }
    file.write("content");
    QVERIFY(file.commit());
    QCOMPARE(modeOf(path("page")), expected);
}

void TestOutputFiles::theUmaskOfTheProgramStays()
{
    const Umask umask(0022);
    OutputFile file(path("page"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(::umask(0022), mode_t(0022));
}

void TestOutputFiles::everyFileOfTheCommandLineIsSuchAFile_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("options");
    const QString exportPath = m_bench.exportFile().path();
    QTest::newRow("check-file") << QStringList{"check-file", exportPath}
                                << QStringList{"html", "rejects"};
    QTest::newRow("diff") << QStringList{"diff", exportPath, exportPath} << QStringList{"html"};
    QTest::newRow("explain") << QStringList{"explain", "1234.1", exportPath} + m_bench.arguments()
                             << QStringList{"html"};
    QTest::newRow("preview") << QStringList{"preview", exportPath} + m_bench.arguments()
                             << QStringList{"html", "log", "sql", "undo"};
}

void TestOutputFiles::everyFileOfTheCommandLineIsSuchAFile()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, options);
    for (const QString &option : options)
        arguments << "--" + option << path(option);
    const Umask umask(0);
    for (const QString &option : options)
        makeFile(path(option), 0644);
    const ToolRun run = runTool(arguments);
    for (const QString &option : options) {
        QVERIFY2(QFileInfo(path(option)).size() > 0, run.report().constData());
        QCOMPARE(modeOf(path(option)), 0640);
    }
}

QTEST_GUILESS_MAIN(TestOutputFiles)
#include "tst_outputfiles.moc"
