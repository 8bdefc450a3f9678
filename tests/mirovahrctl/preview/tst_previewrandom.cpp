#include "tests/mirovahrctl/preview/previewbench.h"
#include "tests/mirovahrctl/preview/randomsite.h"
#include "tests/support/environmentnumber.h"
#include "tests/worker/support/middayzone.h"
#include "worker/exportline.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <ctime>

namespace {

/// How many databases are tested, and the first seed.
const char kCount[] = "MIROVAHR_PREVIEW_CASES";
const char kSeed[] = "MIROVAHR_PREVIEW_SEED";
constexpr uint kQuickCount = 6;
/// They run in turn, each on the database as the previous one left it. Every other one has texts
/// that break statements.
constexpr int kExports = 4;

const char kKept[] = "kept";

/// The cells that hold the moment at which they were written.
bool isMoment(const QString &table, const QString &column)
{
    return (table == "people" && (column == "created" || column == "edited"))
        || (table == "brape" && column == "since") || (table == "term_sync" && column == "created");
}

/// Lines, without the one that holds the time of the preview, and without the lookups of uids,
/// which a process makes only once.
QStringList linesOf(const QString &text)
{
    return text.split('\n').filter(
        QRegularExpression("^(?!-- by a preview of |debug\tMHRWorker::dbGetUidByPid)"));
}

QStringList surplus(const QStringList &texts, const QStringList &others)
{
    QStringList surplus;
    for (const QString &text : texts) {
        if (!others.contains(text))
            surplus += text;
    }
    return surplus;
}

} // namespace

/// For random databases and exports, the worker does what preview has predicted.
class TestPreviewRandom : public QObject {
    Q_OBJECT

public:
    static void initMain() { settleProgram(); }

private Q_SLOTS:
    void initTestCase();
    void whoIsExportedBySeveralSeedsHasTheSameUid();
    void thePredictionIsWhatHappens_data();
    void thePredictionIsWhatHappens();
    void everyKindOfDifferenceOccurred();
    void rowsWereLeftOut();

private:
    /// The uids of the people whom a seed exports, by pid; empty for people who are new.
    QMap<quint32, QString> uidsOfExported(quint32 seed);
    /// The whole content of a database, with moments since the begin of the test as "now".
    DatabaseState state(const QString &database);
    void keep();
    void tryExport();
    /// Moves what has been written since the begin of the test to before it: a row that is written
    /// again changes then, in whatever second.
    void age(const QString &database);
    /// The preview, which is the same when all rows are copied.
    PreviewResult preview();

    PreviewBench m_bench;
    qint64 m_begin = 0;
    QSet<QString> m_kinds; ///< of the differences so far
    int m_leftOut = 0; ///< previews of a part of the rows
};

void TestPreviewRandom::initTestCase()
{
    QVERIFY2(m_bench.start(), qPrintable(m_bench.site().errorString()));
}

DatabaseState TestPreviewRandom::state(const QString &database)
{
    TestDatabase &site = m_bench.site();
    site.run("USE " + database);
    DatabaseState state = site.dumpAll();
    site.run("USE " + site.server().databaseName());
    for (auto table = state.begin(); table != state.end(); ++table) {
        for (QStringList &row : table.value()) {
            for (QString &cell : row) {
                const QString column = cell.section('=', 0, 0);
                if (isMoment(table.key(), column) && cell.section('=', 1).toLongLong() >= m_begin)
                    cell = column + "=now";
            }
        }
    }
    return state;
}

/// Makes a copy of the site's database, in which the predicted statements will be run.
void TestPreviewRandom::keep()
{
    TestDatabase &site = m_bench.site();
    site.run(QStringLiteral("DROP DATABASE IF EXISTS %1").arg(kKept));
    site.run(QStringLiteral("CREATE DATABASE %1").arg(kKept));
    const TableRows tables = site.rows("SHOW TABLES");
    for (const QStringList &table : tables) {
        // Nobody may give the values of RandomSite's computed column.
        const bool isComputed = table.first() == "history";
        const QString columns = "id, what, weight, price, mask, kind, at, name";
        const QString name = "`" + table.first() + "`";
        const QString copy = QStringLiteral("%1.%2").arg(kKept, name);
        site.run("CREATE TABLE " + copy + " LIKE " + name);
        site.run("INSERT INTO " + copy + (isComputed ? '(' + columns + ')' : QString()) + " SELECT "
                 + (isComputed ? columns : "*") + " FROM " + name);
    }
}

QMap<quint32, QString> TestPreviewRandom::uidsOfExported(quint32 seed)
{
    TestDatabase &site = m_bench.site();
    site.reset();
    RandomSite random(seed);
    random.fill(site, RandomSite::Programs::None);
    QMap<quint32, QString> uids;
    const QList<QByteArray> lines = [&random] {
        QByteArray content;
        for (int i = 0; i < 50; ++i)
            content += random.exportContent();
        return content.split('\n');
    }();
    for (const QByteArray &line : lines) {
        const QString text = ExportLine::decode(line.constData());
        const ExportLine::Parts parts = ExportLine::split(text, ExportLine::kSeparator);
        if (parts.size() != ExportLine::kFieldCount)
            continue;
        const MirovaRonRecord record = ExportLine::toRecord(parts);
        if (ExportLine::isUsable(record))
            uids.insert(record.getPid(), QString());
    }
    for (auto person = uids.begin(); person != uids.end(); ++person) {
        *person =
            site.value(QStringLiteral("SELECT uid FROM people WHERE pid = %1").arg(person.key()))
                .toString();
    }
    return uids;
}

