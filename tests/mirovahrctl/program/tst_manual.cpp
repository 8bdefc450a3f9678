#include "mirovahrctl/subcommand.h"
#include "tests/mirovahrctl/program/manual.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/programrun.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

namespace {

/// The options in a help text.
QSet<QString> options(const QString &help)
{
    static const QRegularExpression option("^  (?:-[a-z], )?(--[a-z-]+)",
                                           QRegularExpression::MultilineOption);
    QSet<QString> options;
    auto matches = option.globalMatch(help);
    while (matches.hasNext())
        options << matches.next().captured(1);
    return options;
}

/// The names of the rules in the sources, as they are given to the functions that add a finding.
QSet<QString> rulesInSources()
{
    static const QRegularExpression rule(
        "(?:Severity::\\w+,|\\bwarn\\()\\s*(?:[^,;]*\\?\\s*\"([a-z0-9-]+)\"\\s*:\\s*)?"
        "\"([a-z0-9-]+)\",");
    QSet<QString> rules;
    QDirIterator sources(MIROVAHR_CTL_DIR, {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile file(sources.next());
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read", qPrintable(file.fileName()));
        auto matches = rule.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            rules << match.captured(1) << match.captured(2);
        }
    }
    rules.remove(QString());
    return rules;
}

} // namespace

/// The manual page and the shell completion, compared with the program.
class TestManual : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theManualIsWellFormed();
    void theManualIsShownWithoutWarnings();
    void theManualKnowsEverySubcommandAndItsOptions_data();
    void theManualKnowsEverySubcommandAndItsOptions();
    void theManualKnowsEveryRule();
    void completion_data();
    void completion();
    void valuesOfOptionsAreCompletedAsFilesOnly();
};

void TestManual::theManualIsWellFormed()
{
    ProgramRun lint;
    QVERIFY(lint.run("mandoc", {"-T", "lint", "-W", "style", Manual::path()}));
    QCOMPARE(lint.output() + lint.errors(), QString());
    COMPARE_STATUS(lint, 0);
}

void TestManual::theManualIsShownWithoutWarnings()
{
    ProgramRun man;
    man.setVariable("LC_ALL", "C.UTF-8");
    QVERIFY(man.run("man", {"--warnings", "--local-file", "-Tutf8", Manual::path()}));
    COMPARE_STATUS(man, 0);
    QCOMPARE(man.errors(), QString());
    QVERIFY(man.output().contains("MIROVAHRCTL"));
}

void TestManual::theManualKnowsEverySubcommandAndItsOptions_data()
{
    QTest::addColumn<QString>("name");
    for (const Subcommand &subcommand : subcommands())
        QTest::newRow(subcommand.name) << subcommand.name;
}

void TestManual::theManualKnowsEverySubcommandAndItsOptions()
{
    QFETCH(QString, name);
    QVERIFY(!Manual::about(name).isEmpty());
    const QString text = Manual::text();
    const QSet<QString> all = options(runTool({name, "--help"}).out);
    QVERIFY(all.contains("--help"));
    for (const QString &option : all) {
        const QRegularExpression mention(QStringLiteral("(^|[ \"])%1($|[ \".,])").arg(option),
                                         QRegularExpression::MultilineOption);
        QVERIFY2(text.contains(mention), qPrintable(option));
    }
}

void TestManual::theManualKnowsEveryRule()
{
    QSet<QString> documented;
    for (const Subcommand &subcommand : subcommands()) {
        for (const QString &rule : Manual::rules(subcommand.name))
            documented << rule;
    }
    const QSet<QString> rules = rulesInSources();
    QVERIFY(rules.size() > 40);
    const QStringList missing = (rules - documented).values();
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(' ')));
}

void TestManual::completion_data()
{
    QTest::addColumn<QStringList>("words"); // the last one is to be completed
    QTest::addColumn<QStringList>("completions");

    QStringList all;
    for (const Subcommand &subcommand : subcommands())
        all << subcommand.name;
    QTest::newRow("every subcommand")
        << QStringList{""} << all + QStringList{"help", "--help", "--version"};
    QTest::newRow("the beginning of a subcommand")
        << QStringList{"check-f"} << QStringList{"check-file"};
    QTest::newRow("the subcommand that help is for")
        << QStringList{"help", "check-f"} << QStringList{"check-file"};
    QTest::newRow("options") << QStringList{"check-config", "--"}
                             << QStringList{"--help", "--json", "--version"};
    QTest::newRow("the beginning of an option")
        << QStringList{"check-file", "x", "--pass"} << QStringList{"--password-file"};
    QTest::newRow("an option behind a flag")
        << QStringList{"check-file", "--json", "--re"} << QStringList{"--rejects"};
    QTest::newRow("a file") << QStringList{"check-file", "/etc/hostnam"}
                            << QStringList{"/etc/hostname"};
    QTest::newRow("a file behind a flag")
        << QStringList{"check-file", "--json", "/etc/hostnam"} << QStringList{"/etc/hostname"};
    QTest::newRow("an unknown subcommand") << QStringList{"nothing", "--"} << QStringList();
}

/// The completions that bash offers.
static QStringList completions(const QStringList &words)
{
    const QString script =
        QStringLiteral("compopt() { :; }; source '%1'; COMP_WORDS=(mirovahrctl \"$@\"); "
                       "COMP_CWORD=$#; _mirovahrctl '%2' \"${@:$#}\" "
                       "\"${COMP_WORDS[COMP_CWORD-1]}\"; printf '%s\\n' "
                       "\"${COMPREPLY[@]}\"")
            .arg(MIROVAHR_COMPLETION, MIROVAHRCTL);
    ProgramRun bash;
    bash.run("bash", QStringList{"-c", script, "bash"} + words);
    return (bash.output() + bash.errors()).split('\n', Qt::SkipEmptyParts);
}

void TestManual::completion()
{
    QFETCH(QStringList, words);
    QFETCH(QStringList, completions);
    QStringList actual = ::completions(words);
    actual.sort();
    completions.sort();
    QCOMPARE(actual, completions);
}

void TestManual::valuesOfOptionsAreCompletedAsFilesOnly()
{
    QCOMPARE(completions({"check-file", "--rejects", "/etc/hostnam"}),
             QStringList{"/etc/hostname"});
    QCOMPARE(completions({"check-file", "--socket", "/etc/hostnam"}), QStringList{"/etc/hostname"});
    QCOMPARE(completions({"check-file", "--user", "/etc/hostnam"}), QStringList());
}

QTEST_GUILESS_MAIN(TestManual)
#include "tst_manual.moc"
