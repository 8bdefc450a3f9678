#include "tools/console.h"
#include "tools/subcommand.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <unistd.h>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QFile out;
    QFile err;
    if (!out.open(stdout, QIODevice::WriteOnly)
        || !err.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return static_cast<int>(ExitStatus::Usage);

    Console console(out, err, isatty(STDERR_FILENO) != 0);
    const ExitStatus status = runMirovahrctl(QCoreApplication::arguments().mid(1), console);
    if (!out.flush() || out.error() != QFileDevice::NoError) {
        return static_cast<int>(
            console.fail(ExitStatus::Usage,
                         QStringLiteral("The output cannot be written: ") + out.errorString()));
    }
    return static_cast<int>(status);
}
