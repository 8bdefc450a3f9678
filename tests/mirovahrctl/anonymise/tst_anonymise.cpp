#include "mirovahrctl/export/encodedtwice.h"
#include "tests/mirovahrctl/gate/firm.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/exportfile.h"
#include "tests/support/programrun.h"

#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

using Fields = QVector<QStringList>; ///< of each line

Fields fieldsOf(const QByteArray &content)
{
    Fields lines;
    for (const QString &line : QString::fromUtf8(content).split('\n', Qt::SkipEmptyParts))
        lines << line.split('|');
    return lines;
}

/// All values of one field.
QStringList column(const Fields &lines, int field)
{
    QStringList values;
    for (const QStringList &line : lines)
        values << line.value(field);
    return values;
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    return file.readAll();
}

/// The text with "x" for each letter of ASCII and each digit.
QByteArray withoutWords(QByteArray text)
{
    for (char &c : text)
        c = isalnum(uchar(c)) ? 'x' : c;
    return text;
}

int modeOf(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        qFatal("%s is not there", qPrintable(path));
    return status.st_mode & 07777;
}

constexpr int kOsobniCislo = 0;
constexpr int kTelefon = 6;
constexpr int kStredisko = 9;
constexpr int kStrediskoPopis = 10;
constexpr int kNadrizeny = 17;

} // namespace

class TestAnonymise : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.reset(new QTemporaryDir); }

    void withoutAFileTheResultGoesToStandardOutput();
    void aFirmHasOtherNamesAndNumbers();
    void everyOneOfAFirmIsRecognisable();
    void whatThePluginDecidesByStays();
    void noWordAndNoNumberOfTheExportIsLeft_data();
    void noWordAndNoNumberOfTheExportIsLeft();
    void theLinesKeepTheirLengthsAndEnds_data();
    void theLinesKeepTheirLengthsAndEnds();
    void aTextThatWasEncodedTwiceStaysSo();
    void aBrokenLineIsAboutTheSamePerson();
    void aBrokenLineKeepsItsDatesOnly_data();
    void aBrokenLineKeepsItsDatesOnly();
    void twoRunsDiffer();
    void theOutputGoesToAFileForItsOwnerOnly_data();
    void theOutputGoesToAFileForItsOwnerOnly();
    void theReportCountsTheLinesOfWhichMoreStays();
    void numbersThatStayAreWarnedOf();
    void theExportIsNotWrittenOver();
    void anExportThatIsAppendedToItselfEnds();
    void badUsageIsRefused_data();
    void badUsageIsRefused();

private:
    QByteArray anonymised(const QByteArray &content);

    ExportFile m_export;
    QScopedPointer<QTemporaryDir> m_folder;
};

QByteArray TestAnonymise::anonymised(const QByteArray &content)
{
    m_export.writeBytes(content);
    const QString path = m_folder->filePath("anonymised");
    const ToolRun run = runTool({"anonymise", m_export.path(), "--output", path});
    if (run.status != ExitStatus::Fine || !run.err.isEmpty())
        qFatal("%s", run.report().constData());
    return readFile(path);
}

void TestAnonymise::withoutAFileTheResultGoesToStandardOutput()
{
    m_export.write({ExportRow()});
    const ToolRun run = runTool({"anonymise", m_export.path()});
    COMPARE_EXIT(run, ExitStatus::Fine);
    const Fields after = fieldsOf(run.out.toUtf8());
    QCOMPARE(after.size(), 1);
    QCOMPARE(after[0].size(), 18);
    QVERIFY(after[0][4] != "Nováková");
}

void TestAnonymise::aFirmHasOtherNamesAndNumbers()
{
    const QByteArray firm = Firm(300, 1, QDate(2021, 3, 31)).exported();
    const Fields before = fieldsOf(firm);
    const Fields after = fieldsOf(anonymised(firm));
    QCOMPARE(after.size(), before.size());
    for (int i = 0; i < before.size(); ++i) {
        for (const int field : {kOsobniCislo, kTelefon, kStredisko, kStrediskoPopis}) {
            const QString &text = before[i][field];
            QVERIFY2(text.size() < 2 || after[i][field] != text, qPrintable(text));
        }
    }
    // Also of people who have others' numbers now.
    const QStringList numbers = column(before, kOsobniCislo);
    for (const QString &number : column(after, kOsobniCislo))
        QVERIFY2(!numbers.contains(number), qPrintable(number));
}

