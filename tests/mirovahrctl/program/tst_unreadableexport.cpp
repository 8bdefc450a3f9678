#include "tests/mirovahrctl/preview/previewbench.h"
#include "tests/mirovahrctl/program/faultyrun.h"
#include "tests/worker/support/sampleexport.h"

#include <QFileInfo>
#include <QTest>

#include <cerrno>

#include <sys/stat.h>

namespace {

/// People who have left; several blocks of the reader's size.
constexpr int kPeople = 140;

bool isPipe(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 && S_ISFIFO(status.st_mode);
}

} // namespace

/// An export that fails while it is read, and a pipe in its place: no subcommand reports that such
/// a file is fine, and none waits for ever.
class TestUnreadableExport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void aReadErrorInTheMiddleIsReported_data() { addSubcommands(); }
    void aReadErrorInTheMiddleIsReported();
    void aReadErrorIsReportedWhereverItOccurs_data();
    void aReadErrorIsReportedWhereverItOccurs();

    void aFileOfManyGigabytesIsRefused_data();
    void aFileOfManyGigabytesIsRefused();

    void aPipeThatTakesThePlaceOfTheExportIsNoFile_data();
    void aPipeThatTakesThePlaceOfTheExportIsNoFile();
    void theWorkerLeavesAPipeThatTakesThePlaceOfTheExportAlone();

private:
    static void addSubcommands();
    QString exportPath() { return m_bench.exportFile().path(); }
    QString exportFolder() { return QFileInfo(exportPath()).path(); }
    QStringList arguments(const QString &subcommand);
    QStringList callsOf(const QString &subcommand);
    void compareReadError(const ProgramRun &run);

    PreviewBench m_bench;
};

void TestUnreadableExport::initTestCase()
{
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
}

void TestUnreadableExport::init()
{
    m_bench.exportFile().remove();
    QVector<ExportRow> lines = {SampleExport::jana()};
    for (int i = 0; i < kPeople; ++i) {
        lines << ExportRow()
                     .with(&ExportRow::osobniCislo, 7000 + i)
                     .with(&ExportRow::stavPracovnihoPomeru, 4)
                     .with(&ExportRow::strediskoPopis, QString(1000, 'x'));
    }
    m_bench.writeExport(lines);
}

void TestUnreadableExport::addSubcommands()
{
    QTest::addColumn<QString>("subcommand");
    for (const char *subcommand : {"anonymise", "check-file", "diff", "explain", "gate", "preview"})
        QTest::newRow(subcommand) << subcommand;
}

QStringList TestUnreadableExport::arguments(const QString &subcommand)
{
    if (subcommand == "anonymise" || subcommand == "check-file")
        return {subcommand, exportPath()};
    if (subcommand == "diff")
        return {subcommand, m_bench.iniPath(), exportPath()};
    if (subcommand == "explain")
        return QStringList{subcommand, "1234.1", exportPath()} + m_bench.arguments();
    if (subcommand == "preview")
        return QStringList{subcommand, exportPath()} + m_bench.arguments();
    return {subcommand,
            "--from",
            exportPath(),
            "--to",
            m_bench.filePath("admitted.data"),
            "--state",
            m_bench.filePath("state"),
            "--accept"};
}

/// The calls by which a run without a fault opens and reads the export.
QStringList TestUnreadableExport::callsOf(const QString &subcommand)
{
    const QString trace = m_bench.filePath("trace");
    QFile::remove(trace);
    ProgramRun run;
    run.setVariable("FAULTY_TRACE", trace);
    FaultyRun::prepare(run, exportFolder(), {});
    if (!run.run(MIROVAHRCTL, arguments(subcommand)))
        qFatal("The program does not end: %s", run.report().constData());
    QFile file(trace);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(trace));
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}

void TestUnreadableExport::compareReadError(const ProgramRun &run)
{
    COMPARE_STATUS(run, 2);
    QVERIFY2(run.errors().contains("'" + exportPath() + "' cannot be read to its end: "),
             run.report().constData());
    QVERIFY2(!run.output().contains("The export is fine"), run.report().constData());
    QVERIFY(!QFile::exists(m_bench.filePath("admitted.data")));
    QVERIFY(m_bench.exportFile().exists());
}

void TestUnreadableExport::aReadErrorInTheMiddleIsReported()
{
    QFETCH(QString, subcommand);
    ProgramRun run;
    // It is opened, one block is read, and no more.
    FaultyRun::prepare(run, exportFolder(), {"all", 3, EIO, true});
    QVERIFY(run.run(MIROVAHRCTL, arguments(subcommand)));
    compareReadError(run);
}

void TestUnreadableExport::aReadErrorIsReportedWhereverItOccurs_data()
{
    QTest::addColumn<QString>("subcommand");
    // preview reads as the worker does, and takes its time.
    for (const char *subcommand : {"anonymise", "check-file", "diff", "explain", "gate"})
        QTest::newRow(subcommand) << subcommand;
}

