#include "mirovahrctl/export/sqltexts.h"
#include "tests/mirovahrctl/gate/gatesite.h"
#include "tests/worker/support/sampleexport.h"
#include "tests/worker/support/workertest.h"
#include "worker/exportline.h"

#include <QRandomGenerator>
#include <QScopeGuard>
#include <QTest>

Q_DECLARE_METATYPE(Backslash)

namespace {

constexpr int kRandomPeople = 150;
constexpr int kFirstNumber = 5001;

/// Texts that would be statements, or hold up the synchronisation, if they left their string.
const QVector<QByteArray> kHostile{
    "O'Brien",
    "100%1",
    "x'; BEGIN; -- ",
    "x' WHERE pid=10011; BEGIN; -- ",
    "x'; SET autocommit=0; -- ",
    "x'; XA START 'a'; -- ",
    "x' + SLEEP(600) + '",
    "x', (SELECT BENCHMARK(1000000000, MD5(1)))) -- ",
    "x' /* ",
    " */ , '",
    "# x",
    "\\",
    ", phone=0x393939 WHERE pid=12341 -- ",
    "\\'; UPDATE people SET phone='lost'; -- ",
    "%1%2%3%4%5%6%7%8%9%10%11%12",
    "%L1' OR '%16",
    "'' ''",
    "'",
};

/// What a random text consists of.
const QVector<QByteArray> kPieces{"'",
                                  "''",
                                  "\\",
                                  "%",
                                  "%1",
                                  "%12",
                                  "%L3",
                                  "L",
                                  "7",
                                  "\"",
                                  "`",
                                  ";",
                                  "-- ",
                                  "#",
                                  "/*",
                                  "*/",
                                  " ",
                                  "' '",
                                  "\xFF",
                                  "\xC0\xA7",
                                  "\xE2\x82",
                                  "\xC5",
                                  "\xED\xA0\x80",
                                  "\x01",
                                  "\xEF\xBB\xBF",
                                  "\t",
                                  "\x1A",
                                  "a",
                                  "ž",
                                  "٣",
                                  "€",
                                  "%٣",
                                  "\\0",
                                  "\\'",
                                  "_",
                                  "?"};

QByteArray randomText(QRandomGenerator &random)
{
    if (random.bounded(4) == 0)
        return kHostile.at(random.bounded(kHostile.size())).left(40);
    QByteArray text;
    for (int i = random.bounded(6); i > 0; --i)
        text += kPieces.at(random.bounded(kPieces.size()));
    return text;
}

/// A line of HR's about a new person.
QByteArray lineWith(int personalNumber, const QVector<QByteArray> &texts)
{
    QList<QByteArray> fields = SampleExport::newcomer(personalNumber).text().toUtf8().split('|');
    for (int i = 0; i < texts.size(); ++i)
        fields[ExportLine::Titul + i] = texts.at(i);
    return fields.join('|') + '\n';
}

/// One person for each of the hostile texts, as surname, and others with random texts.
QList<QByteArray> hostilePeople()
{
    QList<QByteArray> lines;
    for (const QByteArray &text : kHostile)
        lines += lineWith(kFirstNumber + lines.size(), {"", "Jana", text, "", "1"});
    QRandomGenerator random(20260402);
    for (int i = 0; i < kRandomPeople; ++i) {
        lines += lineWith(kFirstNumber + lines.size(),
                          {randomText(random), randomText(random), "x" + randomText(random),
                           randomText(random), randomText(random)});
    }
    return lines;
}

/// As many people with harmless texts.
QList<QByteArray> plainPeople(int count)
{
    QList<QByteArray> lines;
    for (int i = 0; i < count; ++i)
        lines += lineWith(kFirstNumber + i, {"Ing.", "Jana", "Malá", "PhD.", "1"});
    return lines;
}

/// Pid and the five texts of a line, as HR meant them.
QStringList rowOf(const QByteArray &line)
{
    const QString text = ExportLine::decode(line.constData());
    const ExportLine::Parts parts = ExportLine::split(text, ExportLine::kSeparator);
    QStringList row{parts.at(0) + parts.at(1)};
    for (int field = ExportLine::Titul; field <= ExportLine::Telefon; ++field)
        row += parts.at(field).toString();
    return row;
}

/// Pid, payroll id and the five texts of a line, as a statement has them.
QStringList valuesOf(const QByteArray &line, Backslash backslash)
{
    const QStringList row = rowOf(line);
    QStringList values{row.constFirst(), row.constFirst().chopped(1) + ".1"};
    for (const QString &text : row.mid(1))
        values += SqlTexts::written(text, backslash);
    return values;
}

/// The texts as the database shows their bytes: the driver drops a byte order mark.
QStringList bytesOf(QStringList row)
{
    for (QString &text : row)
        text = QString::fromLatin1(text.toUtf8().toHex().toUpper());
    return row;
}

/// The statements without what is in them about a person, and without those that look up a uid,
/// which the process remembers.
QStringList kindsOf(const QStringList &statements)
{
    QStringList kinds;
    for (const QString &statement : statements) {
        if (!statement.startsWith("SELECT uid FROM people"))
            kinds += statement.left(18);
    }
    return kinds;
}

} // namespace

