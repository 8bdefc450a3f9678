#pragma once

#include "mirovahrctl/report/reportwriter.h"
#include "mirovahrctl/report/severity.h"
#include "mirovahrctl/report/textstyle.h"

class QIODevice;

/// A report as plain text for a terminal, wrapped to its width: each finding with its advice below
/// it.
class TextReport : public ReportWriter {
public:
    /// \a columns: how wide a line may be, in characters. \a isColoured: with escape sequences for
    /// headings, severities and the verdict.
    TextReport(QIODevice &out, int columns, bool isColoured = false);

    /// From now on shows only the beginning of what is long, on about one screen: the first
    /// findings and cards of each section, and no details of cards. Facts share lines. \a hint:
    /// where the rest is, such as "--html shows all of them".
    void abbreviate(const QString &hint) { m_hint = hint; }

    void begin(const QString &subcommand, const QString &title) override;
    void answer(const QString &verdict) override;
    void section(const QString &id, const QString &title) override;
    void sentence(const QString &text) override;
    void table(const Table &table) override;
    void card(const Card &card) override;
    void data(const Table &) override { }
    void finding(const Finding &finding) override;
    void fact(const QString &id, const QString &label, const QVariant &value) override;
    void datum(const QString &, const QVariant &) override { }
    void end(ExitStatus status, const QString &verdict) override;

private:
    bool isAbbreviated() const { return !m_hint.isEmpty(); }
    void beginContent();
    void endSection();
    void heading(const QString &text, QChar underline);
    /// Returns the number of lines.
    int paragraph(const QString &text, int indent);
    /// A paragraph of this style.
    void paragraph(const QString &text, TextStyle::Style style);
    void line(const QString &text);
    QString styled(const QString &text, TextStyle::Style style) const;
    QString severity(Severity severity) const;

    QIODevice &m_out;
    const int m_columns;
    const bool m_isColoured;
    QString m_hint; ///< where the rest is; empty: everything is shown
    QString m_heading; ///< of the section, until there is something below it
    bool m_isAnswered = false; ///< the verdict was shown
    // Of the current section
    int m_findings = 0; ///< that are shown
    int m_cardLines = 0; ///< of the cards that are shown
    qint64 m_shownLine = 0; ///< the line of the checked file whose text was shown last
    QStringList m_facts; ///< of an abbreviated text
    int m_leftOut = 0; ///< findings or cards that are not
};
