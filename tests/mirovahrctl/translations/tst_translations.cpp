#include "tests/mirovahrctl/translations/translationfile.h"
#include "tests/support/programrun.h"

#include <QDir>
#include <QHash>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/// The files with the Slovak and Czech texts of mirovahrctl, and the English plural forms.
class TestTranslations : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void theFilesHoldTheTextsOfTheSources();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void everyTextHasThePlacesForValuesOfItsSource_data();
    void everyTextHasThePlacesForValuesOfItsSource();
    void everyTextEndsAsItsSource_data();
    void everyTextEndsAsItsSource();
    void everyCountIsAsTheLanguageWritesIt_data();
    void everyCountIsAsTheLanguageWritesIt();
    void theSameTextIsTranslatedTheSameWayEverywhere_data();
    void theSameTextIsTranslatedTheSameWayEverywhere();
    void theWordsOfTheGlossaryAreUsed_data();
    void theWordsOfTheGlossaryAreUsed();

private:
    void addFiles();
    void addLanguages();

    QStringList m_files; ///< relative to the folder
};

namespace {

const QDir kFolder(QStringLiteral(MIROVAHR_TRANSLATIONS));

QStringList filesIn(const QDir &folder)
{
    QStringList files;
    for (const QString &language : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QStringList names = QDir(folder.filePath(language)).entryList({"*.ts"});
        for (const QString &name : names)
            files << language + '/' + name;
    }
    return files;
}

QByteArray content(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return file.readAll();
}

/// The places for values, such as "%1" and "%Ln", in alphabetical order.
QStringList places(const QString &text)
{
    static const QRegularExpression place("%L?(?:[0-9]+|n)");
    QStringList places;
    auto matches = place.globalMatch(text);
    while (matches.hasNext())
        places << matches.next().captured();
    places.sort();
    return places;
}

/// The punctuation and spaces at the end of a text.
QString ending(const QString &text)
{
    static const QRegularExpression end("[.:;?!… ]*$");
    return end.match(text).captured();
}

} // namespace

void TestTranslations::initTestCase()
{
    m_files = filesIn(kFolder);
    QVERIFY(m_files.contains("sk/force.ts"));
    QVERIFY(m_files.contains("cs/force.ts"));
}

void TestTranslations::addFiles()
{
    QTest::addColumn<QString>("file");
    for (const QString &file : qAsConst(m_files))
        QTest::newRow(qPrintable(file)) << file;
}

void TestTranslations::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const char *const language : {"cs", "en", "sk"})
        QTest::newRow(language) << language;
}

void TestTranslations::theFilesHoldTheTextsOfTheSources()
{
    QTemporaryDir copy;
    for (const QString &file : qAsConst(m_files)) {
        QDir(copy.path()).mkpath(QFileInfo(file).path());
        QVERIFY(QFile::copy(kFolder.filePath(file), copy.filePath(file)));
    }
    ProgramRun update;
    QVERIFY(update.run(MIROVAHR_UPDATE_TRANSLATIONS, {copy.path()}));
    QVERIFY2(update.status() == 0, update.report().constData());
    QCOMPARE(filesIn(QDir(copy.path())), m_files);
    for (const QString &file : qAsConst(m_files)) {
        QVERIFY2(content(copy.filePath(file)) == content(kFolder.filePath(file)),
                 qPrintable(file + " is not up to date: run scripts/translations"));
    }
}

void TestTranslations::everyTextIsTranslated_data()
{
    addFiles();
}

void TestTranslations::everyTextIsTranslated()
{
    QFETCH(QString, file);
    const int pluralForms = file.startsWith("en/") ? 2 : 3;
    for (const Translation &text : readTranslations(kFolder.filePath(file))) {
        QVERIFY2(text.isFinished, qPrintable(text.source));
        QCOMPARE(text.forms.size(), text.isPlural ? pluralForms : 1);
        QVERIFY2(!text.forms.contains(QString()), qPrintable(text.source));
    }
}

void TestTranslations::everyTextHasThePlacesForValuesOfItsSource_data()
{
    addFiles();
}

void TestTranslations::everyTextHasThePlacesForValuesOfItsSource()
{
    QFETCH(QString, file);
    for (const Translation &text : readTranslations(kFolder.filePath(file))) {
        for (const QString &form : text.forms)
            QVERIFY2(places(form) == places(text.source), qPrintable(form));
    }
}