void TestAnonymise::everyOneOfAFirmIsRecognisable()
{
    const QByteArray firm = Firm(300, 2, QDate(2021, 3, 31)).exported();
    const Fields before = fieldsOf(firm);
    const Fields after = fieldsOf(anonymised(firm));
    for (int field = 0; field < 18; ++field) {
        QHash<QString, QString> others;
        for (int i = 0; i < before.size(); ++i) {
            QVERIFY(!others.contains(before[i][field])
                    || others.value(before[i][field]) == after[i][field]);
            others.insert(before[i][field], after[i][field]);
        }
        const QStringList values = others.values();
        QCOMPARE(QSet<QString>(values.cbegin(), values.cend()).size(), others.size());
    }
    const QStringList numbers = column(before, kOsobniCislo);
    const QStringList otherNumbers = column(after, kOsobniCislo);
    int supervised = 0;
    for (int i = 0; i < before.size(); ++i) {
        const int supervisor = numbers.indexOf(before[i][kNadrizeny]);
        QCOMPARE(otherNumbers.indexOf(after[i][kNadrizeny]), supervisor);
        supervised += supervisor >= 0 ? 1 : 0;
    }
    QVERIFY(supervised > 200);
}

void TestAnonymise::whatThePluginDecidesByStays()
{
    const QByteArray firm = Firm(50, 3, QDate(2021, 3, 31)).exported();
    const Fields before = fieldsOf(firm);
    const Fields after = fieldsOf(anonymised(firm));
    for (const int field : {1, 7, 8, 11, 12, 13, 14, 15, 16})
        QCOMPARE(column(after, field), column(before, field));
}

void TestAnonymise::noWordAndNoNumberOfTheExportIsLeft_data()
{
    QTest::addColumn<QByteArray>("line");
    const QByteArray words("Quizzoltan");
    const QByteArray number("918273645");
    const QStringList good = ExportRow().fields();
    for (int field = 0; field < good.size(); ++field) {
        for (const QByteArray &text : {words, number}) {
            QStringList fields = good;
            fields[field] = text;
            QTest::addRow("%s in field %d", text.constData(), field + 1)
                << fields.join('|').toUtf8();
        }
    }
    QTest::newRow("a field too few") << QByteArray("918273645|1|Quizzoltan|Quizzoltan|918273645|x");
    QTest::newRow("a field too many")
        << ExportRow().with(&ExportRow::jmeno, "Quizzoltan").text().toUtf8() + "|918273645";
    QTest::newRow("another separator") << QByteArray("918273645;1;Quizzoltan;918273645");
    QTest::newRow("behind a NUL byte") << QByteArray("1|1|\0Quizzoltan|918273645", 25);
    QTest::newRow("in a line that is too long") << QByteArray(70000, '|') + "Quizzoltan|918273645"
            + QByteArray(70000, ';') + "Quizzoltan;918273645";
    QTest::newRow("in bytes that are no UTF-8") << QByteArray("1|\xE1Quizzoltan\xF8|\xC5");
    QTest::newRow("a supervisor who is nowhere")
        << ExportRow().with(&ExportRow::nadrizenyOsobniCislo, "918273645").text().toUtf8();
    QTest::newRow("columns exchanged") << ExportRow()
                                              .with(&ExportRow::osobniCislo, 1)
                                              .with(&ExportRow::poradoveCisloPP, "918273645")
                                              .text()
                                              .toUtf8();
    QTest::newRow("a header") << QByteArray("OsobniCislo|Quizzoltan|918273645");
}

void TestAnonymise::noWordAndNoNumberOfTheExportIsLeft()
{
    QFETCH(QByteArray, line);
    const QByteArray other = anonymised(line + '\n');
    QVERIFY2(!other.contains("Quizzoltan"), other.left(1000).constData());
    QVERIFY2(!other.contains("918273645"), other.left(1000).constData());
}

