// singlesync SOCKET DATABASE USER PASSWORD INI: one tick of a worker that is set up as the plugin
// does, in a process that has seen no other. Its log goes to standard error, at the highest debug
// level, in lines such as "W text".

#include "plugin/configuration.h"
#include "plugin/workersetup.h"
#include "worker/mhrworker.h"

#include <QCoreApplication>
#include <QSettings>
#include <QSqlDatabase>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 6)
        return 2;
    QSqlDatabase database = QSqlDatabase::addDatabase("QMYSQL", "host");
    database.setHostName("localhost");
    database.setConnectOptions("UNIX_SOCKET=" + arguments.at(1));
    database.setDatabaseName(arguments.at(2));
    database.setUserName(arguments.at(3));
    database.setPassword(arguments.at(4));
    qSetMessagePattern("%{if-debug}D%{endif}%{if-info}I%{endif}%{if-warning}W%{endif}"
                       "%{if-critical}C%{endif} %{message}");
    MHRWorker worker;
    worker.setDebugLevel(3);
    worker.setTepDb(database);
    configureWorker(worker, Configuration::read(*Configuration::open(arguments.at(5))));
    worker.init();
    worker.checkSync();
    return 0;
}
