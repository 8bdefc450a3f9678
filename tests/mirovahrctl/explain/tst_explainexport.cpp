#include "mirovahrctl/gatestate/gateoptions.h"
#include "tests/mirovahrctl/explain/explainedsite.h"
#include "tests/mirovahrctl/gate/gatesite.h"
#include "tests/worker/support/sampleexport.h"

#include <QTest>

/// Which export explain uses when the plugin has removed its own.
class TestExplainExport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void theGateOfACommandIsFound_data();
    void theGateOfACommandIsFound();
    void theLastAdmittedFileIsUsedWhenThePluginHasRemovedItsOwn_data();
    void theLastAdmittedFileIsUsedWhenThePluginHasRemovedItsOwn();
    void anUnusableGateIsReported_data();
    void anUnusableGateIsReported();
    void theExportThatIsThereComesFirst();
    void aRefusalOfTheGateIsReported();
    void aGateThatHasAdmittedNothingIsNoExport();
    void theAdmittedFileIsExplainedAsTheGatePublishesIt_data();
    void theAdmittedFileIsExplainedAsTheGatePublishesIt();
    void namesAreSearchedInTheAdmittedFile();

private:
    QByteArray command(const QString &more = {}) const;
    void configure(const QByteArray &command);
    static QString surname(const ToolRun &run);

    TestDatabase m_db;
    ExplainedSite m_site{m_db};
    std::unique_ptr<GateSite> m_gate;
};

void TestExplainExport::initTestCase()
{
    QVERIFY2(m_db.start(), qPrintable(m_db.errorString()));
    m_site.unlockAccount();
}

void TestExplainExport::init()
{
    m_gate = std::make_unique<GateSite>();
    m_gate->admit({SampleExport::jana().with(&ExportRow::prijmeni, "Malá")});
}

QByteArray TestExplainExport::command(const QString &more) const
{
    return QStringLiteral("/usr/bin/mirovahrctl gate --from %1 --to %2 --state %3 %4")
        .arg(m_gate->hrFile(), m_gate->target(), m_gate->state(), more)
        .toUtf8();
}

void TestExplainExport::configure(const QByteArray &command)
{
    QFile file(m_site.configurationPath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("importFile=\"" + m_gate->target().toUtf8() + "\"\nsyncCommand=\"" + command
               + "\"\nsyncCommandRun=2\n");
}

/// The surname in the explained line.
QString TestExplainExport::surname(const ToolRun &run)
{
    for (const QStringList &row : ExplainedSite::table(run, "row", "fields", {"field", "export"})) {
        if (row.first() == "Surname")
            return row.last();
    }
    return {};
}

void TestExplainExport::theGateOfACommandIsFound_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("folder"); // empty: no gate
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("another program") << "/usr/bin/export --to /hr/ron.data"
                                     << "";
    QTest::newRow("another subcommand") << "mirovahrctl status"
                                        << "";
    QTest::newRow("the program alone") << "mirovahrctl"
                                       << "";
    QTest::newRow("with a folder") << "mirovahrctl gate --from /hr/a --to /hr/b --state /var/gate"
                                   << "/var/gate";
    QTest::newRow("without a folder") << "mirovahrctl gate --from /hr/a --to /hr/b"
                                      << "/hr/b.gate";
    QTest::newRow("with its path, by way of another program")
        << "sudo -u yav /usr/bin/mirovahrctl gate --state=/var/gate --from /hr/a --to /hr/b"
        << "/var/gate";
    QTest::newRow("in a language") << "mirovahrctl gate --language sk --from /hr/a --to /hr/b"
                                   << "/hr/b.gate";
    QTest::newRow("with the language before the subcommand")
        << "mirovahrctl --language=cs gate --from /hr/a --to /hr/b"
        << "/hr/b.gate";
    QTest::newRow("in a language that there is not")
        << "mirovahrctl gate --language de --from /hr/a --to /hr/b"
        << "";
    QTest::newRow("quoted blanks")
        << R"(mirovahrctl gate --from /hr/a --to /hr/b --state "/var/my gate")"
        << "/var/my gate";
    QTest::newRow("an option that the gate does not know")
        << "mirovahrctl gate --from /hr/a --to /hr/b --what"
        << "";
    QTest::newRow("no target") << "mirovahrctl gate --from /hr/a"
                               << "";
    QTest::newRow("its help") << "mirovahrctl gate --help"
                              << "";
}

void TestExplainExport::theGateOfACommandIsFound()
{
    QFETCH(QString, command);
    QFETCH(QString, folder);
    const auto gate = GateOptions::ofCommand(command);
    QCOMPARE(gate ? gate->stateFolder : QString(), folder);
}

void TestExplainExport::theLastAdmittedFileIsUsedWhenThePluginHasRemovedItsOwn_data()
{
    QTest::addColumn<bool>("isTold");
    QTest::addColumn<QString>("gate");
    QTest::newRow("the folder is named") << true << "gate";
    QTest::newRow("the folder is that of syncCommand") << false << "gate of syncCommand";
}

