// Reading the export: bench_reading FILE ROUNDS SECONDS

#include "bench/plainclient.h"
#include "bench/plainreading.h"
#include "bench/rounds.h"
#include "bench/site.h"
#include "bench/stopwatch.h"
#include "worker/mhrworker.h"

#include <QFile>
#include <QString>

#include <memory>

namespace {

void readByPlugin(const QString &path)
{
    // A worker of its own for each run: it keeps the records that it has read.
    const auto worker = std::make_unique<MHRWorker>();
    worker->setImportFile(path);
    const Stopwatch run("reading", "plugin");
    worker->loadAndParseData();
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 4)
        giveUp(QStringLiteral("bench_reading FILE ROUNDS SECONDS"));
    const QString path = QFile::decodeName(argv[1]);
    Rounds rounds(QByteArray(argv[2]).toInt(), QByteArray(argv[3]).toInt());
    while (rounds.next()) {
        readByPlugin(path);
        {
            const Stopwatch run("reading", "qt");
            readByQt(path);
        }
        {
            const Stopwatch run("reading", "c");
            if (plain_read_file(argv[1]) <= 0)
                giveUp(path);
        }
    }
    return 0;
}
