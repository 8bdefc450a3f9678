#pragma once

#include "bench/plainclient.h"

#include <QByteArray>
#include <QSqlDatabase>
#include <QString>

/// The database server of the environment, as private-mariadb describes it to the programs that it
/// runs.
class Site {
public:
    Site();

    /// The connection that an attendance server would hand to the plugin, not opened.
    QSqlDatabase host() const { return m_host; }
    /// The same account for the bare client; valid as long as this object.
    plain_account plain() const;

    /// Runs a statement as the server's administrator; ends the program when it fails.
    void administer(const QString &sql) const;
    /// The administrator's open connection.
    QSqlDatabase administrator() const;

private:
    QByteArray m_socket;
    QByteArray m_user;
    QByteArray m_password;
    QByteArray m_database;
    QSqlDatabase m_host;
    QSqlDatabase m_administrator;
};

/// Ends the program with a message.
[[noreturn]] void giveUp(const QString &reason);
