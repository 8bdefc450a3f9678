#include "mirovahrctl/report/finding.h"

#include "cli/text.h"
#include "mirovahrctl/report/rule.h"

Finding makeFinding(const Rule &rule, const QString &message, const QString &advice)
{
    Finding finding;
    finding.severity = rule.severity;
    finding.rule = QString::fromLatin1(rule.id);
    finding.message = message;
    finding.advice = advice.isNull() ? Text::tr(rule.advice) : advice;
    return finding;
}

QString findingPerson(const Finding &finding)
{
    return finding.likely.isEmpty() ? finding.subject
                                    : Text::tr("most likely %1").arg(finding.likely);
}
