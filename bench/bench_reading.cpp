// Reading the export: bench_reading FILE ROUNDS

#include "bench/plainclient.h"
#include "bench/plainreading.h"
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
    if (argc != 3)
        giveUp(QStringLiteral("bench_reading FILE ROUNDS"));
    const QString path = QFile::decodeName(argv[1]);
    const int rounds = QByteArray(argv[2]).toInt();
    for (int round = 0; round < rounds; ++round) {
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