void TestTranslations::everyTextEndsAsItsSource_data()
{
    addFiles();
}

/// A sentence stays a sentence, and what is joined with other texts can still be joined.
void TestTranslations::everyTextEndsAsItsSource()
{
    QFETCH(QString, file);
    for (const Translation &text : readTranslations(kFolder.filePath(file))) {
        for (const QString &form : text.forms)
            QVERIFY2(ending(form) == ending(text.source), qPrintable(form));
    }
}

void TestTranslations::everyCountIsAsTheLanguageWritesIt_data()
{
    addFiles();
}

void TestTranslations::everyCountIsAsTheLanguageWritesIt()
{
    QFETCH(QString, file);
    for (const Translation &text : readTranslations(kFolder.filePath(file)))
        QVERIFY2(!text.isPlural || text.source.contains("%Ln"), qPrintable(text.source));
}

void TestTranslations::theSameTextIsTranslatedTheSameWayEverywhere_data()
{
    addLanguages();
}

/// The files of a language are compiled into one: of two translations one would be lost.
void TestTranslations::theSameTextIsTranslatedTheSameWayEverywhere()
{
    QFETCH(QString, language);
    QHash<QString, QStringList> known;
    for (const QString &file : qAsConst(m_files)) {
        if (!file.startsWith(language + '/') || file.endsWith("/qt.ts"))
            continue;
        for (const Translation &text : readTranslations(kFolder.filePath(file))) {
            QStringList &forms = known[text.source + '\n' + text.meaning];
            QVERIFY2(forms.isEmpty() || forms == text.forms, qPrintable(file + ": " + text.source));
            forms = text.forms;
        }
    }
}

/// Words that are easily taken for others.
void TestTranslations::theWordsOfTheGlossaryAreUsed_data()
{
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("slovak");
    QTest::addColumn<QString>("czech");

    const auto term = [](const char *name, const char *english, const char *slovak,
                         const char *czech) {
        QTest::newRow(name) << QString(english) << QString(slovak) << QString(czech);
    };
    term("an administrator in the database, not of the programs", "\\badministrators?\\b",
         "administrátor", "administrát");
    term("the employment type", "employment type", "druh\\w* pracovného pomeru",
         "druh\\w* pracovního poměru");
    term("the employment state", "employment state", "stav\\w* pracovného pomeru",
         "stav\\w* pracovního poměru");
    term("the relationship state", "relationship state", "stav\\w* pomeru", "stav\\w* poměru");
    term("the register state", "register state", "evidenčn\\w+ stav", "evidenčn\\w+ stav");
    term("the last admitted file", "last admitted", "naposledy prijat", "naposledy přijat");
    term("the payroll export", "payroll export", "export\\w* pre mzdy", "export\\w* pro mzdy");
    term("the payroll id", "payroll id", "identifikátor\\w* pre mzdy",
         "identifikátor\\w* pro mzdy");
    term("a supervisor", "supervisor", "nadriaden", "nadřízen");
    term("an interval type", "interval type", "druh\\w* interval", "druh\\w* interval");
    term("a backslash", "backslash", "opačn\\w+ lomk", "zpětn\\w+ lomít");
}

void TestTranslations::theWordsOfTheGlossaryAreUsed()
{
    QFETCH(QString, english);
    QFETCH(QString, slovak);
    QFETCH(QString, czech);
    const auto pattern = [](const QString &text) {
        return QRegularExpression(text,
                                  QRegularExpression::CaseInsensitiveOption
                                      | QRegularExpression::UseUnicodePropertiesOption);
    };
    const QRegularExpression term(english);
    int count = 0;
    for (const QString &file : qAsConst(m_files)) {
        if (file.startsWith("en/"))
            continue;
        const QRegularExpression word = pattern(file.startsWith("sk/") ? slovak : czech);
        for (const Translation &text : readTranslations(kFolder.filePath(file))) {
            if (!text.source.contains(term))
                continue;
            ++count;
            for (const QString &form : text.forms)
                QVERIFY2(form.contains(word), qPrintable(file + ": " + form));
        }
    }
    QVERIFY(count > 0);
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
