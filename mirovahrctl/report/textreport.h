#pragma once

#include "mirovahrctl/report/reportwriter.h"

class QIODevice;

/// A report as plain text for a terminal, wrapped to its width: each finding with its advice below
/// it.
class TextReport : public ReportWriter {
public:
    /// \a columns: how wide a line may be, in characters.
    TextReport(QIODevice &out, int columns);

    void begin(const QString &subcommand, const QString &title) override;
    void section(const QString &id, const QString &title) override;
    void sentence(const QString &text) override;
    void table(const Table &table) override;
    void finding(const Finding &finding) override;
    void fact(const QString &id, const QString &label, const QVariant &value) override;
    void end(ExitStatus status, const QString &verdict) override;

private:
    void heading(const QString &text, QChar underline);
    void paragraph(const QString &text, int indent);
    void line(const QString &text);

    QIODevice &m_out;
    const int m_columns;
};
