#include "mirovahrctl/gatestate/gateoptions.h"
#include "tests/mirovahrctl/preview/previewbench.h"
#include "tests/support/programrun.h"
#include "tests/worker/support/sampleexport.h"

#include <QDir>
#include <QTest>

#include <memory>

namespace {

const QString kConnection = QStringLiteral("/etc/yav/mirovahrctl.ini");

} // namespace

/// packaging/gate-with-undo, which a site gives to the plugin as its command: the gate, and an undo
/// of each file that it admits.
class TestGateWithUndo : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase() { QFile::remove(kConnection); }

    void anAdmittedFileHasItsUndo();
    void aFileThatIsAdmittedAgainKeepsItsUndo();
    void aFileHasItsUndoAfterTheClockWasWrong();
    void theEnvironmentDoesNotMatter();
    void aRefusedFileHasNone();
    void anUndoGoesWithItsCopy();
    void aPreviewThatFailsIsReported();
    void itIsFoundToBeTheGate();

private:
    QStringList command(const QStringList &options) const;
    int run(const QStringList &options = {});
    /// The names in the gate's folder that end like this.
    QStringList names(const QString &ending) const;

    PreviewBench m_bench;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestGateWithUndo::initTestCase()
{
    QVERIFY2(QFileInfo(QStringLiteral("/etc/.machine")).isDir(),
             "This test writes to /etc/yav: run it with scripts/private-view.");
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
    QFile file(kConnection);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QStringLiteral("[client]\nsocket=%1\ndatabase=%2\nuser=mirovahrctl\n"
                              "password-file=%3\n")
                   .arg(m_bench.site().server().socketPath(),
                        m_bench.site().server().databaseName(),
                        m_bench.site().server().passwordFile())
                   .toUtf8());
}

void TestGateWithUndo::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_bench.writeExport({SampleExport::jana(), SampleExport::maria()});
}

QStringList TestGateWithUndo::command(const QStringList &options) const
{
    return QStringList{MIROVAHRCTL,
                       "gate",
                       "--from",
                       const_cast<PreviewBench &>(m_bench).exportFile().path(),
                       "--to",
                       m_folder->filePath("ron.data"),
                       "--state=" + m_folder->filePath("gate")}
    + options;
}

int TestGateWithUndo::run(const QStringList &options)
{
    ProgramRun program;
    program.run(GATE_WITH_UNDO, command(options));
    return program.status();
}

QStringList TestGateWithUndo::names(const QString &ending) const
{
    return QDir(m_folder->filePath("gate")).entryList({"admitted-*" + ending});
}

void TestGateWithUndo::anAdmittedFileHasItsUndo()
{
    QCOMPARE(run({"--accept"}), 0);
    m_bench.writeExport(
        {SampleExport::jana().with(&ExportRow::prijmeni, "Malá"), SampleExport::maria()});
    QCOMPARE(run(), 0);
    QCOMPARE(names(".data").size(), 2);
    QCOMPARE(names(".undo.sql"), names(".data").replaceInStrings(".data", ".undo.sql"));
    QFile undo(m_folder->filePath("gate/" + names(".undo.sql").last()));
    QVERIFY(undo.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(undo.readAll());
    QVERIFY(text.startsWith("-- Takes back what a synchronisation with "
                            + m_folder->filePath("ron.data") + '\n'));
    QVERIFY(text.contains("people, 1234.1 Jana Malá"));
}

void TestGateWithUndo::aFileThatIsAdmittedAgainKeepsItsUndo()
{
    QCOMPARE(run({"--accept"}), 0);
    const QString path = m_folder->filePath("gate/" + names(".undo.sql").value(0));
    QFile undo(path);
    QVERIFY(undo.open(QIODevice::WriteOnly));
    undo.write("the first one");
    undo.close();
    QCOMPARE(run(), 0);
    QCOMPARE(names(".data").size(), 1);
    QVERIFY(undo.open(QIODevice::ReadOnly));
    QCOMPARE(undo.readAll(), QByteArray("the first one"));
}

void TestGateWithUndo::aFileHasItsUndoAfterTheClockWasWrong()
{
    QCOMPARE(run({"--accept"}), 0);
    const QString gate = m_folder->filePath("gate/");
    QVERIFY(QFile::rename(gate + names(".data").value(0), gate + "admitted-29991231T000000Z.data"));
    QVERIFY(QFile::remove(gate + names(".undo.sql").value(0)));
    m_bench.writeExport(
        {SampleExport::jana().with(&ExportRow::prijmeni, "Malá"), SampleExport::maria()});
    QCOMPARE(run(), 0);
    QCOMPARE(names(".undo.sql"),
             QStringList(names(".data").value(0).replace(".data", ".undo.sql")));
}

void TestGateWithUndo::theEnvironmentDoesNotMatter()
{
    ProgramRun program;
    for (const char *name : {"to", "state", "previous"})
        program.setVariable(name, "--state");
    QStringList words = command({"--accept"});
    words.removeOne("--state=" + m_folder->filePath("gate"));
    program.run(GATE_WITH_UNDO, words);
    COMPARE_STATUS(program, 0);
    QCOMPARE(QDir(m_folder->filePath("ron.data.gate")).entryList({"*.undo.sql"}).size(), 1);
}

void TestGateWithUndo::aRefusedFileHasNone()
{
    QCOMPARE(run({"--accept"}), 0);
    m_bench.exportFile().writeBytes("truncat");
    QCOMPARE(run(), 5);
    QCOMPARE(names(".undo.sql").size(), 1);
}

void TestGateWithUndo::anUndoGoesWithItsCopy()
{
    QCOMPARE(run({"--accept"}), 0);
    const QStringList first = names(".data");
    m_bench.writeExport(
        {SampleExport::jana().with(&ExportRow::prijmeni, "Malá"), SampleExport::maria()});
    QCOMPARE(run({"--keep", "1"}), 0);
    QVERIFY(names(".data") != first);
    QCOMPARE(names(".undo.sql"), names(".data").replaceInStrings(".data", ".undo.sql"));
}

void TestGateWithUndo::aPreviewThatFailsIsReported()
{
    m_bench.site().run("RENAME TABLE people TO persons");
    const int status = run({"--accept"});
    m_bench.site().run("RENAME TABLE persons TO people");
    QCOMPARE(status, 4);
    QVERIFY(QFileInfo::exists(m_folder->filePath("ron.data")));
    QCOMPARE(names(".undo.sql"), QStringList());

    // By the next run the plugin has synchronised with this file.
    QCOMPARE(run(), 0);
    QCOMPARE(names(".undo.sql"), QStringList());
}

void TestGateWithUndo::itIsFoundToBeTheGate()
{
    const auto gate =
        GateOptions::ofCommand(GATE_WITH_UNDO " /usr/bin/mirovahrctl gate --from a --to b");
    QVERIFY(gate);
    QCOMPARE(gate->stateFolder, QString("b.gate"));
}

QTEST_GUILESS_MAIN(TestGateWithUndo)
#include "tst_gatewithundo.moc"
