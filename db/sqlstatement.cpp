#include "db/sqlstatement.h"

#include <QByteArray>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>

#include <algorithm>

namespace SqlStatement {

namespace {

constexpr QLatin1Char kMark('%');

QString filledInTurn(QLatin1String sql, const QStringList &values)
{
    QString text = sql;
    for (const QString &value : values)
        text = text.arg(value);
    return text;
}

/// The number at `at`, which goes behind it: at most two digits, as in QString::arg().
int numberAt(QLatin1String sql, int &at)
{
    int number = 0;
    for (const int end = qMin(at + 2, sql.size()); at < end; ++at) {
        const char digit = sql.at(at).toLatin1();
        if (digit < '0' || digit > '9')
            break;
        number = number * 10 + (digit - '0');
    }
    return number;
}

} // namespace

QString filled(QLatin1String sql, const QStringList &values)
{
    const auto holdsMark = [](const QString &value) {
        return value.contains(kMark);
    };
    if (std::any_of(values.cbegin(), values.cend(), holdsMark))
        return filledInTurn(sql, values);

    QString text;
    int done = 0;
    for (int mark = sql.indexOf(kMark); mark >= 0; mark = sql.indexOf(kMark, done)) {
        text += sql.mid(done, mark - done);
        done = mark + 1;
        text += values.at(numberAt(sql, done) - 1);
    }
    text += sql.mid(done);
    return text;
}

QSqlQuery run(const QSqlDatabase &db, const QString &sql)
{
    QSqlQuery query(db);
    query.exec(sql);
    return query;
}

QSqlQuery runAll(const QSqlDatabase &db, const QString &sql)
{
    QSqlQuery query = run(db, sql);
    while (query.nextResult()) { }
    return query;
}

bool failed(const QSqlQuery &query, const QByteArray &message, Encoding encoding)
{
    const QSqlError error = query.lastError();
    if (!error.isValid())
        return false;
    const QString text = error.text();
    qCritical("%s %s", message.constData(),
              encoding == Encoding::Utf8 ? qUtf8Printable(text) : qPrintable(text));
    return true;
}

} // namespace SqlStatement
