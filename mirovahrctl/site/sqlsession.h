#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

/// A connection on which every statement must succeed. After the first failure nothing is sent any
/// more, queries have no rows, and errorString() says why.
///
/// Texts beyond U+FFFF arrive whole, unlike on a connection as Qt's driver opens it. NULL is a null
/// text.
class SqlSession {
public:
    explicit SqlSession(const QSqlDatabase &db);

    /// Speaks UTF-8 of four bytes, writes times in UTC, and takes every value that a table holds.
    bool prepareForCopying();

    bool run(const QString &sql);
    QVector<QStringList> rows(const QString &sql);
    /// The first row; empty when there is none.
    QStringList row(const QString &sql) { return rows(sql).value(0); }
    /// The first value of the first row; null when there is none.
    QString value(const QString &sql) { return row(sql).value(0); }
    /// Hands over one row after the other. Qt's driver holds the whole answer meanwhile. False when
    /// the query failed, or \a take did.
    bool forEachRow(const QString &sql, const std::function<bool(const QStringList &)> &take);

    bool failed() const { return m_failed; }
    QString errorString() const { return m_error; }
    /// The server's number of the error; 0 when it was none of the server.
    int errorNumber() const { return m_errorNumber; }

    /// A name as SQL writes it: between backquotes.
    static QString name(const QString &identifier);
    /// A text as SQL writes it, whatever the server's modes are.
    static QString literal(const QString &text);

private:
    bool fail(const QSqlError &error);

    const QSqlDatabase m_db;
    bool m_failed = false;
    QString m_error;
    int m_errorNumber = 0;
};
