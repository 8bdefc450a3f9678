#include "mirovahrctl/subcommand.h"
#include "tests/mirovahrctl/program/manual.h"
#include "tests/mirovahrctl/program/rulefixtures.h"
#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/programrun.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

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

} // namespace

/// The manual page and the shell completion, compared with the program.
class TestManual : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theManualIsWellFormed();
    void theManualIsShownWithoutWarnings();
    void theManualKnowsEverySubcommandAndItsOptions_data();
    void theManualKnowsEverySubcommandAndItsOptions();
    void theManualListsTheRulesOfEachSubcommand_data();
    void theManualListsTheRulesOfEachSubcommand();
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

void TestManual::theManualListsTheRulesOfEachSubcommand_data()
{
    theManualKnowsEverySubcommandAndItsOptions_data();
}

void TestManual::theManualListsTheRulesOfEachSubcommand()
{
    QFETCH(QString, name);
    QCOMPARE(Manual::rules(name), registeredRules(name));
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
                             << QStringList{"--help", "--json", "--language", "--version"};
    QTest::newRow("the beginning of an option")
        << QStringList{"check-file", "x", "--pass"} << QStringList{"--password-file"};
    QTest::newRow("an option behind a flag")
        << QStringList{"check-file", "--json", "--rej"} << QStringList{"--rejects"};
    QTest::newRow("a file") << QStringList{"check-file", "/etc/hostnam"}
                            << QStringList{"/etc/hostname"};
    QTest::newRow("a file behind a flag")
        << QStringList{"check-file", "--json", "/etc/hostnam"} << QStringList{"/etc/hostname"};
    QTest::newRow("a language") << QStringList{"check-file", "--language", "s"}
                                << QStringList{"sk"};
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
    // bash complains of a locale that is not there in LC_ALL only.
    bash.setVariable("LC_ALL", "");
    bash.setVariable("LANG", "sk_SK.UTF-8");
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
