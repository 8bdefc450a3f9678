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

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
