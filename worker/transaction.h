#pragma once

#include <QSqlDatabase>

/// A transaction on a connection, rolled back at the end of its scope unless it was ended before.
class Transaction {
public:
    explicit Transaction(const QSqlDatabase &db)
        : m_db(db)
    {
        m_db.transaction();
    }

    ~Transaction()
    {
        if (m_open)
            rollback();
    }

    Q_DISABLE_COPY_MOVE(Transaction)

    void commit()
    {
        m_db.commit();
        m_open = false;
    }

    void rollback()
    {
        m_db.rollback();
        m_open = false;
    }

private:
    QSqlDatabase m_db;
    bool m_open = true;
};
