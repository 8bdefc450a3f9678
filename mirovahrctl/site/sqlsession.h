#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

/// A connection on which every statement must succeed. After the first failure it sends nothing
/// more, queries return no rows, and errorString() says why.
///
/// NULL is read as a null text.
class SqlSession {
public:
    explicit SqlSession(const QSqlDatabase &db);

    /// Switches the connection to four-byte UTF-8, to times in UTC, and to an SQL mode that accepts
    /// every value that a table can hold. False when that fails.
    bool prepareForCopying();

    /// Makes the server itself refuse every write on the connection. False when that fails.
    bool refuseWriting();

    /// Runs a statement. False when it fails.
    bool run(const QString &sql);
    /// All rows of a query; empty when it fails.
    QVector<QStringList> rows(const QString &sql);
    /// The first row; empty when there is none.
    QStringList row(const QString &sql) { return rows(sql).value(0); }
    /// The first value of the first row; null when there is none.
    QString value(const QString &sql) { return row(sql).value(0); }
    /// The first values of all rows.
    QStringList column(const QString &sql);
    /// Passes the rows to \a take one by one; Qt's driver holds the whole answer meanwhile. Ends
    /// when \a take returns false. False when it did, or when the statement fails, also when it
    /// does so only after its first result.
    bool forEachRow(const QString &sql, const std::function<bool(const QStringList &)> &take);

    /// The connection itself, for the plugin's own code.
    const QSqlDatabase &database() const { return m_db; }

    /// Whether a statement has failed.
    bool failed() const { return m_failed; }
    /// What the server said, or else the driver; empty when nothing has failed.
    QString errorString() const { return m_error; }
    /// The same as a sentence for the user, without its full stop.
    QString failure() const;
    /// The number of the server's or the client library's error; 0 for another one.
    int errorNumber() const { return m_errorNumber; }
    /// Whether the connection has failed: the error is not the server's.
    bool isLost() const;

    /// An identifier in backquotes.
    static QString name(const QString &identifier);
    /// A text as an SQL literal that holds in every SQL mode.
    static QString literal(const QString &text);

private:
    bool fail(const QSqlError &error);

    const QSqlDatabase m_db;
    bool m_failed = false;
    QString m_error;
    int m_errorNumber = 0;
};
