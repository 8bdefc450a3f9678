#include "mirovahrctl/program/outputfile.h"

#include <sys/stat.h>

namespace {

constexpr mode_t kNotAllowed = 0137;
constexpr QFileDevice::Permissions kAllowed = QFileDevice::ReadOwner | QFileDevice::WriteOwner
    | QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::ReadGroup;

} // namespace

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
