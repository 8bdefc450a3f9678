#include "mirovahrctl/report/recordedreport.h"

void RecordedReport::begin(const QString &subcommand, const QString &title)
{
    m_calls.emplace_back([=](ReportWriter &report) { report.begin(subcommand, title); });
}

void RecordedReport::answer(const QString &verdict)
{
    m_calls.emplace_back([=](ReportWriter &report) { report.answer(verdict); });
}

void RecordedReport::section(const QString &id, const QString &heading)
{
    m_calls.emplace_back([=](ReportWriter &report) { report.section(id, heading); });
}

void RecordedReport::sentence(const QString &text)
{
    m_calls.emplace_back([=](ReportWriter &report) { report.sentence(text); });
}

void RecordedReport::table(const Table &table)
{
    m_calls.emplace_back([=](ReportWriter &report) { report.table(table); });
}

void RecordedReport::card(const Card &card)
{
    m_calls.emplace_back([=](ReportWriter &report) { report.card(card); });
}

void RecordedReport::data(const Table &table)
{
    m_calls.emplace_back([=](ReportWriter &report) { report.data(table); });
}

void RecordedReport::finding(const Finding &finding)
{
    m_findings += finding;
    m_calls.emplace_back([=](ReportWriter &report) { report.finding(finding); });
}

void RecordedReport::fact(const QString &id, const QString &label, const QVariant &value)
{
    m_calls.emplace_back([=](ReportWriter &report) { report.fact(id, label, value); });
}

void RecordedReport::datum(const QString &id, const QVariant &value)
{
    m_calls.emplace_back([=](ReportWriter &report) { report.datum(id, value); });
}

void RecordedReport::end(ExitStatus status, const QString &verdict)
{
    m_calls.emplace_back([=](ReportWriter &report) { report.end(status, verdict); });
}

void RecordedReport::replay(ReportWriter &report) const
{
    for (const auto &call : m_calls)
        call(report);
}
