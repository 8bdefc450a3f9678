#include "tests/worker/synchronisation/movableclock.h"

#include <QDateTime>

#include <cerrno>
#include <cstring>

#include <sys/mman.h>
#include <unistd.h>

namespace {

// libfaketime reads the time from a file whenever the program asks for the time. The file is in
// memory, and the restarted program inherits its descriptor, so that none is left behind.
constexpr char kFileVariable[] = "FAKETIME_TIMESTAMP_FILE";
constexpr char kLibraries[] = "LD_PRELOAD";
constexpr char kFolderOfOpenFiles[] = "/proc/self/fd/";
constexpr char kMachinesTime[] = "+0000000000\n";

int openFile()
{
    return qgetenv(kFileVariable).mid(int(std::strlen(kFolderOfOpenFiles))).toInt();
}

/// Always of the same length: the file is never seen half written.
void write(const QByteArray &time)
{
    if (::pwrite(openFile(), time.constData(), size_t(time.size()), 0) != time.size())
        qFatal("The clock could not be moved: %s", std::strerror(errno));
}

} // namespace

void MovableClock::install(char **arguments)
{
    if (qEnvironmentVariableIsSet(kFileVariable)) {
        standAt(1000000000);
        if (QDateTime::currentSecsSinceEpoch() != 1000000000)
            qFatal("The clock does not move: install the package libfaketime");
        run();
        qunsetenv(kLibraries);
        return;
    }
    const int file = ::memfd_create("clock", 0);
    qputenv(kFileVariable, kFolderOfOpenFiles + QByteArray::number(file));
    run();
    qputenv(kLibraries, "/usr/$LIB/faketime/libfaketimeMT.so.1");
    // libfaketime stands before the library of a sanitizer.
    qputenv("ASAN_OPTIONS", qgetenv("ASAN_OPTIONS") + ":verify_asan_link_order=0");
    qputenv("FAKETIME_FMT", "%s");
    qputenv("FAKETIME_NO_CACHE", "1");
    qputenv("FAKETIME_DONT_FAKE_MONOTONIC", "1");
    qputenv("FAKETIME_DISABLE_SHM", "1");
    qputenv("NO_FAKE_STAT", "1");
    ::execv("/proc/self/exe", arguments);
    qFatal("The program could not be started anew: %s", std::strerror(errno));
}

qint64 MovableClock::seconds(const QByteArray &moment)
{
    const QDateTime time = QDateTime::fromString(moment, Qt::ISODate);
    if (!time.isValid() || time.timeSpec() == Qt::LocalTime)
        qFatal("%s is no moment", moment.constData());
    return time.toSecsSinceEpoch();
}

void MovableClock::standAt(const QByteArray &moment)
{
    standAt(seconds(moment));
}

void MovableClock::standAt(qint64 seconds)
{
    write(QByteArray::number(seconds).rightJustified(int(sizeof(kMachinesTime)) - 2, '0') + '\n');
}

void MovableClock::run()
{
    write(kMachinesTime);
}
