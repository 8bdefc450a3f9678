#include "mirovahrctl/site/dbschema.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>

namespace {

constexpr char kSelectColumns[] =
    "SELECT TABLE_NAME, COLUMN_NAME, DATA_TYPE, COLUMN_TYPE, CHARACTER_MAXIMUM_LENGTH,"
    " NUMERIC_PRECISION - NUMERIC_SCALE, CHARACTER_SET_NAME, IS_NULLABLE, COLUMN_DEFAULT, EXTRA,"
    " PRIVILEGES FROM information_schema.COLUMNS WHERE TABLE_SCHEMA = DATABASE()"
    " ORDER BY TABLE_NAME, ORDINAL_POSITION";

constexpr char kSelectKeys[] =
    "SELECT TABLE_NAME, INDEX_NAME, COLUMN_NAME FROM information_schema.STATISTICS"
    " WHERE TABLE_SCHEMA = DATABASE() AND NON_UNIQUE = 0"
    " ORDER BY TABLE_NAME, INDEX_NAME, SEQ_IN_INDEX";

constexpr char kSelectTransactional[] =
    "SELECT TABLE_NAME FROM information_schema.TABLES t JOIN information_schema.ENGINES e"
    " ON e.ENGINE = t.ENGINE WHERE TABLE_SCHEMA = DATABASE() AND e.TRANSACTIONS = 'YES'";

/// MariaDB shows a default as in the table's definition, other servers as the bare text.
QString bareDefault(const QString &text)
{
    const bool quoted =
        text.size() >= 2 && text.startsWith(QLatin1Char('\'')) && text.endsWith(QLatin1Char('\''));
    return quoted ? text.mid(1, text.size() - 2) : text;
}

/// Whether a default generates a unique value for each row. NEXTVAL does not count: a sequence may
/// restart, and the account needs a privilege for it.
bool isUniqueDefault(const QString &text)
{
    static const QStringList functions{QStringLiteral("uuid()"), QStringLiteral("uuid_short()"),
                                       QStringLiteral("sys_guid()")};
    return functions.contains(text, Qt::CaseInsensitive);
}

DbColumn readColumn(const QSqlQuery &query)
{
    DbColumn column;
    column.name = query.value(1).toString();
    column.type = query.value(2).toString().toLower();
    column.fullType = query.value(3).toString().toLower();
    column.length = query.value(4).toLongLong();
    column.wholeDigits = query.value(5).toInt();
    column.charset = query.value(6).toString();
    column.nullable = query.value(7).toString() == QLatin1String("YES");
    column.defaultValue = bareDefault(query.value(8).toString());
    const QString extra = query.value(9).toString().toLower();
    column.automaticNumber = extra.contains(QLatin1String("auto_increment"));
    column.uniquelyFilled = column.automaticNumber || isUniqueDefault(query.value(8).toString());
    column.filledByServer = !query.value(8).isNull() || column.automaticNumber
        || extra.contains(QLatin1String("generated"));
    column.rights = query.value(10).toString().toLower().split(QLatin1Char(','));
    return column;
}

} // namespace

bool DbSchema::load(const QSqlDatabase &db)
{
    return select(db, kSelectColumns, &DbSchema::addColumn)
        && select(db, kSelectKeys, &DbSchema::addKeyColumn)
        && select(db, kSelectTransactional, &DbSchema::addTransactional);
}

const DbColumn *DbSchema::column(const QString &table, const QString &column) const
{
    const auto columns = m_columns.constFind(table);
    if (columns == m_columns.cend())
        return nullptr;
    const auto found =
        std::find_if(columns->cbegin(), columns->cend(), [&column](const DbColumn &candidate) {
            return candidate.name.compare(column, Qt::CaseInsensitive) == 0;
        });
    return found == columns->cend() ? nullptr : &*found;
}

bool DbSchema::select(const QSqlDatabase &db, const char *sql,
                      void (DbSchema::*addRow)(const QSqlQuery &))
{
    QSqlQuery query(db);
    const bool done = query.exec(QLatin1String(sql));
    while (query.next())
        (this->*addRow)(query);
    m_error = query.lastError().text();
    return done;
}

void DbSchema::addColumn(const QSqlQuery &row)
{
    m_columns[row.value(0).toString()].append(readColumn(row));
}

void DbSchema::addKeyColumn(const QSqlQuery &row)
{
    QVector<DbKey> &keys = m_keys[row.value(0).toString()];
    const QString name = row.value(1).toString();
    if (keys.isEmpty() || keys.constLast().name != name)
        keys.append({name, {}});
    keys.last().columns += row.value(2).toString().toLower();
}

void DbSchema::addTransactional(const QSqlQuery &row)
{
    m_transactional += row.value(0).toString();
}
