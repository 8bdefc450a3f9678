// The plugin with random configurations: it starts with the values of the keys, or not at all when
// they disable it.
//
// MIROVAHR_INPUT_SEED=N makes other configurations, MIROVAHR_INPUT_FILES=N more of them.

#include "plugin/configuration.h"
#include "plugin/interfaces/serverinterface.h"
#include "tests/plugin/pluginini.h"
#include "tests/plugin/plugintest.h"
#include "tests/plugin/randomconfiguration.h"
#include "tests/support/environmentnumber.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTest>

namespace {

const char *const kSeedVariable = "MIROVAHR_INPUT_SEED";
const char *const kFilesVariable = "MIROVAHR_INPUT_FILES";
constexpr quint32 kSeed = 19700101;

/// A file of this content under a name that no other had: Qt remembers what it has read of a name,
/// and takes a file of the same size and moment for the same.
class NumberedFile {
public:
    explicit NumberedFile(const QByteArray &content)
    {
        static int number = 0;
        m_file.setFileName(QString("/tmp/%1.ini").arg(++number));
        if (!m_file.open(QIODevice::WriteOnly) || m_file.write(content) != content.size())
            qFatal("%s: %s", qPrintable(path()), qPrintable(m_file.errorString()));
        m_file.close();
    }
    ~NumberedFile() { m_file.remove(); }
    NumberedFile(const NumberedFile &) = delete;
    NumberedFile &operator=(const NumberedFile &) = delete;

    QString path() const { return m_file.fileName(); }

private:
    QFile m_file;
};

/// The first difference between the values in force and those written; empty when there is none.
QString difference(const Configuration &read, const PlainConfiguration &written)
{
    if (read.enabled != written.flag("enabled", true))
        return "enabled";
    if (read.tickMilliseconds != written.tickMilliseconds())
        return "timerInterval";
    if (read.syncInterval != written.number("syncInterval", 60))
        return "syncInterval";
    if (read.testMode != written.flag("testMode", false))
        return "testMode";
    if (read.importFile != written.text("importFile"))
        return "importFile";
    if (read.deleteFile != written.flag("deleteFile", true))
        return "deleteFile";
    if (read.syncCommand != written.text("syncCommand"))
        return "syncCommand";
    if (read.syncCommandRun != (written.number("syncCommandRun", 0) & 0xFFU))
        return "syncCommandRun";
    if (read.departmentId != written.number("departmentId", 1))
        return "departmentId";
    return read.messages == written.messageTable() ? QString() : QString("MES");
}

} // namespace

class TestRandomConfiguration : public PluginTest {
    Q_OBJECT

private Q_SLOTS:
    void theKeysAreReadAsTheySay();
    void damagedFilesAreReadAsQtReadsTheirFormat();
    void thePluginRunsAsTheKeysSay_data();
    void thePluginRunsAsTheKeysSay();

private:
    void runAsWritten(const PlainConfiguration &written);
    void checkPerson(const PlainConfiguration &written, bool imported);
};

void TestRandomConfiguration::theKeysAreReadAsTheySay()
{
    const quint32 seed = environmentNumber(kSeedVariable, kSeed);
    RandomConfigurations configurations(seed, m_file->path());
    for (uint i = 0; i < environmentNumber(kFilesVariable, 2000); ++i) {
        PlainConfiguration written;
        const QByteArray file = configurations.wellFormed(written);
        const NumberedFile ini(file);
        const QString unlike =
            difference(Configuration::read(*Configuration::open(ini.path())), written);
        QVERIFY2(unlike.isEmpty(),
                 qPrintable(QString("seed %1, file %2, %3:\n").arg(seed).arg(i).arg(unlike)
                            + QString::fromUtf8(file)));
    }
}

