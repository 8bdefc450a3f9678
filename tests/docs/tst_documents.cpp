#include "cli/connectionfile.h"
#include "mirovahrctl/log/logtext.h"
#include "mirovahrctl/subcommand.h"
#include "plugin/configuration.h"
#include "tests/docs/markdown.h"
#include "tests/docs/sourcetexts.h"
#include "worker/importfile.h"
#include "worker/schedule.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QSettings>
#include <QTest>

namespace {

const QString kOperations = QStringLiteral("docs/operations.md");
const QString kReadme = QStringLiteral("README.md");

/// The levels of a log text: "info 1 or debug 2", "info 1, critical".
QSet<QString> levels(const QString &words)
{
    static const QRegularExpression separator(" or |, ");
    const QStringList levels = words.split(separator);
    return QSet<QString>(levels.cbegin(), levels.cend());
}

/// The log texts that mirovahrctl knows, and their levels.
QMap<QString, QSet<QString>> catalogue()
{
    QMap<QString, QSet<QString>> texts;
    for (const LogTextGroup &group : logTextGroups()) {
        for (const LogText &text : group.texts)
            texts[text.text] = levels(text.level);
    }
    return texts;
}

/// The rows of the log tables that the catalogue makes: text, level, meaning and advice.
QVector<QStringList> catalogueRows()
{
    QVector<QStringList> rows;
    for (const LogTextGroup &group : logTextGroups()) {
        for (const LogText &text : group.texts) {
            const QString cell =
                QString::fromUtf8(text.meaning) + ' ' + QString::fromUtf8(text.advice);
            rows << QStringList{text.text, text.level, cell.trimmed()};
        }
    }
    return rows;
}

/// Those of docs/operations.md, without the marks of code.
QVector<QStringList> documentedRows()
{
    QVector<QStringList> rows;
    for (const QStringList &row : Markdown::rows(kOperations, "Text")) {
        QString cell = row.at(2);
        rows << QStringList{Markdown::code(row.at(0)), row.at(1), cell.remove('`')};
    }
    return rows;
}

/// The headings in front of the log tables of docs/operations.md.
QStringList documentedHeadings()
{
    static const QRegularExpression heading("^### ([^\n]+)\n(?:(?!#)[^\n]*\n)*?\\| Text \\|",
                                            QRegularExpression::MultilineOption);
    QStringList headings;
    auto matches = heading.globalMatch(Markdown::text(kOperations));
    while (matches.hasNext())
        headings << matches.next().captured(1);
    return headings;
}

/// The keys that the plugin's own code reads, in its order; group MES as the documents name it.
QStringList keysInSources()
{
    static const QRegularExpression read("(?:number|flag|text)\\(\"(\\w+)\"");
    QStringList keys;
    auto matches = read.globalMatch(Markdown::text("plugin/configuration.cpp"));
    while (matches.hasNext())
        keys << matches.next().captured(1);
    return keys << "MES";
}

/// The keys of a document's table and the defaults that it names.
QMap<QString, QString> documentedKeys(const QString &document)
{
    QMap<QString, QString> keys;
    for (const QStringList &row : Markdown::rows(document, "Key"))
        keys[QString(row.at(0)).remove("group ").remove('`')] = QString(row.at(1)).remove('`');
    return keys;
}

QString text(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

/// The defaults that the documents must state, from the configuration itself.
QMap<QString, QString> actualDefaults()
{
    const Configuration defaults;
    return {
        {"enabled", text(defaults.enabled)},
        {"timerInterval", QString::number(defaults.tickMilliseconds / 1000)},
        {"syncInterval", QString::number(defaults.syncInterval)},
        {"testMode", text(defaults.testMode)},
        {"importFile", ImportFile::path(defaults.importFile)},
        {"deleteFile", text(defaults.deleteFile)},
        {"syncCommand", "none"},
        {"syncCommandRun", QString::number(defaults.syncCommandRun)},
        {"departmentId", QString::number(defaults.departmentId)},
        {"MES", "none"},
    };
}

QString lines(const QSet<QString> &texts)
{
    QStringList sorted = texts.values();
    sorted.sort();
    return sorted.join('\n');
}

} // namespace

class TestDocuments : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyLogTextIsKnownWithItsLevel();
    void everyTextThatReachesTheLogThroughAFunctionIsKnown();
    void everyKnownLogTextIsInTheCode();
    void everyKnownLogTextHasAMeaningAndALevel();
    void theLogTablesAreThoseOfTheCatalogue();
    void everyKeyIsDocumentedWithItsDefault_data();
    void everyKeyIsDocumentedWithItsDefault();
    void everyVariableOfTheDatabaseIsDocumented_data();
    void everyVariableOfTheDatabaseIsDocumented();
    void everySubcommandIsInTheOperationsManual();
    void linksLeadToFiles_data();
    void linksLeadToFiles();
    void theSampleConfigurationReadsAsItSays();
    void theSampleConfigurationNamesEveryKeyAndNoOther();
    void theSampleConnectionReadsAsItSays();
    void theSampleConnectionNamesEveryOption();
};

