#include "tests/worker/faults/servingprocess.h"

#include "tests/worker/faults/servingworker.h"

#include <QCoreApplication>
#include <QFile>
#include <QSqlDatabase>

#include <csignal>
#include <cstdio>
#include <cstring>

#include <sys/prctl.h>

namespace {

constexpr char kMark[] = "--serve";

// What follows the mark.
enum Argument { ConnectOptions = 2, Database, User, PasswordFile, ExportPath, Count };

QString firstLineOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    return QString::fromUtf8(file.readLine()).trimmed();
}

void print(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const char letter = type == QtDebugMsg || type == QtInfoMsg ? 'D' : 'W';
    std::printf("%c %s\n", letter, qUtf8Printable(text));
    std::fflush(stdout);
}

} // namespace

QStringList ServingProcess::arguments(const QSqlDatabase &database, const QString &passwordFile,
                                      const QString &exportPath)
{
    return {kMark,
            database.connectOptions(),
            database.databaseName(),
            database.userName(),
            passwordFile,
            exportPath};
}

bool ServingProcess::isMeant(int argc, char **argv)
{
    return argc == Count && std::strcmp(argv[1], kMark) == 0;
}

int ServingProcess::run(int argc, char **argv)
{
    // Ends with the test, also when that is killed.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(print);
    QSqlDatabase database = QSqlDatabase::addDatabase("QMYSQL", "server");
    database.setConnectOptions(argv[ConnectOptions]);
    database.setDatabaseName(argv[Database]);
    database.setUserName(argv[User]);
    database.setPassword(firstLineOf(argv[PasswordFile]));
    const ServingWorker worker(database, argv[ExportPath]);
    return QCoreApplication::exec();
}
