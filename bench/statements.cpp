#include "bench/statements.h"

#include "bench/site.h"

#include <QDataStream>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

#include <memory>

namespace {

plain_text plainText(const QByteArray &text)
{
    return {text.constData(), static_cast<unsigned long>(text.size())};
}

/// The text without its numbers: statements of one shape have the same columns.
QString shapeOf(const QByteArray &text)
{
    static const QRegularExpression number(QStringLiteral("\\d+"));
    return QString::fromUtf8(text).remove(number);
}

bool isSentByTheDriver(const QByteArray &text)
{
    return text.startsWith("SET NAMES ") || text == "SELECT ? + ?";
}

} // namespace

QDataStream &operator<<(QDataStream &stream, const Statements::Step &step)
{
    return stream << int(step.kind) << step.text << step.values << step.columns << step.ofTheDriver;
}

QDataStream &operator>>(QDataStream &stream, Statements::Step &step)
{
    int kind = 0;
    stream >> kind >> step.text >> step.values >> step.columns >> step.ofTheDriver;
    step.kind = static_cast<plain_kind>(kind);
    return stream;
}

Statements Statements::recorded(const Site &site, const std::function<void()> &tick)
{
    site.administer(QStringLiteral("SET GLOBAL log_output = 'TABLE'"));
    site.administer(QStringLiteral("TRUNCATE TABLE mysql.general_log"));
    site.administer(QStringLiteral("SET GLOBAL general_log = 1"));
    tick();
    site.administer(QStringLiteral("SET GLOBAL general_log = 0"));

    Statements statements;
    QSqlQuery log(site.administrator());
    log.setForwardOnly(true);
    log.exec(QStringLiteral("SELECT command_type, argument FROM mysql.general_log WHERE user_host "
                            "LIKE '%1[%' OR user_host LIKE '[%1]%'")
                 .arg(site.host().userName()));
    while (log.next())
        statements.add(log.value(0).toString(), log.value(1).toString().toUtf8());
    site.administer(QStringLiteral("TRUNCATE TABLE mysql.general_log"));
    statements.countColumns(site);
    statements.arrange();
    return statements;
}

void Statements::add(const QString &command, const QByteArray &text)
{
    static const QHash<QString, plain_kind> kinds = {
        {QStringLiteral("Query"), PLAIN_QUERY},      {QStringLiteral("Prepare"), PLAIN_PREPARE},
        {QStringLiteral("Execute"), PLAIN_EXECUTE},  {QStringLiteral("Reset stmt"), PLAIN_RESET},
        {QStringLiteral("Close stmt"), PLAIN_CLOSE},
    };
    if (!kinds.contains(command))
        return;
    Step step;
    step.kind = kinds.value(command);
    step.text = text;
    step.ofTheDriver = isSentByTheDriver(text);
    if (step.kind == PLAIN_EXECUTE || step.kind == PLAIN_RESET || step.kind == PLAIN_CLOSE)
        step.ofTheDriver = m_steps.constLast().ofTheDriver;
    if (step.kind == PLAIN_EXECUTE) {
        int prepared = m_steps.size() - 1;
        while (m_steps.at(prepared).kind != PLAIN_PREPARE)
            --prepared;
        step.values = boundValues(m_steps.at(prepared).text, text);
    }
    m_steps.append(step);
}

QVector<QByteArray> Statements::boundValues(const QByteArray &prepared, const QByteArray &executed)
{
    QVector<QByteArray> values;
    int at = 0;
    const QList<QByteArray> fragments = prepared.split('?');
    for (int i = 0; i + 1 < fragments.size(); ++i) {
        at += fragments.at(i).size();
        const QByteArray &next = fragments.at(i + 1);
        const int end = executed.indexOf(next, at);
        QByteArray value = executed.mid(at, end - at);
        if (value.startsWith('\''))
            value = value.mid(1, value.size() - 2);
        values.append(value);
        at = end;
    }
    return values;
}

void Statements::countColumns(const Site &site)
{
    QHash<QString, int> columnsOf;
    for (Step &step : m_steps) {
        if (step.kind != PLAIN_QUERY || !step.text.startsWith("SELECT"))
            continue;
        const QString shape = shapeOf(step.text);
        if (!columnsOf.contains(shape)) {
            QSqlQuery query(site.administrator());
            if (!query.exec(QString::fromUtf8(step.text)))
                giveUp(query.lastError().text());
            columnsOf.insert(shape, query.record().count());
        }
        step.columns = columnsOf.value(shape);
    }
}

void Statements::arrange()
{
    for (const Step &step : qAsConst(m_steps)) {
        QVector<plain_text> values;
        QVector<QString> texts;
        for (const QByteArray &value : step.values) {
            values.append(plainText(value));
            texts.append(QString::fromUtf8(value));
        }
        m_plainValues.append(values);
        m_values.append(texts);
        m_texts.append(QString::fromUtf8(step.text));
    }
    for (int i = 0; i < m_steps.size(); ++i) {
        const QVector<plain_text> &values = m_plainValues.at(i);
        m_plainSteps.append({m_steps.at(i).kind, plainText(m_steps.at(i).text), values.constData(),
                             static_cast<unsigned>(values.size())});
    }
}

void Statements::save(const QString &path) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        giveUp(file.errorString());
    QDataStream stream(&file);
    stream << m_steps;
}

Statements Statements::loaded(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        giveUp(file.errorString());
    QDataStream stream(&file);
    Statements statements;
    stream >> statements.m_steps;
    statements.arrange();
    return statements;
}

void Statements::sendByQt(QSqlDatabase db) const
{
    if (!db.open())
        giveUp(db.lastError().text());
    std::unique_ptr<QSqlQuery> prepared;
    for (int i = 0; i < m_steps.size(); ++i) {
        const Step &step = m_steps.at(i);
        if (step.ofTheDriver)
            continue;
        if (step.kind == PLAIN_QUERY) {
            sendQueryByQt(db, step.columns, m_texts.at(i));
        } else if (step.kind == PLAIN_PREPARE) {
            prepared = std::make_unique<QSqlQuery>(db);
            prepared->prepare(m_texts.at(i));
        } else if (step.kind == PLAIN_EXECUTE) {
            for (int n = 0; n < m_values.at(i).size(); ++n)
                prepared->bindValue(n, m_values.at(i).at(n));
            if (!prepared->exec())
                giveUp(prepared->lastError().text());
        } else if (step.kind == PLAIN_CLOSE) {
            prepared.reset();
        }
    }
    prepared.reset();
    db.close();
}

void Statements::sendQueryByQt(const QSqlDatabase &db, int columns, const QString &text)
{
    QSqlQuery query(db);
    if (!query.exec(text))
        giveUp(query.lastError().text() + QLatin1String(" - ") + text);
    while (query.next()) {
        for (int column = 0; column < columns; ++column)
            query.value(column);
    }
    // A routine's results are all read, or the connection takes no other statement.
    if (text.startsWith(QLatin1String("CALL ")))
        while (query.nextResult()) { }
}

void Statements::sendByPlainClient(const plain_account &account) const
{
    if (plain_tick(&account, m_plainSteps.constData(), static_cast<size_t>(m_plainSteps.size()))
        < 0)
        giveUp(QStringLiteral("The bare client could not send the statements."));
}
