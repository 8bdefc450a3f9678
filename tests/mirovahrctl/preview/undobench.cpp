#include "tests/mirovahrctl/preview/undobench.h"

#include "tests/support/programrun.h"
#include "worker/schedule.h"

#include <algorithm>

QString UndoBench::writeUndo(const QStringList &options)
{
    ProgramRun program;
    program.run(MIROVAHRCTL,
                QStringList{"preview", exportFile().path(), "--undo", undoPath()}
                    + arguments("root") + options);
    return program.status() <= 1 ? QString() : QString::fromUtf8(program.report());
}

QString UndoBench::undoText() const
{
    QFile file(undoPath());
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(undoPath()));
    return QString::fromUtf8(file.readAll());
}

void UndoBench::replaceUndoText(const QString &text)
{
    QFile file(undoPath());
    if (!file.open(QIODevice::WriteOnly))
        qFatal("%s cannot be written", qPrintable(undoPath()));
    file.write(text.toUtf8());
}

void UndoBench::undo(ProgramRun &client, const QStringList &clientOptions)
{
    startUndo(client, clientOptions);
    client.waitForEnd();
}

void UndoBench::startUndo(ProgramRun &client, const QStringList &clientOptions)
{
    const QString command =
        QStringLiteral("file=$1; shift; exec mariadb --no-defaults \"$@\" <\"$file\"");
    client.start("/bin/sh",
                 QStringList{"-c", command, "sh", undoPath(),
                             "--socket=" + site().server().socketPath(), "--user=root"}
                     + clientOptions + QStringList{site().server().databaseName()});
}

DatabaseState UndoBench::state()
{
    DatabaseState state = site().dumpAll();
    TableRows &settings = state["vars"];
    settings.erase(std::remove_if(settings.begin(), settings.end(),
                                  [](const QStringList &row) {
                                      return row.first()
                                          == QLatin1String("name=") + Schedule::kForceSyncKey;
                                  }),
                   settings.end());
    return state;
}