/// The gate as the export command of the worker, from HR's file to the database.
class TestGateWorker : public WorkerTest {
    Q_OBJECT

private Q_SLOTS:
    void anAdmittedFileArrives();
    void aRefusedFileDoesNotArrive();
    void afterARefusalTheWorkerGoesOn();
    void aRefusalDoesNotTakeBackWhatWasAdmitted();
    void theSameFileArrivesOnceMore();
    void everyTextArrivesAsHrMeantIt_data();
    void everyTextArrivesAsHrMeantIt();
    void aForcedSynchronisationWritesTheSameTextsAgain();
    void textsLeftAsTheyAreAreStatements();
    void statusReportsTheGate();

private:
    /// A worker that runs the gate of this site before every synchronisation.
    void startWorkerWith(const GateSite &site, const QStringList &more = {});
    QString command(const GateSite &site, const QStringList &more = {}) const;
    /// Delivers and synchronises; the statements.
    QStringList synchroniseWith(const QList<QByteArray> &lines, const QStringList &more);
    /// Pid and the five texts of each, in hexadecimal bytes.
    TableRows textsOfNewPeople();
    /// Counts delivered people who are not in the sample data.
    int people(const QString &condition = "pid BETWEEN 10101 AND 10301");
};

void TestGateWorker::startWorkerWith(const GateSite &site, const QStringList &more)
{
    MHRWorker &worker = startWorker(2);
    worker.setImportFile(site.target());
    worker.setSyncInterval(1);
    worker.setSyncCommand(command(site, more));
    worker.setSyncCommandRunCondition(2);
}

QString TestGateWorker::command(const GateSite &site, const QStringList &more) const
{
    return MIROVAHRCTL " " + site.arguments(more).join(' ');
}

QStringList TestGateWorker::synchroniseWith(const QList<QByteArray> &lines, const QStringList &more)
{
    GateSite site;
    site.admit(lines.join());
    startWorkerWith(site, more);
    m_db.clearStatements();
    tick();
    return m_db.statements();
}

TableRows TestGateWorker::textsOfNewPeople()
{
    return m_db.rows(QString("SELECT HEX(CONCAT(pid)), HEX(title), HEX(name), HEX(surname),"
                             " HEX(title2), HEX(phone) FROM people WHERE pid >= %1 ORDER BY pid")
                         .arg(kFirstNumber * 10));
}

int TestGateWorker::people(const QString &condition)
{
    return m_db.value("SELECT COUNT(*) FROM people WHERE " + condition).toInt();
}

void TestGateWorker::anAdmittedFileArrives()
{
    GateSite site;
    site.admit(GatePeople::some(30));
    site.deliver(GatePeople::some(31));
    startWorkerWith(site);
    const QStringList log = tick();
    QCOMPARE(people(), 21);
    QCOMPARE(people("pid = 10301"), 1);
    QVERIFY(log.contains("D MHRWorker::runCommand(): '" + command(site) + '\''));
    QVERIFY(!log.join('\n').contains("exit with code"));
    // The worker removes what it has read.
    QVERIFY(!site.isPublished());
}

