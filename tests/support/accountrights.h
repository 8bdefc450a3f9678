#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class TestDatabase;

/// One right of an account, as a GRANT or REVOKE names it.
struct AccountRight {
    QString privilege; ///< "SELECT (`uid`)"
    QString object; ///< "`people`", "FUNCTION `midnightFromTs`", or "*" for the whole database

    QString text() const { return privilege + " ON " + object; }
};

/// The rights that an account of this machine has on the server of a test, one by one.
class AccountRights {
public:
    /// \a account without its host.
    AccountRights(TestDatabase &database, const QString &account);

    /// Those on the attendance database.
    QVector<AccountRight> all();
    void revoke(const AccountRight &right);
    void grant(const AccountRight &right);

    static QStringList texts(const QVector<AccountRight> &rights);
    /// A row of test data for each right, with the columns `privilege` and `object`.
    static void addRows(const QVector<AccountRight> &rights);

private:
    QVector<AccountRight> onTables();
    QVector<AccountRight> onDatabase();
    QVector<AccountRight> onRoutines();

    TestDatabase &m_database;
    const QString m_account;
};