void TestRandomConfiguration::damagedFilesAreReadAsQtReadsTheirFormat()
{
    const quint32 seed = environmentNumber(kSeedVariable, kSeed);
    RandomConfigurations configurations(seed, m_file->path());
    for (uint i = 0; i < environmentNumber(kFilesVariable, 2000); ++i) {
        const QByteArray file = configurations.damaged();
        const NumberedFile ini(file);
        const PlainConfiguration written = PlainConfiguration::ofFile(ini.path());
        const QString unlike =
            difference(Configuration::read(*Configuration::open(ini.path())), written);
        QVERIFY2(unlike.isEmpty(),
                 qPrintable(QString("seed %1, file %2, %3:\n").arg(seed).arg(i).arg(unlike)
                            + QString::fromLatin1(file.toPercentEncoding("=[]\n /"))));
    }
}

void TestRandomConfiguration::thePluginRunsAsTheKeysSay_data()
{
    QTest::addColumn<QByteArray>("file");
    const quint32 seed = environmentNumber(kSeedVariable, kSeed);
    // The export file is a new one for each row, so the path leads through a link.
    RandomConfigurations configurations(seed, "/tmp/export.link");
    for (int i = 0; i < 20; ++i) {
        PlainConfiguration ignored;
        QTest::addRow("seed %u, file %d", seed, i) << configurations.wellFormed(ignored);
        QTest::addRow("seed %u, damaged file %d", seed, i) << configurations.damaged();
    }
}

void TestRandomConfiguration::thePluginRunsAsTheKeysSay()
{
    QFETCH(QByteArray, file);
    QFile::remove("/tmp/export.link");
    m_file->write({ExportRow().with(&ExportRow::osobniCislo, 7777)});
    QVERIFY(QFile::link(m_file->path(), "/tmp/export.link"));
    start(file, 3);
    const PlainConfiguration written = PlainConfiguration::ofFile(PluginIni::path());

    QCOMPARE(host().worker() != nullptr, written.flag("enabled", true));
    QCOMPARE(m_log->contains("W MirovaHR is DISABLED"), !written.flag("enabled", true));
    if (host().worker() != nullptr)
        runAsWritten(written);
}

void TestRandomConfiguration::runAsWritten(const PlainConfiguration &written)
{
    QVERIFY(m_log->contains(
        QString("D MHRWorker::setMes() count: %1)").arg(written.messageTable().size())));
    QCOMPARE(host().periods(), QVector<int>{written.timerPeriod()});

    host().tick();
    QVERIFY(m_log->contains("D MHRWorker: BEGIN synchronization #1 (force: NO)"));
    const QString path = written.text("importFile");
    QVERIFY(m_log->contains(
        "I MHRWorker::loadAndParseData() - loading data from file: '"
        + QFileInfo(path.isEmpty() ? QString("/tmp/ron.data") : path).absoluteFilePath() + "'"));

    const bool commandRuns = (written.number("syncCommandRun", 0) & 0xFFU) >= 2;
    QCOMPARE(m_log->waitForText("MHRWorker::runCommand()", 0), commandRuns);
    if (commandRuns) {
        QCOMPARE(m_log->contains("W MHRWorker::runCommand() - NO command, aborted!"),
                 written.text("syncCommand").isEmpty());
    }
    checkPerson(written, path == "/tmp/export.link");

    host().tick();
    const quint32 syncInterval = written.number("syncInterval", 60);
    QCOMPARE(m_log->contains("D MHRWorker: BEGIN synchronization #2 (force: NO)"),
             syncInterval <= 2);
}

/// The person of the export is there, in the department, unless only tried out.
void TestRandomConfiguration::checkPerson(const PlainConfiguration &written, bool imported)
{
    const bool isWritten = imported && !written.flag("testMode", false);
    const quint32 department = written.number("departmentId", 1);
    TableRows expected;
    if (isWritten)
        expected += {department == 0 ? QString("NULL") : QString::number(department)};
    QCOMPARE(m_db.rows("SELECT did FROM people WHERE pid = 77771"), expected);
    QCOMPARE(QFileInfo("/tmp/export.link").isSymLink(),
             !imported || !written.flag("deleteFile", true));
}

int main(int argc, char *argv[])
{
    HostApplication application(argc, argv);
    TestRandomConfiguration test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_randomconfiguration.moc"
