#include "cli/systemmessage.h"
#include "cli/text.h"
#include "mirovahrctl/program/console.h"
#include "mirovahrctl/subcommand.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QFile out;
    QFile err;
    if (!out.open(stdout, QIODevice::WriteOnly)
        || !err.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return static_cast<int>(ExitStatus::Usage);

    Console console(out, err, Terminal::ofProcess());
    const ExitStatus status = runMirovahrctl(QCoreApplication::arguments().mid(1), console);
    if (!out.flush() || out.error() != QFileDevice::NoError) {
        return static_cast<int>(console.fail(
            ExitStatus::Usage,
            Text::tr("The output cannot be written: %1").arg(systemMessage(out.errorString()))));
    }
    return static_cast<int>(status);
}
