#pragma once

#include <QStringList>

class ServerFolder;

/// Options of mariadbd.
namespace ServerOptions {

/// For the server that mariadb-install-db starts to fill a data folder.
QStringList forInstallation();

/// For the private server itself.
QStringList forService(const ServerFolder &folder);

} // namespace ServerOptions
