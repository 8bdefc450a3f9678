#include "mirovahrctl/preview/previewschemareader.h"

#include "cli/text.h"
#include "db/tepdbcontract.h"
#include "mirovahrctl/site/sqlsession.h"

#include <QRegularExpression>

namespace {

// Settings that change results; mariadbd has an option of the same name for each.
constexpr char kServerVariables[] =
    "SHOW SESSION VARIABLES WHERE Variable_name IN ('sql_mode', 'old_mode', "
    "'auto_increment_increment', 'auto_increment_offset', 'innodb_autoinc_lock_mode', "
    "'explicit_defaults_for_timestamp', 'lower_case_table_names', 'group_concat_max_len', "
    "'div_precision_increment')";

constexpr char kServer[] = "SELECT VERSION(), @@SESSION.time_zone, UNIX_TIMESTAMP()";

constexpr char kDatabase[] = "SELECT DATABASE(), @@character_set_database, @@collation_database";

constexpr char kTables[] =
    "SELECT t.TABLE_NAME, t.TABLE_TYPE, e.TRANSACTIONS, t.TABLE_ROWS "
    "FROM information_schema.TABLES t LEFT JOIN information_schema.ENGINES e USING(ENGINE) "
    "WHERE t.TABLE_SCHEMA = DATABASE()";

constexpr char kRoutines[] = "SELECT ROUTINE_NAME, ROUTINE_TYPE FROM information_schema.ROUTINES "
                             "WHERE ROUTINE_SCHEMA = DATABASE()";

constexpr char kTriggers[] =
    "SELECT TRIGGER_NAME, EVENT_OBJECT_TABLE FROM information_schema.TRIGGERS WHERE "
    "EVENT_OBJECT_SCHEMA = DATABASE() ORDER BY EVENT_OBJECT_TABLE, ACTION_TIMING, "
    "EVENT_MANIPULATION, ACTION_ORDER";

// On the whole server or database. An account sees only its own rights, an administrator all.
constexpr char kTriggerRight[] =
    "SELECT COUNT(*) FROM (SELECT GRANTEE FROM information_schema.USER_PRIVILEGES WHERE "
    "PRIVILEGE_TYPE = 'TRIGGER' UNION SELECT GRANTEE FROM information_schema.SCHEMA_PRIVILEGES "
    "WHERE PRIVILEGE_TYPE = 'TRIGGER' AND DATABASE() LIKE TABLE_SCHEMA) g WHERE GRANTEE = "
    "CONCAT('''', SUBSTRING_INDEX(CURRENT_USER(), '@', 1), '''@''', "
    "SUBSTRING_INDEX(CURRENT_USER(), '@', -1), '''')";

constexpr char kTriggerRightOnTable[] =
    "SELECT COUNT(*) FROM information_schema.TABLE_PRIVILEGES WHERE PRIVILEGE_TYPE = 'TRIGGER' AND "
    "TABLE_SCHEMA = DATABASE() AND TABLE_NAME = %1";

const QLatin1String kBaseTable("BASE TABLE");

QString withoutDefiner(const QString &definition)
{
    static const QRegularExpression definer(
        QStringLiteral("^\\s*CREATE\\s+DEFINER\\s*=\\s*([`\"])(?:(?!\\1).|\\1\\1)*\\1"
                       "(?:@([`\"])(?:(?!\\2).|\\2\\2)*\\2)?"),
        QRegularExpression::DotMatchesEverythingOption);
    QString text = definition;
    return text.replace(definer, QStringLiteral("CREATE"));
}

bool isComputed(const QString &extra)
{
    return extra.contains(QLatin1String("GENERATED"), Qt::CaseInsensitive)
        || extra.contains(QLatin1String("VIRTUAL"), Qt::CaseInsensitive)
        || extra.contains(QLatin1String("PERSISTENT"), Qt::CaseInsensitive);
}

/// Whether a column only tells apart rows that may repeat: every server numbers them by itself, and
/// the plugin knows them without it.
bool onlyNumbersRows(const QString &table, const QString &extra)
{
    return extra.contains(QLatin1String("auto_increment"), Qt::CaseInsensitive)
        && TepDbContract::rowsMayRepeat(table);
}

/// All words of a text that can be names, in lower case.
QSet<QString> words(const QString &text)
{
    static const QRegularExpression separator(QStringLiteral("[^\\w$]+"),
                                              QRegularExpression::UseUnicodePropertiesOption);
    const QStringList list = text.toLower().split(separator, Qt::SkipEmptyParts);
    return {list.cbegin(), list.cend()};
}

/// Why a trigger or routine cannot be read, with a place for its name.
QString unreadableProgram(const QString &kind)
{
    if (kind == QLatin1String("TRIGGER")) {
        return Text::tr("This account is not allowed to read the text of the trigger %1: it lacks "
                        "TRIGGER on its table");
    }
    return kind == QLatin1String("FUNCTION")
        ? Text::tr("This account is not allowed to read the text of the function %1: it lacks "
                   "SELECT on mysql.proc")
        : Text::tr("This account is not allowed to read the text of the procedure %1: it lacks "
                   "SELECT on mysql.proc");
}

bool names(const QSet<QString> &words, const QString &text, const QString &name)
{
    static const QRegularExpression plain(QStringLiteral("^[\\w$]+$"),
                                          QRegularExpression::UseUnicodePropertiesOption);
    return plain.match(name).hasMatch() ? words.contains(name)
                                        : text.contains(name, Qt::CaseInsensitive);
}

} // namespace

