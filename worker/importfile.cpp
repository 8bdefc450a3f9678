#include "worker/importfile.h"

namespace ImportFile {

namespace {

const QLatin1String kDefaultPath("/tmp/ron.data");

} // namespace

QString path(const QString &configured)
{
    return configured.isEmpty() ? QString(kDefaultPath) : configured;
}

} // namespace ImportFile