void TestDocuments::everyLogTextIsKnownWithItsLevel()
{
    const auto known = catalogue();
    const auto logged = SourceTexts::loggedDirectly();
    QVERIFY2(logged.size() > 100, "the scan of the sources finds too little");
    for (auto it = logged.cbegin(); it != logged.cend(); ++it) {
        QVERIFY2(known.contains(it.key()), qPrintable(it.key()));
        QVERIFY2(known.value(it.key()) == it.value(),
                 qPrintable(it.key() + ": " + it.value().values().join(", ")));
    }
}

void TestDocuments::everyTextThatReachesTheLogThroughAFunctionIsKnown()
{
    const auto known = catalogue();
    const QSet<QString> texts = SourceTexts::handedOn();
    QVERIFY2(texts.size() > 60, "the scan of the sources finds too little");
    for (const QString &text : texts)
        QVERIFY2(known.contains(text), qPrintable(text));
}

void TestDocuments::everyKnownLogTextIsInTheCode()
{
    const QStringList logged = SourceTexts::loggedDirectly().keys();
    const QStringList known = catalogue().keys();
    const QSet<QString> unknown = QSet<QString>(known.cbegin(), known.cend())
        - QSet<QString>(logged.cbegin(), logged.cend()) - SourceTexts::handedOn();
    QVERIFY2(unknown.isEmpty(), qPrintable(lines(unknown)));
}

void TestDocuments::everyKnownLogTextHasAMeaningAndALevel()
{
    static const QRegularExpression sentence("[.?]$");
    static const QRegularExpression level("^((debug|info|warning) [123]|warning|critical)$");
    for (const QStringList &row : catalogueRows()) {
        QVERIFY2(row.at(2).contains(sentence), qPrintable(row.join(" | ")));
        for (const QString &one : levels(row.at(1)))
            QVERIFY2(one.contains(level), qPrintable(row.join(" | ")));
    }
}

void TestDocuments::theLogTablesAreThoseOfTheCatalogue()
{
    QStringList headings;
    for (const LogTextGroup &group : logTextGroups())
        headings << group.heading;
    QCOMPARE(documentedHeadings(), headings);

    const QVector<QStringList> expected = catalogueRows();
    const QVector<QStringList> actual = documentedRows();
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(actual.value(i), expected.at(i));
    QCOMPARE(actual.size(), expected.size());
}

void TestDocuments::everyKeyIsDocumentedWithItsDefault_data()
{
    QTest::addColumn<QString>("document");
    QTest::newRow("operations") << kOperations;
    QTest::newRow("README") << kReadme;
}

void TestDocuments::everyKeyIsDocumentedWithItsDefault()
{
    QFETCH(QString, document);
    QCOMPARE(actualDefaults().size(), keysInSources().size());
    for (const QString &key : keysInSources())
        QVERIFY2(actualDefaults().contains(key), qPrintable(key));
    QCOMPARE(documentedKeys(document), actualDefaults());
}

void TestDocuments::everyVariableOfTheDatabaseIsDocumented_data()
{
    everyKeyIsDocumentedWithItsDefault_data();
}

void TestDocuments::everyVariableOfTheDatabaseIsDocumented()
{
    QFETCH(QString, document);
    QStringList names;
    for (const QStringList &row : Markdown::rows(document, "Name"))
        names << Markdown::code(row.constFirst());
    QCOMPARE(names,
             (QStringList{Schedule::kForceSyncKey, "exportPam.N.active", "exportPam.N.selPeople"}));
}

