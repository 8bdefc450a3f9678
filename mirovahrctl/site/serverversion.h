#pragma once

#include <QString>

/// What a database server is.
struct ServerVersion {
    bool isMariaDb = false;
    int major = 0;
    QString text; ///< as the server gives it, such as "10.11.6-MariaDB-0+deb12u1"

    /// Takes apart what VERSION() gives.
    static ServerVersion parse(const QString &text);

    /// "MariaDB 10.11.6-MariaDB-0+deb12u1", "MySQL 8.0.35".
    QString name() const;

    /// Whether `groups` is a word that must be quoted to be the name of a table: in MySQL from 8
    /// on.
    bool reservesGroups() const { return !isMariaDb && major >= 8; }
};
