#include "mirovahrctl/program/outputfile.h"

#include "cli/systemmessage.h"
#include "cli/text.h"
#include "mirovahrctl/program/console.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <sys/stat.h>

namespace {

constexpr mode_t kNotAllowed = 0137;
constexpr QFileDevice::Permissions kAllowed = QFileDevice::ReadOwner | QFileDevice::WriteOwner
    | QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::ReadGroup;

QString fullPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

std::optional<ExitStatus> OutputFile::begin(Console &console)
{
    if (fileName().isEmpty() || open(QIODevice::WriteOnly))
        return std::nullopt;
    return fail(console);
}

std::optional<ExitStatus> OutputFile::finish(Console &console)
{
    if (!isOpen() || commit())
        return std::nullopt;
    return fail(console);
}

ExitStatus OutputFile::fail(Console &console) const
{
    return console.fail(
        ExitStatus::Usage,
        Text::tr("'%1' cannot be written: %2").arg(fileName(), systemMessage(errorString())));
}

bool OutputFile::open(OpenMode mode)
{
    const mode_t outer = ::umask(kNotAllowed);
    ::umask(outer | kNotAllowed);
    const bool opened = QSaveFile::open(mode);
    ::umask(outer);
    return opened;
}

bool OutputFile::setPermissions(Permissions permissions)
{
    return QSaveFile::setPermissions(permissions & kAllowed);
}

bool isSameFile(const QString &a, const QString &b)
{
    // QFileInfo takes two missing files for the same.
    return fullPath(a) == fullPath(b) || (QFileInfo::exists(a) && QFileInfo(a) == QFileInfo(b));
}

std::optional<ExitStatus> refuseOverwriting(const QString &exportFile, const QStringList &outputs,
                                            Console &console)
{
    for (int i = 0; i < outputs.size(); ++i) {
        const QString &output = outputs.at(i);
        if (output.isEmpty())
            continue;
        if (isSameFile(output, exportFile)) {
            return console.fail(
                ExitStatus::Usage,
                Text::tr("The result would overwrite the export; name another file"));
        }
        const bool isTaken =
            std::any_of(outputs.cbegin(), outputs.cbegin() + i,
                        [&output](const QString &other) { return isSameFile(other, output); });
        if (isTaken) {
            return console.fail(
                ExitStatus::Usage,
                Text::tr("Two results would be written to '%1'; name another file").arg(output));
        }
    }
    return std::nullopt;
}
