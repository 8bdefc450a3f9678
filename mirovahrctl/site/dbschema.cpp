#include "mirovahrctl/site/dbschema.h"

#include "db/tepdbcontract.h"
#include "mirovahrctl/site/sqlsession.h"

#include <algorithm>

namespace {

constexpr char kSelectColumns[] =
    "SELECT TABLE_NAME, COLUMN_NAME, DATA_TYPE, COLUMN_TYPE, CHARACTER_MAXIMUM_LENGTH,"
    " NUMERIC_PRECISION - NUMERIC_SCALE, CHARACTER_SET_NAME, IS_NULLABLE, COLUMN_DEFAULT, EXTRA,"
    " PRIVILEGES FROM information_schema.COLUMNS WHERE TABLE_SCHEMA = DATABASE()"
    " ORDER BY TABLE_NAME, ORDINAL_POSITION";

constexpr char kSelectKeys[] =
    "SELECT TABLE_NAME, INDEX_NAME, COLUMN_NAME, NON_UNIQUE = 0, INDEX_TYPE <> 'FULLTEXT' AND %1,"
    " SUB_PART IS NULL FROM information_schema.STATISTICS WHERE TABLE_SCHEMA = DATABASE()"
    " ORDER BY TABLE_NAME, INDEX_NAME, SEQ_IN_INDEX";
/// Only MariaDB has it, from 10.6 on.
constexpr char kNotIgnored[] = "IGNORED = 'NO'";

constexpr char kSelectEngines[] =
    "SELECT TABLE_NAME, e.ENGINE, e.TRANSACTIONS = 'YES' FROM information_schema.TABLES t"
    " JOIN information_schema.ENGINES e ON e.ENGINE = t.ENGINE WHERE TABLE_SCHEMA = DATABASE()";

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

DbColumn readColumn(const QStringList &row)
{
    DbColumn column;
    column.name = row.at(1);
    column.type = row.at(2).toLower();
    column.fullType = row.at(3).toLower();
    column.length = row.at(4).toLongLong();
    column.wholeDigits = row.at(5).toInt();
    column.charset = row.at(6);
    column.nullable = row.at(7) == QLatin1String("YES");
    column.defaultValue = bareDefault(row.at(8));
    const QString extra = row.at(9).toLower();
    column.automaticNumber = extra.contains(QLatin1String("auto_increment"));
    column.uniquelyFilled = column.automaticNumber || isUniqueDefault(row.at(8));
    column.filledByServer =
        !row.at(8).isNull() || column.automaticNumber || extra.contains(QLatin1String("generated"));
    column.rights = row.at(10).toLower().split(QLatin1Char(','));
    return column;
}

} // namespace

bool DbSchema::load(SqlSession &site)
{
    const QVector<QStringList> columns = site.rows(QLatin1String(kSelectColumns));
    for (const QStringList &row : columns)
        m_columns[row.at(0)].append(readColumn(row));
    loadKeys(site);
    loadEngines(site);
    return !site.failed();
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

const DbColumn *DbSchema::column(const TepDbContract::Column &column) const
{
    return this->column(QString::fromLatin1(column.table), QString::fromLatin1(column.name));
}

QVector<DbKey> DbSchema::uniqueKeys(const QString &table) const
{
    QVector<DbKey> keys = m_keys.value(table);
    const auto end =
        std::remove_if(keys.begin(), keys.end(), [](const DbKey &key) { return !key.unique; });
    keys.erase(end, keys.end());
    return keys;
}

void DbSchema::loadKeys(SqlSession &site)
{
    const QString sql = QString::fromLatin1(kSelectKeys);
    SqlSession attempt(site.database());
    QVector<QStringList> keys = attempt.rows(sql.arg(QLatin1String(kNotIgnored)));
    if (attempt.failed())
        keys = site.rows(sql.arg(QLatin1String("TRUE")));
    for (const QStringList &row : qAsConst(keys))
        addKeyColumn(row);
}

void DbSchema::loadEngines(SqlSession &site)
{
    const QVector<QStringList> tables = site.rows(QLatin1String(kSelectEngines));
    for (const QStringList &row : tables) {
        m_engines.insert(row.at(0), row.at(1));
        if (row.at(2) == QLatin1String("1"))
            m_transactional += row.at(0);
    }
}

void DbSchema::addKeyColumn(const QStringList &row)
{
    QVector<DbKey> &keys = m_keys[row.at(0)];
    if (keys.isEmpty() || keys.constLast().name != row.at(1))
        keys.append({row.at(1),
                     row.at(3) == QLatin1String("1"),
                     row.at(4) == QLatin1String("1"),
                     true,
                     {}});
    keys.last().wholeColumns &= row.at(5) == QLatin1String("1");
    keys.last().columns += row.at(2).toLower();
}
