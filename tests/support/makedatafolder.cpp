// makedatafolder FOLDER: makes the data folder that the servers of the tests begin with, as FOLDER,
// which does not exist yet.

#include "privatedb/datafolder.h"
#include "privatedb/serverfolder.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QString error = QStringLiteral("name one folder");
    ServerFolder folder;
    if (argc == 2 && folder.make(QDir::tempPath(), ServerFolder::AtTheEnd::Removed, error)
        && makeDataFolder(folder, error)
        && copyDataFolder(folder.dataDir(), QCoreApplication::arguments().at(1), error))
        return 0;
    std::fprintf(stderr, "makedatafolder: %s\n", qPrintable(error));
    return 1;
}
