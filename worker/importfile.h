#pragma once

#include <QString>

/// Where the HR export is read.
namespace ImportFile {

/// The path in force for a configured one (INI key `importFile`), which may be empty.
QString path(const QString &configured);

} // namespace ImportFile
