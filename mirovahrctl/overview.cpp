#include "mirovahrctl/overview.h"

#include "cli/text.h"
#include "mirovahrctl/report/exitstatus.h"
#include "mirovahrctl/report/textlayout.h"
#include "mirovahrctl/subcommand.h"

namespace {

/// Something that can be typed, and what it is good for.
struct Hint {
    const char *command;
    const char *purpose;
};

constexpr Hint kHelp[] = {
    {QT_TRANSLATE_NOOP("Text", "mirovahrctl help SUBCOMMAND"),
     QT_TRANSLATE_NOOP("Text", "what it does and its options")},
    {"mirovahrctl help", QT_TRANSLATE_NOOP("Text", "this overview")},
    {"mirovahrctl --version", QT_TRANSLATE_NOOP("Text", "the version")},
};

/// For whoever calls the program for the first time: the questions that it answers.
constexpr Hint kQuestions[] = {
    {"mirovahrctl doctor", QT_TRANSLATE_NOOP("Text", "Is everything set up as it should be?")},
    {QT_TRANSLATE_NOOP("Text", "mirovahrctl check-file FILE"),
     QT_TRANSLATE_NOOP("Text", "What is wrong with HR's file?")},
    {QT_TRANSLATE_NOOP("Text", "mirovahrctl explain PERSON"),
     QT_TRANSLATE_NOOP("Text", "Why did this person not arrive?")},
    {QT_TRANSLATE_NOOP("Text", "mirovahrctl preview FILE"),
     QT_TRANSLATE_NOOP("Text", "What will this file change?")},
    {QT_TRANSLATE_NOOP("Text", "mirovahrctl log --since 12h LOGFILE"),
     QT_TRANSLATE_NOOP("Text", "What did last night do?")},
};

/// Two columns, below each other in every language.
QStringList columns(const QVector<QStringList> &rows)
{
    constexpr int kIndent = 2;
    constexpr int kGap = 3;
    int width = 0;
    for (const QStringList &row : rows)
        width = qMax(width, row.constFirst().size());
    QStringList lines;
    for (const QStringList &row : rows) {
        lines << QString(kIndent, QLatin1Char(' ')) + row.constFirst().leftJustified(width + kGap)
                + row.constLast();
    }
    return lines;
}

QStringList subcommandLines()
{
    QVector<QStringList> rows;
    for (const Subcommand &subcommand : subcommands())
        rows << QStringList{QLatin1String(subcommand.name), Text::tr(subcommand.summary)};
    return columns(rows);
}

QStringList helpLines()
{
    QVector<QStringList> rows;
    for (const Hint &hint : kHelp)
        rows << QStringList{Text::tr(hint.command), Text::tr(hint.purpose)};
    return columns(rows);
}

} // namespace

QString Overview::ofSubcommands()
{
    QStringList lines{Text::tr("Usage: mirovahrctl SUBCOMMAND [OPTION...] [ARGUMENT...]"),
                      QString()};
    lines += TextLayout::wrapped(
        Text::tr("The operator's tool for MirovaHR, the plugin that keeps an attendance database "
                 "in step with the export of an HR system."),
        TextLayout::kHelpWidth);
    lines << QString() << Text::tr("Subcommands:") << subcommandLines() << QString() << helpLines()
          << QString() << exitStatusHelp();
    return lines.join(QLatin1Char('\n'));
}

QString Overview::ofQuestions()
{
    QVector<QStringList> rows;
    for (const Hint &hint : kQuestions)
        rows << QStringList{Text::tr(hint.purpose), Text::tr(hint.command)};
    QStringList lines{Text::tr("mirovahrctl answers these questions:"), QString()};
    lines << columns(rows) << QString()
          << Text::tr("\"mirovahrctl help\" lists the other subcommands and says how to see their "
                      "options.");
    return lines.join(QLatin1Char('\n'));
}
