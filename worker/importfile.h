#pragma once

#include <QString>

class QFile;

/// Where the HR export is read, and how it is opened.
namespace ImportFile {

/// The path in force for a configured one (INI key `importFile`), which may be empty.
QString path(const QString &configured);

enum class Opening {
    Done,
    NotFound, ///< there is no regular file of this name
    Failed, ///< there is one that cannot be opened
};

/// Opens a regular file for reading. Never waits: not for the writer of a pipe either that takes
/// the file's place meanwhile. \a error says why it has failed.
Opening open(const QString &path, QFile &file, QString &error);

} // namespace ImportFile