void TestUnreadableExport::aReadErrorIsReportedWhereverItOccurs()
{
    QFETCH(QString, subcommand);
    const QStringList calls = callsOf(subcommand);
    QFile::remove(m_bench.filePath("admitted.data"));
    QCOMPARE(calls.first(), "open " + exportPath());
    QVERIFY(calls.size() > 3);
    // The last one only looks whether there is more behind the last byte.
    for (int call = 2; call < calls.size(); ++call) {
        ProgramRun run;
        FaultyRun::prepare(run, exportFolder(), {"all", call, EIO, true});
        QVERIFY(run.run(MIROVAHRCTL, arguments(subcommand)));
        compareReadError(run);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QString("failed from call %1 on").arg(call)));
    }
}

void TestUnreadableExport::aFileOfManyGigabytesIsRefused_data()
{
    QTest::addColumn<QString>("subcommand");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("complaint");
    const QString tooLong = "'%1' cannot be read to its end: it is longer than 1 GiB, and the "
                            "plugin reads no further.";
    QTest::newRow("anonymise") << "anonymise" << 2 << tooLong;
    QTest::newRow("check-file") << "check-file" << 2 << tooLong;
    QTest::newRow("diff") << "diff" << 2 << tooLong;
    QTest::newRow("explain") << "explain" << 2 << tooLong;
    QTest::newRow("gate") << "gate" << 5
                          << "The file is larger than 1 GiB; the plugin reads no further. "
                             "[file-too-long]";
    QTest::newRow("preview") << "preview" << 2
                             << "'%1' cannot be read to its end: the plugin would log "
                                "\"MHRWorker::loadAndParseData() - file '%1' NOT removed!\".";
}

void TestUnreadableExport::aFileOfManyGigabytesIsRefused()
{
    QFETCH(QString, subcommand);
    QFETCH(int, status);
    QFETCH(QString, complaint);
    // All but the lines of its begin is a hole.
    QVERIFY(QFile::resize(exportPath(), qint64(64) << 30));
    ProgramRun run;
    QVERIFY(run.run(MIROVAHRCTL, arguments(subcommand)));
    COMPARE_STATUS(run, status);
    QVERIFY2((run.errors() + run.output()).contains(complaint.replace("%1", exportPath())),
             run.report().constData());
    QVERIFY(!QFile::exists(m_bench.filePath("admitted.data")));
}

void TestUnreadableExport::aPipeThatTakesThePlaceOfTheExportIsNoFile_data()
{
    QTest::addColumn<QString>("subcommand");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("anonymise") << "anonymise" << 2 << "There is no file '%1'";
    QTest::newRow("check-file") << "check-file" << 2 << "There is no file '%1'";
    QTest::newRow("diff") << "diff" << 2 << "There is no file '%1'";
    QTest::newRow("explain") << "explain" << 2 << "There is no file '%1'";
    QTest::newRow("gate") << "gate" << 5 << "There is no file '%1'";
    QTest::newRow("preview") << "preview" << 2 << "'%1' cannot be read to its end: ";
}

void TestUnreadableExport::aPipeThatTakesThePlaceOfTheExportIsNoFile()
{
    QFETCH(QString, subcommand);
    QFETCH(int, status);
    QFETCH(QString, complaint);
    ProgramRun run;
    run.setVariable("FAULTY_PIPE", exportPath());
    FaultyRun::prepare(run, exportFolder(), {});
    QVERIFY(run.run(MIROVAHRCTL, arguments(subcommand)));
    QVERIFY(isPipe(exportPath()));
    COMPARE_STATUS(run, status);
    QVERIFY2((run.errors() + run.output()).contains(complaint.arg(exportPath())),
             run.report().constData());
}

void TestUnreadableExport::theWorkerLeavesAPipeThatTakesThePlaceOfTheExportAlone()
{
    QFile ini(m_bench.iniPath());
    QVERIFY(ini.open(QIODevice::WriteOnly));
    ini.write("deleteFile=true\nimportFile=\"" + exportPath().toUtf8() + "\"\n");
    ini.close();
    TestDatabase &site = m_bench.site();
    ProgramRun run;
    run.setVariable("FAULTY_PIPE", exportPath());
    FaultyRun::prepare(run, exportFolder(), {});
    QVERIFY(run.run(SINGLESYNC,
                    {site.server().socketPath(), site.server().databaseName(),
                     site.server().userName(), site.server().password(), m_bench.iniPath()}));
    COMPARE_STATUS(run, 0);
    const QStringList log = run.errors().split('\n');
    QVERIFY2(
        log.contains("W MHRWorker::loadAndParseData() - file '" + exportPath() + "' NOT found!"),
        run.report().constData());
    QVERIFY(log.filter("parseLine").isEmpty());
    QVERIFY(isPipe(exportPath()));
}

QTEST_GUILESS_MAIN(TestUnreadableExport)
#include "tst_unreadableexport.moc"