void TestAnonymise::theLinesKeepTheirLengthsAndEnds_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray line = ExportRow().with(&ExportRow::prijmeni, "Novak").text().toUtf8();
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("line feeds") << line + "\n\n" + line + "\n";
    QTest::newRow("carriage returns") << line + "\r\n" + line + "\r\n";
    QTest::newRow("no line feed at the end") << line + "\n" + line;
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("blanks around") << " \t" + line + "\xC2\xA0 \n";
    QTest::newRow("a byte order mark") << "\xEF\xBB\xBF " + line + "\n";
    QTest::newRow("the longest line") << QByteArray(65536, 'x') + "\n" + line + "\n";
    QTest::newRow("a line that is too long") << QByteArray(65537, 'x') + "\n" + line + "\n";
    QTest::newRow("a long line at the end") << line + "\n" + QByteArray(200000, 'x');
    QTest::newRow("NUL bytes") << QByteArray("\0|x\0\n\0", 6) + line;
}

void TestAnonymise::theLinesKeepTheirLengthsAndEnds()
{
    QFETCH(QByteArray, content);
    QCOMPARE(withoutWords(anonymised(content)), withoutWords(content));
}

void TestAnonymise::aTextThatWasEncodedTwiceStaysSo()
{
    const QString text = "Žltučký kôň a čierny jež, šťastná líška";
    const QString twice = QString::fromLatin1(text.toUtf8());
    QVERIFY(isEncodedTwice(twice));
    const ExportRow row = ExportRow().with(&ExportRow::strediskoPopis, twice);
    const QString other = fieldsOf(anonymised(row.text().toUtf8()))[0][kStrediskoPopis];
    QVERIFY(isEncodedTwice(other));
    QVERIFY(!other.contains("stn"));
}

void TestAnonymise::aBrokenLineIsAboutTheSamePerson()
{
    const QByteArray good =
        ExportRow().with(&ExportRow::nadrizenyOsobniCislo, 1001).text().toUtf8() + '\n';
    const QByteArray noTitle = QByteArray(good).replace("|Ing.|", "|");
    const Fields after = fieldsOf(anonymised(good + noTitle));
    QStringList withoutTitle = after[0];
    withoutTitle.removeAt(2);
    QCOMPARE(after[1], withoutTitle);
}

void TestAnonymise::aBrokenLineKeepsItsDatesOnly_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isDate");
    QTest::newRow("as the export writes it") << QByteArray("2024-02-29 00:00:00.000") << true;
    QTest::newRow("as people write it") << QByteArray("29. 2. 2024") << true;
    QTest::newRow("of two digits") << QByteArray("29/02/24") << true;
    QTest::newRow("the number of a mobile phone") << QByteArray("0905-12-3456") << false;
    QTest::newRow("that of another phone") << QByteArray("048.41.5511") << false;
}

void TestAnonymise::aBrokenLineKeepsItsDatesOnly()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isDate);
    QCOMPARE(anonymised("1|1|" + text + '\n').endsWith('|' + text + '\n'), isDate);
}

void TestAnonymise::twoRunsDiffer()
{
    const QByteArray firm = Firm(50, 4, QDate(2021, 3, 31)).exported();
    const Fields one = fieldsOf(anonymised(firm));
    const Fields two = fieldsOf(anonymised(firm));
    for (const int field : {kOsobniCislo, kTelefon, kStredisko})
        QVERIFY(column(one, field) != column(two, field));
}

void TestAnonymise::theOutputGoesToAFileForItsOwnerOnly_data()
{
    QTest::addColumn<int>("before"); // mode of the file that is there already; 0: there is none
    QTest::newRow("new") << 0;
    QTest::newRow("over one that everybody may read") << 0644;
}

void TestAnonymise::theOutputGoesToAFileForItsOwnerOnly()
{
    QFETCH(int, before);
    const QString path = m_folder->filePath("case.data");
    if (before != 0) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode_t(before)), 0);
    }
    m_export.write({ExportRow(), ExportRow().with(&ExportRow::osobniCislo, 7)});
    const ToolRun run = runTool({"anonymise", m_export.path(), "--output", path, "--json"});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(modeOf(path), 0600);
    QCOMPARE(fieldsOf(readFile(path)).size(), 2);
    QCOMPARE(run.json()["facts"].toObject()["lines"].toInt(), 2);
    QCOMPARE(run.json()["facts"].toObject()["keptNumbers"].toInt(), 0);
    QCOMPARE(run.err, QString());
}

