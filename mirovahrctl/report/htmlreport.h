#pragma once

#include "mirovahrctl/report/reportwriter.h"

#include <QString>
#include <QStringList>
#include <QVector>

class QIODevice;

/// A report as one self-contained web page: no network, no script, readable on a phone and in
/// print. For somebody without a terminal.
///
/// The verdict and the facts are at the top; in a report that begins with its answer, the facts of
/// a section stay in it. A table of findings has no column that is empty in all of its rows. The
/// details of a card are closed until the reader opens them. The page is kept in memory and written
/// by end(), so it shows only the first findings, and how many more there are.
class HtmlReport : public ReportWriter {
public:
    /// So many findings are shown.
    static constexpr int kMostFindings = 1000;

    explicit HtmlReport(QIODevice &out);

    void begin(const QString &subcommand, const QString &title) override;
    void answer(const QString &) override { m_isAnswered = true; } // end() puts the verdict first
    void section(const QString &id, const QString &heading) override;
    void sentence(const QString &text) override;
    void table(const Table &table) override;
    void card(const Card &card) override;
    void data(const Table &) override { }
    void finding(const Finding &finding) override;
    void fact(const QString &id, const QString &label, const QVariant &value) override;
    void datum(const QString &, const QVariant &) override { }
    void end(ExitStatus status, const QString &verdict) override;

private:
    /// Opens the section that section() began: one without content is not on the page.
    void beginContent();
    void endSection();
    void endFindings();
    void writeLeftOut();

    QIODevice &m_out;
    QString m_title;
    QString m_facts; ///< at the top
    QString m_sectionFacts; ///< of the current section
    bool m_isAnswered = false;
    QString m_sections;
    QString m_opening; ///< of the current section, until there is content
    bool m_inSection = false; ///< a section is open
    QVector<QStringList> m_findings; ///< the cells of the table that is not written yet
    qint64 m_shownLine = 0; ///< the line of the checked file that was shown last
    int m_findingCount = 0; ///< in the whole report
    qint64 m_leftOut = 0; ///< findings of the current section that are not shown
};
