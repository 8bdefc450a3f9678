#include "tests/mirovahrctl/checkfile/randomexport.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/exportfile.h"
#include "tests/support/logcapture.h"
#include "worker/mhrworker.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

constexpr quint32 kSeed = 20210331;
constexpr int kFiles = 2500;

/// True when there is anything in the line that could be lost.
bool hasContent(const QByteArray &line)
{
    return line.contains('\0') || !QString::fromUtf8(line).trimmed().isEmpty();
}

} // namespace

/// check-file compared with the plugin itself, on random files.
class TestCheckFileRandom : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theLinesFlaggedAsDroppedAreThoseThatThePluginDrops();

private:
    int readByPlugin(const QByteArray &content);
    QSet<int> droppedByPlugin(const QVector<QByteArray> &lines);
    QSet<int> flaggedByTool(const QByteArray &content);

    ExportFile m_export;
};

/// How many records the worker reads from a file, according to its log. It has no database.
int TestCheckFileRandom::readByPlugin(const QByteArray &content)
{
    m_export.writeBytes(content);
    const LogCapture log;
    MHRWorker worker;
    worker.setDebugLevel(2);
    worker.setImportFile(m_export.path());
    worker.loadAndParseData();
    worker.doSync();

    static const QString count = "D MHRWorker::doSync() - stack count: ";
    const QStringList counts = log.lines().filter(count);
    return counts.isEmpty() ? 0 : counts.constFirst().mid(count.size()).toInt();
}

/// Each line in a file of its own, so that it is clear which line the worker reads.
QSet<int> TestCheckFileRandom::droppedByPlugin(const QVector<QByteArray> &lines)
{
    QSet<int> numbers;
    for (int i = 0; i < lines.size(); ++i) {
        if (hasContent(lines.at(i)) && readByPlugin(lines.at(i) + '\n') == 0)
            numbers << i + 1;
    }
    return numbers;
}

QSet<int> TestCheckFileRandom::flaggedByTool(const QByteArray &content)
{
    m_export.writeBytes(content);
    const ToolRun run = runTool({"check-file", "--json", m_export.path()});
    QSet<int> numbers;
    for (const QJsonValue &finding : run.findings()) {
        if (finding.toObject()["dropped"].toBool())
            numbers << finding.toObject()["line"].toInt();
    }
    return numbers;
}

void TestCheckFileRandom::theLinesFlaggedAsDroppedAreThoseThatThePluginDrops()
{
    QRandomGenerator random(kSeed);
    int droppedLines = 0;
    int readLines = 0;
    for (int file = 0; file < kFiles; ++file) {
        const QVector<QByteArray> lines = RandomExport::lines(random);
        const QByteArray content = RandomExport::joined(random, lines);
        const QSet<int> dropped = droppedByPlugin(lines);
        const int read = readByPlugin(content);
        const auto full = std::count_if(lines.cbegin(), lines.cend(), hasContent);
        const QByteArray message = "file " + QByteArray::number(file) + ":\n" + content.left(4000);

        QVERIFY2(flaggedByTool(content) == dropped, message.constData());
        QVERIFY2(read == full - dropped.size(), message.constData());
        droppedLines += dropped.size();
        readLines += read;
    }
    // Both kinds must be frequent for the comparison to mean something.
    QVERIFY(droppedLines > kFiles);
    QVERIFY(readLines > kFiles);
}

QTEST_GUILESS_MAIN(TestCheckFileRandom)
#include "tst_checkfilerandom.moc"
