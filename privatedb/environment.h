#pragma once

#include <QProcessEnvironment>

/// This program's environment without the variables that lead MariaDB's programs to other servers,
/// accounts and option files, such as MYSQL_HOST and MYSQL_PWD.
QProcessEnvironment environmentWithoutServers();
