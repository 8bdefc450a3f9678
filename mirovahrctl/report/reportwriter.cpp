#include "mirovahrctl/report/reportwriter.h"

#include "mirovahrctl/report/finding.h"

void ReportWriter::add(const Rule &rule, const QString &message, const QString &advice)
{
    finding(makeFinding(rule, message, advice));
}

void ReportWriter::addSection(const QString &id, const QString &heading,
                              const QVector<Finding> &findings)
{
    if (!findings.isEmpty())
        section(id, heading);
    for (const Finding &one : findings)
        finding(one);
}