void TestDocuments::everySubcommandIsInTheOperationsManual()
{
    const QString text = Markdown::text(kOperations);
    for (const Subcommand &subcommand : subcommands())
        QVERIFY2(text.contains(QStringLiteral("`mirovahrctl %1").arg(subcommand.name)),
                 subcommand.name);
}

void TestDocuments::linksLeadToFiles_data()
{
    QTest::addColumn<QString>("document");
    for (const char *document : {"README.md", "docs/cluster.md", "docs/how-it-works.md",
                                 "docs/operations.md", "docs/reliability.md", "docs/security.md"})
        QTest::newRow(document) << document;
}

void TestDocuments::linksLeadToFiles()
{
    QFETCH(QString, document);
    const QString folder = QFileInfo(PROJECT_FOLDER "/" + document).path();
    const QStringList links = Markdown::links(document);
    QVERIFY(!links.isEmpty());
    for (const QString &link : links)
        QVERIFY2(QFileInfo::exists(folder + '/' + link), qPrintable(link));
}

void TestDocuments::theSampleConfigurationReadsAsItSays()
{
    const auto settings = Configuration::open(PROJECT_FOLDER "/config/MirovaHR.ini");
    const Configuration sample = Configuration::read(*settings);
    QCOMPARE(settings->status(), QSettings::NoError);
    QCOMPARE(sample.enabled, true);
    QCOMPARE(sample.tickMilliseconds, 60000U);
    QCOMPARE(sample.syncInterval, 60U);
    QCOMPARE(sample.testMode, false);
    QCOMPARE(sample.importFile, QString("/var/lib/yav/import/ron.data"));
    QCOMPARE(sample.deleteFile, true);
    QVERIFY(sample.syncCommand.startsWith("/usr/bin/mirovahrctl gate "));
    QCOMPARE(sample.syncCommandRun, quint8(2));
    QCOMPARE(sample.departmentId, 1U);
    const QHash<unsigned short, QString> messages{
        {21, "materská dovolenka"}, {22, "rodičovská dovolenka"}, {71, "neplatené voľno"}};
    QCOMPARE(sample.messages, messages);
}

void TestDocuments::theSampleConfigurationNamesEveryKeyAndNoOther()
{
    const auto settings = Configuration::open(PROJECT_FOLDER "/config/MirovaHR.ini");
    QStringList keys = settings->childKeys() + settings->childGroups();
    QStringList expected = keysInSources();
    keys.sort();
    expected.sort();
    QCOMPARE(keys, expected);
}

void TestDocuments::theSampleConnectionReadsAsItSays()
{
    ConnectionFile sample;
    QCOMPARE(sample.read(PROJECT_FOLDER "/config/mirovahrctl.ini"), QString());
    QCOMPARE(sample.options().socket, QString("/run/mysqld/mysqld.sock"));
    QCOMPARE(sample.options().name, QString("tepdb"));
    QCOMPARE(sample.options().user, QString("mirovahrctl"));
    QString password;
    QString warning;
    QCOMPARE(sample.readPassword(password, warning).section("'", 0, 1),
             QString("The password file '" PROJECT_FOLDER "/config/mirovahrctl.password"));
}

void TestDocuments::theSampleConnectionNamesEveryOption()
{
    QCommandLineParser parser;
    addDatabaseOptions(parser, {"PASSWORD", QString()});
    static const QRegularExpression option("--([a-z-]+) <");
    QStringList names{"password"};
    auto matches = option.globalMatch(parser.helpText());
    while (matches.hasNext())
        names << matches.next().captured(1);
    names.removeOne("defaults-file");

    static const QRegularExpression key("^;?([a-z-]+)=", QRegularExpression::MultilineOption);
    QStringList keys;
    matches = key.globalMatch(Markdown::text("config/mirovahrctl.ini"));
    while (matches.hasNext())
        keys << matches.next().captured(1);
    names.sort();
    keys.sort();
    QCOMPARE(keys, names);
}

QTEST_GUILESS_MAIN(TestDocuments)
#include "tst_documents.moc"
