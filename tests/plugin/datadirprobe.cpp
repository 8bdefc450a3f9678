// datadirprobe APPLICATION data|logs|validate [FOLDER]
//
// Calls one operation of the helper for an application of that name, without rights: when it runs
// as root it becomes the user nobody first, unless MIROVAHR_KEEP_RIGHTS is set. Prints what the
// operation logs, its result, and the two members after it.

#include "plugin/datadirhelper.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

#include <grp.h>
#include <unistd.h>

namespace {

constexpr unsigned kNobody = 65534;

void print(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    std::printf("%s%s\n", type == QtCriticalMsg ? "C " : "? ", qUtf8Printable(text));
}

bool giveUpRights()
{
    return ::geteuid() != 0 || std::getenv("MIROVAHR_KEEP_RIGHTS") != nullptr
        || (::setgroups(0, nullptr) == 0 && ::setresgid(kNobody, kNobody, kNobody) == 0
            && ::setresuid(kNobody, kNobody, kNobody) == 0);
}

} // namespace

int main(int argc, char *argv[])
{
    if (!giveUpRights())
        return EXIT_FAILURE;
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    QCoreApplication::setApplicationName(arguments.at(1));
    qInstallMessageHandler(print);

    const QString operation = arguments.at(2);
    QString result;
    if (operation == QLatin1String("data"))
        result = DataDirHelper::getDataDir(true, QString());
    else if (operation == QLatin1String("logs"))
        result = DataDirHelper::getLogsDir(QString());
    else
        DataDirHelper::validateDir(arguments.at(3));
    std::printf("= %s\ndataDir %s\nlogsDir %s\n", qUtf8Printable(result),
                qUtf8Printable(DataDirHelper::dataDir), qUtf8Printable(DataDirHelper::logsDir));
    return EXIT_SUCCESS;
}
