#include "mirovahrctl/pluginside/pluginstatements.h"
#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/workertest.h"

#include <QRegularExpression>

using namespace SampleExport;

namespace {

/// What a synchronisation reads once, whoever is in the export.
QStringList readOnce()
{
    return {"SELECT p.pid, ", "SELECT bid, number FROM branches ", "SELECT fid FROM funds "};
}

/// What finds no rows.
QStringList withoutQuery()
{
    return {"INSERT INTO ",
            "PREPARE: INSERT INTO vars ",
            "EXECUTE: INSERT INTO vars ",
            "CALL updateTermsSync(",
            "BEGIN WORK",
            "COMMIT"};
}

bool startsWithAny(const QString &text, const QStringList &beginnings)
{
    return std::any_of(beginnings.cbegin(), beginnings.cend(),
                       [&text](const QString &begin) { return text.startsWith(begin); });
}

/// The query without its values.
QString shapeOf(QString query)
{
    query.replace(QRegularExpression("'[^']*'"), "'?'");
    query.replace(QRegularExpression("\\b[0-9]+\\b(, ?[0-9]+\\b)*"), "?");
    return query.simplified();
}

QString lines(const QSet<QString> &texts)
{
    return texts.values().join('\n');
}

} // namespace

/// The statements that check-db explains are those that the plugin sends.
class TestCheckDbSynchronisation : public WorkerTest {
    Q_OBJECT
private Q_SLOTS:
    void theExplainedStatementsAreThoseOfASynchronisation();
};

void TestCheckDbSynchronisation::theExplainedStatementsAreThoseOfASynchronisation()
{
    m_db.run("UPDATE people SET lastCalc = 2000000000");
    const Trace trace = synchronise({peter().with(&ExportRow::telefon, "0905999999"),
                                     zuzana()
                                         .with(&ExportRow::stredisko, 120)
                                         .with(&ExportRow::kalendarPlatnostOd, "2025-03-01"),
                                     jana()
                                         .with(&ExportRow::dovolenaZustatek, "15.25")
                                         .with(&ExportRow::nadrizenyOsobniCislo, 1002),
                                     newcomer(newPersonalNumber())});

    QSet<QString> sent;
    for (const QString &statement : trace.statements) {
        const QString query = queryOf(statement);
        if (query.isEmpty())
            QVERIFY2(startsWithAny(statement, withoutQuery()), qPrintable(statement));
        else if (!startsWithAny(statement, readOnce()))
            sent += shapeOf(query);
    }
    // The routine of the same name sends it, which the server does not log.
    sent += "SELECT gid FROM groups_plan WHERE uid = ? AND since <= ? ORDER BY since DESC LIMIT ?";

    QSet<QString> explained;
    const QVector<PluginStatement> statements = pluginStatements({4, 12341, 1, 3, 2});
    for (const PluginStatement &statement : statements)
        explained += shapeOf(statement.query);
    QCOMPARE(lines(sent - explained), QString());
    QCOMPARE(lines(explained - sent), QString());
}

QTEST_GUILESS_MAIN(TestCheckDbSynchronisation)
#include "tst_checkdbsynchronisation.moc"
