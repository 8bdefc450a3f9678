#pragma once

#include "cli/databaseoptions.h"

#include <QString>

class QSettings;
class QVariant;

/// A file that describes a connection to the attendance database, in the form of the database
/// server's own option files: a group [client] that has a key for each database option of the
/// command lines, and the key "password". Other groups are ignored. Read with QSettings (UTF-8),
/// as the plugin's INI file is.
class ConnectionFile {
public:
    /// Reads the file. Returns what is wrong with it, a sentence without its full stop; empty on
    /// success.
    QString read(const QString &path);

    /// The options in the file, without the password.
    const DatabaseOptions &options() const { return m_options; }

    /// Reads the password: the file's own, or that of the file that it names. \a warning, a
    /// sentence without its full stop, says when every user of the machine can read it; the file's
    /// own is ignored then. Returns what is wrong, as read() does.
    QString readPassword(QString &password, QString &warning) const;

private:
    QString readKeys(QSettings &settings);
    QString take(const QString &key, const QVariant &value);
    QString check() const;

    QString m_path;
    DatabaseOptions m_options;
    QString m_password;
    QString m_passwordFile;
};