void TestAnonymise::theReportCountsTheLinesOfWhichMoreStays()
{
    m_export.write({ExportRow()});
    const QString path = m_folder->filePath("case.data");
    const ToolRun whole = runTool({"anonymise", m_export.path(), "--output", path});
    QVERIFY2(!whole.out.contains("too few or too many"), whole.report().constData());

    m_export.write(QStringList{ExportRow().text(), "7|Ema", "8|Eva|305"});
    const ToolRun run = runTool({"anonymise", m_export.path(), "--output", path});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QVERIFY2(run.out.contains("2 lines have too few or too many fields"), run.report().constData());
}

void TestAnonymise::numbersThatStayAreWarnedOf()
{
    const auto person = [](const char *relationship) {
        return ExportRow()
            .with(&ExportRow::osobniCislo, 4294967)
            .with(&ExportRow::poradoveCisloPP, relationship);
    };
    m_export.write({person("295"), person("296")});
    const ToolRun run = runTool({"anonymise", m_export.path()});
    COMPARE_EXIT(run, ExitStatus::Fine);
    QCOMPARE(run.err,
             QString("mirovahrctl: anonymise: Warning: 1 personal number stays as it is: with "
                     "other numbers, other people would have the same pid.\n"));
    QCOMPARE(column(fieldsOf(run.out.toUtf8()), kOsobniCislo), QStringList({"4294967", "4294967"}));
}

void TestAnonymise::theExportIsNotWrittenOver()
{
    const QByteArray content = ExportRow().text().toUtf8() + '\n';
    m_export.writeBytes(content);
    const QString link = m_folder->filePath("link");
    QVERIFY(QFile::link(m_export.path(), link));
    for (const QString &path : {m_export.path(), link}) {
        const ToolRun run = runTool({"anonymise", m_export.path(), "--output", path});
        COMPARE_EXIT(run, ExitStatus::Usage);
        QCOMPARE(run.err,
                 QString("mirovahrctl: anonymise: The result would overwrite the export; name "
                         "another file.\n"));
    }
    QCOMPARE(readFile(m_export.path()), content);
}

void TestAnonymise::anExportThatIsAppendedToItselfEnds()
{
    const QByteArray firm = Firm(3000, 5, QDate(2021, 3, 31)).exported();
    m_export.writeBytes(firm);
    ProgramRun run;
    QVERIFY(
        run.run("/bin/sh",
                {"-c", QString("'%1' anonymise '%2' >> '%2'").arg(MIROVAHRCTL, m_export.path())}));
    COMPARE_STATUS(run, 0);
    QCOMPARE(QFileInfo(m_export.path()).size(), 2 * firm.size());
}

void TestAnonymise::badUsageIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("no file") << QStringList() << "Missing argument FILE; see --help.";
    QTest::newRow("two files") << QStringList{"a", "b"} << "Unexpected argument 'b'.";
    QTest::newRow("two results for standard output")
        << QStringList{"a", "--json"}
        << "--json needs --output: the export would follow on standard output.";
    QTest::newRow("an absent file")
        << QStringList{"/nowhere/ron.data"} << "There is no file '/nowhere/ron.data'.";
    QTest::newRow("an output that cannot be written")
        << QStringList{"/etc/hostname", "--output", "/nowhere/x"}
        << "'/nowhere/x' cannot be written: No such file or directory.";
}

void TestAnonymise::badUsageIsRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    const ToolRun run = runTool(QStringList("anonymise") + arguments);
    COMPARE_EXIT(run, ExitStatus::Usage);
    QCOMPARE(run.err, "mirovahrctl: anonymise: " + error + "\n");
    QCOMPARE(run.failure(), arguments.contains("--json") ? error : QString());
}

QTEST_GUILESS_MAIN(TestAnonymise)
#include "tst_anonymise.moc"
