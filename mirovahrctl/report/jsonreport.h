#pragma once

#include "mirovahrctl/report/reportwriter.h"

#include <QJsonArray>
#include <QJsonObject>

class QIODevice;

/// A report as one JSON object:
///
///     {"mirovahrctl": version, "subcommand": ..., "title": ...,
///      "findings": [{"severity", "rule", "message", "advice", "line", "field", "subject",
///                    "likely", "lineText", "forHr", "dropped"}, ...],
///      "sections": [{"id", "heading", "sentences": [...], "tables": {id: [{column: cell}, ...]}}],
///      "facts": {id: value}, "status": number, "result": word, "verdict": sentence}
///
/// Findings are written as they come, one on a line. Empty members of a finding are absent. A
/// failure has "error", the reason, in place of "verdict".
class JsonReport : public ReportWriter {
public:
    explicit JsonReport(QIODevice &out);

    /// A finding as the report has it.
    static QJsonObject object(const Finding &finding);
    /// The same of the row of a table.
    static QJsonObject object(const Table &table, const QVariantList &row);

    void begin(const QString &subcommand, const QString &title) override;
    void answer(const QString &) override { } // end() has it
    void section(const QString &id, const QString &heading) override;
    void sentence(const QString &text) override;
    void table(const Table &table) override;
    void card(const Card &) override { }
    void data(const Table &table) override;
    void finding(const Finding &finding) override;
    void fact(const QString &id, const QString &label, const QVariant &value) override;
    void datum(const QString &id, const QVariant &value) override;
    void end(ExitStatus status, const QString &verdict) override;

    /// Ends the report of a subcommand that failed, before begin() or after it. Does nothing after
    /// end(): the object is complete.
    void fail(const QString &subcommand, ExitStatus status, const QString &reason);

private:
    enum class State { New, Begun, Ended };

    void endSection();
    void finish(ExitStatus status, const char *lastMember, const QString &text);

    QIODevice &m_out;
    State m_state = State::New;
    bool m_hasFindings = false;
    QJsonArray m_sections;
    QJsonObject m_section; ///< the current one; empty before the first
    QJsonArray m_sentences; ///< of the current section
    QJsonObject m_tables; ///< of the current section
    QJsonObject m_facts;
};