PreviewSchemaReader::PreviewSchemaReader(SqlSession &site)
    : m_site(site)
{
}

std::optional<PreviewRefusal> PreviewSchemaReader::read()
{
    readServer();
    // Some SQL modes change how definitions are shown.
    m_site.prepareForCopying();
    readDatabase();
    listTables();
    listRoutines();
    listTriggers();
    readTriggerRight();
    requirePlugin();
    while (!m_refusal && (!m_pendingTables.isEmpty() || !m_pendingRoutines.isEmpty()))
        takeNext();
    if (m_site.failed()) {
        refuse(ExitStatus::NoDatabase,
               Text::tr("The site's database cannot be read: %1").arg(m_site.errorString()));
    }
    return m_refusal;
}

void PreviewSchemaReader::readServer()
{
    const QVector<QStringList> variables = m_site.rows(QLatin1String(kServerVariables));
    for (const QStringList &row : variables) {
        QString option = row.at(0);
        option.replace(QLatin1Char('_'), QLatin1Char('-'));
        m_schema.serverOptions += QStringLiteral("--loose-%1=%2").arg(option, row.at(1));
    }
    const QStringList server = m_site.row(QLatin1String(kServer));
    m_schema.serverVersion = server.value(0);
    m_schema.timeZone = server.value(1);
    m_schema.copiedAt = server.value(2).toLongLong();
}

void PreviewSchemaReader::readDatabase()
{
    const QStringList row = m_site.row(QLatin1String(kDatabase));
    m_schema.name = row.value(0);
    m_schema.charset = row.value(1);
    m_schema.collation = row.value(2);
}

void PreviewSchemaReader::readTriggerRight()
{
    m_seesTriggers = m_site.value(QLatin1String(kTriggerRight)).toInt() > 0;
}

void PreviewSchemaReader::listTables()
{
    const QVector<QStringList> rows = m_site.rows(QLatin1String(kTables));
    for (const QStringList &row : rows) {
        m_tables.insert(
            row.at(0).toLower(),
            {row.at(0), row.at(1), row.at(2) != QLatin1String("NO"), row.at(3).toLongLong()});
    }
}

void PreviewSchemaReader::listRoutines()
{
    const QVector<QStringList> rows = m_site.rows(QLatin1String(kRoutines));
    for (const QStringList &row : rows)
        m_routines.insert(row.at(0).toLower(), {row.at(0), row.at(1)});
}

void PreviewSchemaReader::listTriggers()
{
    const QVector<QStringList> rows = m_site.rows(QLatin1String(kTriggers));
    for (const QStringList &row : rows)
        m_triggers[row.at(1).toLower()] += row.at(0);
}

void PreviewSchemaReader::requirePlugin()
{
    for (const TepDbContract::Table &table : TepDbContract::kTables) {
        const QString name = QString::fromLatin1(table.name);
        if (TepDbContract::isUsed(name))
            require(m_tables, name,
                    Text::tr("There is no table %1, or this account is not allowed to see it: it "
                             "needs SELECT on %1. Run check-db for details")
                        .arg(name));
    }
    for (const TepDbContract::Routine &routine : TepDbContract::kRoutines) {
        const QString name = QString::fromLatin1(routine.name);
        require(m_routines, name,
                Text::tr("There is no routine %1, or this account is not allowed to see it: it "
                         "needs SELECT on mysql.proc. Run check-db for details")
                    .arg(name));
    }
}

void PreviewSchemaReader::require(const QHash<QString, Entry> &known, const QString &name,
                                  const QString &refusal)
{
    const QString key = name.toLower();
    if (!known.contains(key)) {
        refuse(ExitStatus::ContractBroken, refusal);
        return;
    }
    const QString mark = (&known == &m_tables ? QStringLiteral("t ") : QStringLiteral("r ")) + key;
    if (m_required.contains(mark))
        return;
    m_required += mark;
    (&known == &m_tables ? m_pendingTables : m_pendingRoutines) += key;
}

void PreviewSchemaReader::takeNext()
{
    if (!m_pendingTables.isEmpty())
        takeTable(m_pendingTables.takeFirst());
    else
        takeRoutine(m_pendingRoutines.takeFirst());
}