void TestGateWorker::aRefusedFileDoesNotArrive()
{
    GateSite site;
    site.admit(GatePeople::some(30));
    site.deliver(GatePeople::some(3));
    startWorkerWith(site);
    QCOMPARE(tick(),
             QStringList(
                 {"D MHRWorker::checkSync(): #1", "D MHRWorker::dbCheckOpen()",
                  "D MHRWorker: BEGIN synchronization #1 (force: NO)",
                  "D MHRWorker::runCommand(): '" + command(site) + '\'',
                  "W MHRWorker::runCommand() - command: '" + command(site) + "' exit with code: 5",
                  "D MHRWorker::loadAndParseData()",
                  "W MHRWorker::loadAndParseData() - file '" + site.target() + "' NOT found!",
                  "D MHRWorker: END synchronization #1 (waiting records: 0)",
                  "D MHRWorker::dbCheckOpen()"}));
    QCOMPARE(people(), 0);
}

void TestGateWorker::afterARefusalTheWorkerGoesOn()
{
    GateSite site;
    site.admit(GatePeople::some(30));
    site.deliver(QByteArray());
    startWorkerWith(site);
    tick();
    QCOMPARE(people(), 0);
    site.deliver(GatePeople::some(30));
    tick();
    QCOMPARE(people(), 20);
}

void TestGateWorker::aRefusalDoesNotTakeBackWhatWasAdmitted()
{
    GateSite site;
    site.admit(GatePeople::some(30));
    COMPARE_EXIT(site.run(), ExitStatus::Fine);
    site.deliver(QByteArray());
    startWorkerWith(site);
    const QStringList log = tick();
    QVERIFY(log.contains("W MHRWorker::runCommand() - command: '" + command(site)
                         + "' exit with code: 5"));
    QCOMPARE(people(), 20);
}

void TestGateWorker::theSameFileArrivesOnceMore()
{
    GateSite site;
    site.admit(GatePeople::some(3));
    startWorkerWith(site);
    tick();
    m_db.run("UPDATE people SET phone = 'lost' WHERE pid = 10011");
    tick();
    // An unchanged line is left alone, a forced synchronisation writes it.
    QCOMPARE(people("pid = 10011 AND phone = 'lost'"), 1);
    force();
    tick();
    QCOMPARE(people("pid = 10011 AND phone = '555123456'"), 1);
    QCOMPARE(forceFlag(), QString("0"));
}

void TestGateWorker::everyTextArrivesAsHrMeantIt_data()
{
    QTest::addColumn<Backslash>("backslash");
    QTest::addColumn<QStringList>("option");
    QTest::newRow("a backslash escapes") << Backslash::Escapes << QStringList();
    QTest::newRow("a backslash is literal")
        << Backslash::IsLiteral << QStringList{"--texts", "no-backslash-escapes"};
}

void TestGateWorker::everyTextArrivesAsHrMeantIt()
{
    QFETCH(Backslash, backslash);
    QFETCH(QStringList, option);
    const QString mode = m_db.value("SELECT @@GLOBAL.sql_mode").toString();
    const auto restore = qScopeGuard([&] { m_db.run("SET GLOBAL sql_mode = '" + mode + '\''); });
    if (backslash == Backslash::IsLiteral)
        m_db.run("SET GLOBAL sql_mode = '" + mode + ",NO_BACKSLASH_ESCAPES'");
    const QList<QByteArray> lines = hostilePeople();

    const QStringList statements = synchroniseWith(lines, option);

    const TableRows rows = textsOfNewPeople();
    for (int i = 0; i < lines.size(); ++i) {
        QCOMPARE(rows.value(i), bytesOf(rowOf(lines.at(i))));
        const QString values = valuesOf(lines.at(i), backslash).join("', '");
        QCOMPARE(statements.filter("VALUES('" + values + "', ").size(), 1);
    }
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people").toInt(), 8 + lines.size());

    // Otherwise the server was sent what it is sent about people with harmless texts.
    m_db.reset();
    QCOMPARE(kindsOf(statements), kindsOf(synchroniseWith(plainPeople(lines.size()), option)));
}

