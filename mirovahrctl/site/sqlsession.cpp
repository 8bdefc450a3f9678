#include "mirovahrctl/site/sqlsession.h"

#include "cli/text.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

#include <algorithm>

namespace {

constexpr char kReadOnly[] = "SET SESSION TRANSACTION READ ONLY";
constexpr char kFourByteTexts[] = "SET NAMES utf8mb4";
constexpr char kUniversalTime[] = "SET SESSION time_zone = '+00:00'";
constexpr char kEveryValue[] = "SET SESSION sql_mode = 'NO_AUTO_VALUE_ON_ZERO,ALLOW_INVALID_DATES,"
                               "NO_DIR_IN_CREATE,NO_ENGINE_SUBSTITUTION'";

QStringList texts(const QSqlQuery &query, int count)
{
    QStringList texts;
    texts.reserve(count);
    for (int i = 0; i < count; ++i) {
        const QVariant value = query.value(i);
        const QString text = value.toString();
        // A null number would read as 0, and an empty text as a null one.
        if (value.isNull())
            texts += QString();
        else
            texts += text.isNull() ? QStringLiteral("") : text;
    }
    return texts;
}

bool isPlain(QChar c)
{
    return c != QLatin1Char('\\') && c.category() != QChar::Other_Control;
}

} // namespace

SqlSession::SqlSession(const QSqlDatabase &db)
    : m_db(db)
{
}

bool SqlSession::prepareForCopying()
{
    return run(QLatin1String(kFourByteTexts)) && run(QLatin1String(kUniversalTime))
        && run(QLatin1String(kEveryValue));
}

bool SqlSession::refuseWriting()
{
    return run(QLatin1String(kReadOnly));
}

bool SqlSession::run(const QString &sql)
{
    return forEachRow(sql, [](const QStringList &) { return true; });
}

QVector<QStringList> SqlSession::rows(const QString &sql)
{
    QVector<QStringList> rows;
    forEachRow(sql, [&rows](const QStringList &row) {
        rows += row;
        return true;
    });
    return m_failed ? QVector<QStringList>() : rows;
}

QStringList SqlSession::column(const QString &sql)
{
    QStringList values;
    const QVector<QStringList> all = rows(sql);
    for (const QStringList &row : all)
        values += row.value(0);
    return values;
}

bool SqlSession::forEachRow(const QString &sql,
                            const std::function<bool(const QStringList &)> &take)
{
    if (m_failed)
        return false;
    QSqlQuery query(m_db);
    query.setForwardOnly(true);
    if (!query.exec(sql))
        return fail(query.lastError());
    const int count = query.record().count();
    while (query.next()) {
        if (!take(texts(query, count)))
            return false;
    }
    while (query.nextResult()) { }
    return !query.lastError().isValid() || fail(query.lastError());
}

QString SqlSession::failure() const
{
    return Text::tr("The database cannot be used: %1").arg(m_error);
}

bool SqlSession::isLost() const
{
    // The client library's numbers, CR_MIN_ERROR to CR_MAX_ERROR.
    return m_errorNumber >= 2000 && m_errorNumber < 3000;
}

QString SqlSession::name(const QString &identifier)
{
    QString doubled = identifier;
    doubled.replace(QLatin1Char('`'), QLatin1String("``"));
    return QLatin1Char('`') + doubled + QLatin1Char('`');
}

QString SqlSession::literal(const QString &text)
{
    if (!std::all_of(text.cbegin(), text.cend(), isPlain))
        return QStringLiteral("_utf8mb4 X'%1'").arg(QString::fromLatin1(text.toUtf8().toHex()));
    QString doubled = text;
    doubled.replace(QLatin1Char('\''), QLatin1String("''"));
    return QLatin1Char('\'') + doubled + QLatin1Char('\'');
}

bool SqlSession::fail(const QSqlError &error)
{
    m_failed = true;
    m_error = error.databaseText().isEmpty() ? error.text() : error.databaseText();
    m_errorNumber = error.nativeErrorCode().toInt();
    return false;
}
