#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

struct Finding;
struct Rule;

/// A table of a report. An invalid QVariant is an empty cell.
struct Table {
    struct Column {
        QString id; ///< stable name for scripts
        QString heading; ///< for people
    };

    QString id; ///< stable name for scripts, unique in its section
    QVector<Column> columns;
    QVector<QVariantList> rows; ///< a cell for each column
};

/// What happens to one person or thing, in words.
struct Card {
    QString who; ///< "1234.1 Jana Nováková"
    QStringList what; ///< parts of a sentence, such as "surname: Nováková → Malá"
    QStringList details; ///< the same for what hardly anybody asks for
    bool leads = false; ///< holds for each of the cards after it, up to the next that leads
};

/// Writes the report of a subcommand in one format: see TextReport, JsonReport, HtmlReport and, for
/// all formats that the command line selects, Report.
///
/// The calls come in reading order: begin(), perhaps answer(), then for each section section() and
/// its sentences, tables, cards and findings, then end(). Facts may come anywhere between begin()
/// and end(). Findings are not kept in memory, so that there may be millions of them; some formats
/// keep tables, cards and sentences.
class ReportWriter {
public:
    ReportWriter() = default;
    virtual ~ReportWriter() = default;
    ReportWriter(const ReportWriter &) = delete;
    ReportWriter &operator=(const ReportWriter &) = delete;

    /// \a subcommand as on the command line, \a title for people.
    virtual void begin(const QString &subcommand, const QString &title) = 0;
    /// The verdict, for a text that shows it first; end() then does not repeat it.
    virtual void answer(const QString &verdict) = 0;
    /// Begins a section. \a id is its stable name for scripts, unique in the report. People see its
    /// heading only when something follows that they see.
    virtual void section(const QString &id, const QString &heading) = 0;
    /// One or more whole sentences of the current section.
    virtual void sentence(const QString &text) = 0;
    virtual void table(const Table &table) = 0;
    /// For people only: scripts get the same as data().
    virtual void card(const Card &card) = 0;
    /// A table for scripts only: people see the same as cards.
    virtual void data(const Table &table) = 0;
    virtual void finding(const Finding &finding) = 0;
    /// One number, flag or text about the whole, such as "lines", "Lines in the file", 1200. \a id
    /// is its stable name for scripts.
    virtual void fact(const QString &id, const QString &label, const QVariant &value) = 0;
    /// A fact for scripts only, such as a 0 that people need not see.
    virtual void datum(const QString &id, const QVariant &value) = 0;
    /// Ends the report. \a verdict is the result in one plain sentence.
    virtual void end(ExitStatus status, const QString &verdict) = 0;

    /// A finding as makeFinding() makes it.
    void add(const Rule &rule, const QString &message, const QString &advice = QString());
    /// A section of these findings; nothing without any.
    void addSection(const QString &id, const QString &heading, const QVector<Finding> &findings);
};
