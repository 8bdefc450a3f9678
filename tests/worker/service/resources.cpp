#include "tests/worker/service/resources.h"

#include "tests/support/testdatabase.h"

#include <QDir>
#include <QFile>

#include <malloc.h>
#include <unistd.h>

namespace {

int entries(const char *folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

qint64 residentBytes()
{
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qPrintable(file.errorString()));
    return file.readAll().split(' ').at(1).toLongLong() * ::sysconf(_SC_PAGESIZE);
}

int statusOf(TestDatabase &db, const char *name)
{
    const TableRows rows = db.rows(QString("SHOW GLOBAL STATUS LIKE '%1'").arg(name));
    return rows.isEmpty() ? -1 : rows.first().at(1).toInt();
}

} // namespace

Resources Resources::now(TestDatabase &db)
{
    const struct mallinfo2 heap = ::mallinfo2();
    Resources resources;
    resources.heap = qint64(heap.uordblks + heap.hblkhd);
    resources.resident = residentBytes();
    resources.handles = entries("/proc/self/fd");
    resources.threads = entries("/proc/self/task");
    resources.connections = statusOf(db, "Threads_connected");
    resources.statements = statusOf(db, "Prepared_stmt_count");
    return resources;
}

QString Resources::text() const
{
    return QString("heap %1 bytes, resident %2 KiB, handles %3, threads %4, connections %5, "
                   "prepared statements %6")
        .arg(heap)
        .arg(resident / 1024)
        .arg(handles)
        .arg(threads)
        .arg(connections)
        .arg(statements);
}