void TestGateWorker::aForcedSynchronisationWritesTheSameTextsAgain()
{
    const QList<QByteArray> lines = hostilePeople();
    GateSite site;
    site.admit(lines.join());
    startWorkerWith(site);
    tick(2); // the second one corrects the balances of the new people
    m_db.clearStatements();
    tick();
    QCOMPARE(m_db.statements().filter("UPDATE people SET").size(), 0);

    force();
    m_db.clearStatements();
    tick();

    // The plugin compares the written texts with the row, so that everybody with one differs.
    const QStringList statements = m_db.statements();
    const TableRows rows = textsOfNewPeople();
    for (int i = 0; i < lines.size(); ++i) {
        QCOMPARE(rows.value(i), bytesOf(rowOf(lines.at(i))));
        const QStringList values = valuesOf(lines.at(i), Backslash::Escapes);
        const bool isOwn = values.mid(2) == rowOf(lines.at(i)).mid(1);
        const QString update = "UPDATE people SET pamId=" + values.at(1) + ", title='"
            + values.at(2) + "', name='" + values.at(3) + "', surname='" + values.at(4)
            + "', title2='" + values.at(5) + "', phone='" + values.at(6) + "', begin=";
        if (!isOwn)
            QCOMPARE(statements.filter(update).size(), 1);
    }
    QCOMPARE(m_db.value("SELECT COUNT(*) FROM people").toInt(), 8 + lines.size());
}

void TestGateWorker::textsLeftAsTheyAreAreStatements()
{
    const QByteArray line = lineWith(kFirstNumber,
                                     {"", "Jana",
                                      "x', '', '', 1, NULL, 1, NULL, NULL, '', 0, 1, 1, 1); "
                                      "UPDATE people SET phone = 'lost' WHERE pid = 10011; -- ",
                                      "", ""});
    synchroniseWith({line}, {"--texts", "as-is"});
    QCOMPARE(m_db.value("SELECT phone FROM people WHERE pid = 10011").toString(), QString("lost"));
}

void TestGateWorker::statusReportsTheGate()
{
    m_db.run(QString("ALTER USER mirovahrctl@localhost IDENTIFIED BY '%1' ACCOUNT UNLOCK")
                 .arg(m_db.server().password()));
    GateSite site;
    const QStringList status{"status",          "--json",
                             "--socket",        m_db.server().socketPath(),
                             "--database",      m_db.server().databaseName(),
                             "--user",          "mirovahrctl",
                             "--password-file", m_db.server().passwordFile(),
                             "--gate-status",   site.inState("status.json")};
    site.admit(GatePeople::some(30));
    const ToolRun admitted = runTool(status);
    COMPARE_EXIT(admitted, ExitStatus::Fine);
    const QJsonObject facts = admitted.json()["facts"].toObject();
    QCOMPARE(facts["gateResult"].toString(), QString("admitted"));
    QCOMPARE(facts["admittedFile"].toString(), site.hrFile());
    QCOMPARE(facts["admittedLines"].toInt(), 30);
    QCOMPARE(facts["linesWithErrors"].toInt(-1), 0);
    QCOMPARE(facts["linesWithWarnings"].toInt(-1), 0);

    site.deliver(QByteArray(GatePeople::file(GatePeople::some(27)).chopped(1)));
    COMPARE_EXIT(site.run(), ExitStatus::GuardTripped);
    const ToolRun refused = runTool(status);
    COMPARE_EXIT(refused, ExitStatus::Findings);
    QCOMPARE(
        refused.findingsOf("gate-refused").value(0)["message"].toString(),
        QString("The gate has refused the last file: The last line does not end with a line feed; "
                "3 lines (10.0 %) with people are missing compared with the last admitted file; "
                "the limits are 50 and 5 %; 3 people (10.0 %) leave; the limits are 50 and 5 %."));
    QCOMPARE(refused.json()["facts"].toObject()["admittedLines"].toInt(), 30);
}

QTEST_GUILESS_MAIN(TestGateWorker)
#include "tst_gateworker.moc"
