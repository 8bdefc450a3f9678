#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QString>
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

/// Writes the report of a subcommand in one format: see TextReport, JsonReport, HtmlReport and, for
/// all formats that the command line selects, Report.
///
/// The calls come in reading order: begin(), then for each section section() and its sentences,
/// tables and findings, then end(). Facts may come anywhere between begin() and end(). Findings are
/// not kept in memory, so that there may be millions of them; some formats keep tables and
/// sentences.
class ReportWriter {
public:
    ReportWriter() = default;
    virtual ~ReportWriter() = default;
    ReportWriter(const ReportWriter &) = delete;
    ReportWriter &operator=(const ReportWriter &) = delete;

    /// \a subcommand as on the command line, \a title for people.
    virtual void begin(const QString &subcommand, const QString &title) = 0;
    /// Begins a section. \a id is its stable name for scripts, unique in the report.
    virtual void section(const QString &id, const QString &heading) = 0;
    /// One or more whole sentences of the current section.
    virtual void sentence(const QString &text) = 0;
    virtual void table(const Table &table) = 0;
    virtual void finding(const Finding &finding) = 0;
    /// One number, flag or text about the whole, such as "lines", "Lines in the file", 1200. \a id
    /// is its stable name for scripts.
    virtual void fact(const QString &id, const QString &label, const QVariant &value) = 0;
    /// Ends the report. \a verdict is the result in one plain sentence.
    virtual void end(ExitStatus status, const QString &verdict) = 0;

    /// A finding as makeFinding() makes it.
    void add(const Rule &rule, const QString &message, const QString &advice = QString());
    /// A section of these findings; nothing without any.
    void addSection(const QString &id, const QString &heading, const QVector<Finding> &findings);
};