void PreviewSchemaReader::takeTable(const QString &key)
{
    const Entry entry = m_tables.value(key);
    if (entry.kind != kBaseTable) {
        refuse(ExitStatus::ContractBroken,
               Text::tr("%1 is not a table but a %2, which cannot be copied")
                   .arg(entry.name, entry.kind.toLower()));
        return;
    }
    PreviewTable table = readTable(entry);
    if (m_site.failed()) {
        refuseRead(Text::tr("This account is not allowed to read the table %1: it lacks SELECT on "
                            "the whole table")
                       .arg(entry.name));
        return;
    }
    if (!entry.transactional)
        m_schema.tablesOutsideSnapshot += entry.name;
    requireReferences(table);
    m_schema.tables += table;
    noteHiddenTriggers(entry.name);
    takeTriggers(key);
}

PreviewTable PreviewSchemaReader::readTable(const Entry &entry)
{
    PreviewTable table;
    table.name = entry.name;
    table.rowEstimate = entry.rowEstimate;
    table.definition =
        m_site.row(QStringLiteral("SHOW CREATE TABLE ") + SqlSession::name(entry.name)).value(1);
    readColumns(table);
    return table;
}

void PreviewSchemaReader::readColumns(PreviewTable &table)
{
    const QVector<QStringList> columns =
        m_site.rows(QStringLiteral("SHOW FULL COLUMNS FROM ") + SqlSession::name(table.name));
    for (const QStringList &column : columns) {
        const QString extra = column.value(6);
        if (!isComputed(extra) && !onlyNumbersRows(table.name, extra))
            table.columns += {column.at(0), PreviewColumn::kindOf(column.at(1))};
    }
}

void PreviewSchemaReader::requireReferences(PreviewTable &table)
{
    static const QRegularExpression reference(
        QStringLiteral("^\\s*CONSTRAINT .* FOREIGN KEY .* REFERENCES (?:`([^`]+)`\\.)?`([^`]+)`"),
        QRegularExpression::MultilineOption);
    auto matches = reference.globalMatch(table.definition);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (!match.captured(1).isEmpty() && match.captured(1) != m_schema.name) {
            refuse(ExitStatus::ContractBroken,
                   Text::tr("The table %1 refers to the database %2, which is not copied")
                       .arg(table.name, match.captured(1)));
            return;
        }
        table.parents += match.captured(2);
        require(m_tables, match.captured(2),
                Text::tr("There is no table that %1 refers to, %2, or this account is not allowed "
                         "to see it: it needs SELECT on %2. Run check-db for details")
                    .arg(table.name, match.captured(2)));
    }
}

void PreviewSchemaReader::noteHiddenTriggers(const QString &table)
{
    if (m_seesTriggers || !TepDbContract::isWritten(table) || m_triggers.contains(table.toLower()))
        return;
    const QString right =
        m_site.value(QString(QLatin1String(kTriggerRightOnTable)).arg(SqlSession::literal(table)));
    if (right.toInt() == 0)
        m_schema.tablesWithHiddenTriggers += table;
}

void PreviewSchemaReader::takeTriggers(const QString &table)
{
    const QStringList triggers = m_triggers.value(table);
    for (const QString &name : triggers) {
        auto trigger = readProgram(QStringLiteral("TRIGGER"), name);
        if (!trigger)
            return;
        requireNamed(*trigger);
        m_schema.triggers += *trigger;
    }
}

void PreviewSchemaReader::takeRoutine(const QString &key)
{
    const Entry entry = m_routines.value(key);
    auto routine = readProgram(entry.kind, entry.name);
    if (!routine)
        return;
    requireNamed(*routine);
    m_schema.routines += *routine;
}

std::optional<PreviewProgram> PreviewSchemaReader::readProgram(const QString &kind,
                                                               const QString &name)
{
    const QStringList row =
        m_site.row(QStringLiteral("SHOW CREATE %1 %2").arg(kind, SqlSession::name(name)));
    if (m_site.failed() || row.value(2).isEmpty()) {
        refuseRead(unreadableProgram(kind).arg(name));
        return std::nullopt;
    }
    return PreviewProgram{name, withoutDefiner(row.at(2)), row.at(1), row.value(4), {}};
}

void PreviewSchemaReader::requireNamed(PreviewProgram &program)
{
    const QString &text = program.definition;
    const QSet<QString> all = words(text);
    program.runsTexts = all.contains(QStringLiteral("execute"));
    for (auto it = m_tables.cbegin(); it != m_tables.cend(); ++it) {
        if (!names(all, text, it.key()))
            continue;
        program.tables += it->name;
        if (it->kind == kBaseTable)
            require(m_tables, it.key(), QString());
        else if (!m_schema.namedViews.contains(it->name))
            m_schema.namedViews += it->name;
    }
    for (auto it = m_routines.cbegin(); it != m_routines.cend(); ++it) {
        if (names(all, text, it.key()))
            require(m_routines, it.key(), QString());
    }
}

void PreviewSchemaReader::refuse(ExitStatus status, const QString &sentence)
{
    if (!m_refusal)
        m_refusal = PreviewRefusal{status, sentence};
}

void PreviewSchemaReader::refuseRead(const QString &sentence)
{
    const QString reason =
        m_site.failed() ? QStringLiteral(" (%1)").arg(m_site.errorString()) : QString();
    refuse(ExitStatus::NoDatabase, sentence + reason);
}