void TestExplainExport::theLastAdmittedFileIsUsedWhenThePluginHasRemovedItsOwn()
{
    QFETCH(bool, isTold);
    QFETCH(QString, gate);
    configure(isTold ? QByteArray() : command());
    const ToolRun run = m_site.explain(
        "1234.1", isTold ? QStringList{"--gate-folder", m_gate->state()} : QStringList());
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(ExplainedSite::facts(run).value("exportSource").toString(), QString("gate"));
    QCOMPARE(ExplainedSite::facts(run).value("person").toString(), QString("updated"));
    const QStringList sentences = ExplainedSite::sentences(run, "export");
    QCOMPARE(sentences.first(),
             "There is no export " + m_gate->target()
                 + ": the plugin removes it after it has read it.");
    QCOMPARE(sentences.at(1),
             "What follows uses the file that the " + gate + " admitted last, on "
                 + QDate::currentDate().toString(Qt::ISODate) + ".");
    QCOMPARE(sentences.last(),
             "Line 1 of " + m_gate->inState("admitted.data")
                 + " is about 1234.1 Jana Malá, pid 12341.");
}

void TestExplainExport::anUnusableGateIsReported_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("another target")
        << "mirovahrctl gate --from /hr/a --to /hr/b"
        << "The gate of syncCommand publishes to /hr/b, where the plugin does not read.";
    QTest::newRow("a folder that depends on where the server was started")
        << "mirovahrctl gate --from /hr/a --to %1 --state gate"
        << "The gate of syncCommand has the folder gate, and where that is depends on the "
           "attendance server.";
    QTest::newRow("a folder that is not there")
        << "mirovahrctl gate --from /hr/a --to %1 --state /nowhere"
        << "'/nowhere' cannot be opened as a folder: No such file or directory.";
}

void TestExplainExport::anUnusableGateIsReported()
{
    QFETCH(QString, command);
    QFETCH(QString, sentence);
    configure(command.replace("%1", m_gate->target()).toUtf8());
    const ToolRun run = m_site.explain("1234.1");
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(ExplainedSite::facts(run).value("exportSource").toString(), QString("none"));
    QCOMPARE(ExplainedSite::sentences(run, "export").value(1), sentence);
}

void TestExplainExport::theExportThatIsThereComesFirst()
{
    configure(command());
    writeFile(m_gate->target(), GatePeople::file({SampleExport::jana()}));
    const ToolRun run = m_site.explain("1234.1", {"--gate-folder", m_gate->state()});
    QCOMPARE(ExplainedSite::facts(run).value("exportSource").toString(), QString("importFile"));
    QCOMPARE(surname(run), QString("Nováková"));
}

void TestExplainExport::aRefusalOfTheGateIsReported()
{
    configure(command());
    m_gate->deliver(QByteArray());
    m_gate->run();
    const ToolRun run = m_site.explain("1234.1");
    COMPARE_EXIT(run, ExitStatus::Findings);
    QCOMPARE(run.rules(), QStringList("gate-refused"));
    QVERIFY2(ExplainedSite::messages(run).first().startsWith("The gate has refused a newer file: "),
             run.report().constData());
    QCOMPARE(ExplainedSite::facts(run).value("person").toString(), QString("updated"));
}

void TestExplainExport::aGateThatHasAdmittedNothingIsNoExport()
{
    configure({});
    QVERIFY(QFile::remove(m_gate->inState("admitted.data")));
    const ToolRun run = m_site.explain("1234.1", {"--gate-folder", m_gate->state()});
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err,
             "mirovahrctl: explain: The gate has admitted no file yet: there is no '"
                 + m_gate->inState("admitted.data") + "'.\n");
}

void TestExplainExport::theAdmittedFileIsExplainedAsTheGatePublishesIt_data()
{
    QTest::addColumn<QStringList>("option");
    QTest::addColumn<QStringList>("rules");
    QTest::addColumn<QString>("person");
    QTest::newRow("by default") << QStringList() << QStringList() << "updated";
    QTest::newRow("as it is") << QStringList{"--texts", "as-is"} << QStringList{"quote-in-text"}
                              << "uncertain";
}

void TestExplainExport::theAdmittedFileIsExplainedAsTheGatePublishesIt()
{
    QFETCH(QStringList, option);
    QFETCH(QString, person);
    m_gate->deliver({SampleExport::jana().with(&ExportRow::prijmeni, "O'Hara")});
    COMPARE_EXIT(m_gate->run(option), ExitStatus::Fine);
    m_gate->takePublished();
    configure(command());
    for (const char *name : {"1234.1", "o'hara"}) {
        const ToolRun run = m_site.explain(name);
        QTEST(run.rules(), "rules");
        QCOMPARE(ExplainedSite::facts(run).value("person").toString(), person);
        QCOMPARE(surname(run), QString("O'Hara"));
    }
}

void TestExplainExport::namesAreSearchedInTheAdmittedFile()
{
    m_gate->admit({SampleExport::newcomer(3701).with(&ExportRow::prijmeni, "Kráľová")});
    configure(command());
    const ToolRun run = m_site.explain("kralova");
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(ExplainedSite::facts(run).value("person").toString(), QString("created"));
}

QTEST_GUILESS_MAIN(TestExplainExport)
#include "tst_explainexport.moc"