void TestPreviewRandom::whoIsExportedBySeveralSeedsHasTheSameUid()
{
    const QMap<quint32, QString> some = uidsOfExported(1);
    const QMap<quint32, QString> others = uidsOfExported(2);
    QVERIFY(some.contains(0)); // whose number is too large
    for (auto person = some.cbegin(); person != some.cend(); ++person) {
        if (!others.contains(person.key()))
            continue;
        QVERIFY2(!person->isEmpty(), qPrintable(QString::number(person.key())));
        QCOMPARE(others[person.key()], *person);
    }
}

void TestPreviewRandom::thePredictionIsWhatHappens_data()
{
    addSeeds(kCount, kQuickCount, kSeed);
}

void TestPreviewRandom::thePredictionIsWhatHappens()
{
    QFETCH(quint32, seed);
    TestDatabase &site = m_bench.site();
    RandomSite random(seed);
    m_begin = QDateTime::currentSecsSinceEpoch();
    site.reset();
    random.fill(site);
    random.fillLeftBehind(site);
    m_bench.writeIni(random.ini());
    keep();
    for (int i = 0; i < kExports && !QTest::currentTestFailed(); ++i) {
        m_bench.exportFile().writeBytes(random.exportContent(
            i % 2 == 0 ? RandomSite::Texts::Harmless : RandomSite::Texts::Any));
        tryExport();
    }
}

void TestPreviewRandom::age(const QString &database)
{
    for (const QString &moment :
         {QStringLiteral("people.created"), QStringLiteral("people.edited"),
          QStringLiteral("brape.since"), QStringLiteral("term_sync.created")}) {
        m_bench.site().run(QStringLiteral("UPDATE %1.%2 SET %3 = LEAST(%3, %4)")
                               .arg(database, moment.section('.', 0, 0), moment.section('.', 1))
                               .arg(m_begin - 1));
    }
}

PreviewResult TestPreviewRandom::preview()
{
    PreviewResult result = m_bench.preview("root");
    if (result.refusal)
        QTest::qFail(qPrintable(result.refusal->sentence), __FILE__, __LINE__);
    if (!result.doubts.isEmpty())
        return result;
    ++m_leftOut;
    const PreviewResult whole = m_bench.preview("root", PreviewSelection::Extent::All);
    [&] {
        QCOMPARE(surplus(result.described(), whole.described()).join("; "), QString());
        QCOMPARE(surplus(whole.described(), result.described()).join("; "), QString());
        QCOMPARE(result.warned(), whole.warned());
        QCOMPARE(linesOf(result.sql), linesOf(whole.sql));
        QCOMPARE(linesOf(QString::fromUtf8(result.log)), linesOf(QString::fromUtf8(whole.log)));
    }();
    return result;
}

void TestPreviewRandom::tryExport()
{
    TestDatabase &site = m_bench.site();
    // Only the site's own triggers would run, and with triggers previews are not compared.
    const QString triggers =
        "SELECT COUNT(*) FROM information_schema.TRIGGERS WHERE TRIGGER_SCHEMA = DATABASE()";
    if (site.value(triggers).toInt() == 0) {
        age(site.server().databaseName());
        age(kKept);
    }
    const DatabaseState before = site.dumpAll();
    const PreviewResult preview = this->preview();
    if (QTest::currentTestFailed())
        return;
    QCOMPARE(TestDatabase::difference(before, site.dumpAll()), QString());

    site.run("REPLACE INTO vars VALUES ('YAV.MHRWorker.forceSync', '1')");
    QCOMPARE(m_bench.synchroniseSite(), QString());

    QFile sql(m_bench.filePath("preview.sql"));
    QVERIFY(sql.open(QIODevice::WriteOnly));
    sql.write(preview.sql.toUtf8());
    sql.close();
    const QString ownName = site.server().databaseName();
    site.server().setDatabaseName(kKept);
    const bool loaded = site.server().load(sql.fileName());
    site.server().setDatabaseName(ownName);
    QVERIFY2(loaded, qPrintable(site.server().errorString()));
    QCOMPARE(TestDatabase::difference(state(ownName), state(kKept)), QString());
    for (const PreviewLine &line : preview.lines)
        m_kinds += PreviewWords::idOf(line.kind);
}

void TestPreviewRandom::everyKindOfDifferenceOccurred()
{
    // Also for a single database, to reproduce a failure.
    QVERIFY2(m_kinds.contains("new-people") || m_kinds.contains("changed-people"),
             qPrintable(QStringList(m_kinds.values()).join(' ')));
    if (environmentNumber(kCount, kQuickCount) < kQuickCount)
        return;
    QSet<QString> all;
    for (const PreviewKind kind : PreviewWords::kinds())
        all += PreviewWords::idOf(kind);
    QCOMPARE(QStringList((all - m_kinds).values()), QStringList());
}

void TestPreviewRandom::rowsWereLeftOut()
{
    QVERIFY(m_leftOut > 0 || environmentNumber(kCount, kQuickCount) < kQuickCount);
}

QTEST_GUILESS_MAIN(TestPreviewRandom)
#include "tst_previewrandom.moc"
