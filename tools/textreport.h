#pragma once

#include "tools/reportwriter.h"

class QIODevice;

/// A report as plain text for a terminal: one line a finding, its advice below it.
class TextReport : public ReportWriter {
public:
    explicit TextReport(QIODevice &out);

    void begin(const QString &subcommand, const QString &title) override;
    void section(const QString &id, const QString &heading) override;
    void sentence(const QString &text) override;
    void table(const Table &table) override;
    void finding(const Finding &finding) override;
    void fact(const QString &id, const QString &label, const QVariant &value) override;
    void end(ExitStatus status, const QString &verdict) override;

private:
    void line(const QString &text);

    QIODevice &m_out;
};
